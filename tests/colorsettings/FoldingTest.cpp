#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/KeyWindow.h"
#include "tests/colorsettings/ColorPanelFixture.h"
#include "tests/colorsettings/ColorPictures.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>

using namespace Qt::StringLiterals;

namespace {
constexpr auto kFoldKey = "com.velkaro.print.PrintSettings.advancedcolorItem";
}

using FoldingTest = ColorPanelTest;

TEST_F(FoldingTest, ThePanelOpensFolded)
{
    ColorDialog dialog;
    const auto &panel = dialog.show();
    EXPECT_EQ(panel.loadedView()->size(), QSize(560, 110));
    EXPECT_FALSE(dialog.part<QAbstractButton>("optionButton").isChecked());
    EXPECT_TRUE(dialog.part<QWidget>("advancedSection").isHidden());
}

TEST_F(FoldingTest, ThePanelOpensFoldedWhateverTheHeightOfItsView)
{
    const ColorPictures pictures;
    pictures.editView("<height>110</height>", "<height>250</height>");
    Bundle::setMainBundle(pictures.bundle());
    ColorDialog dialog;
    EXPECT_EQ(dialog.show().loadedView()->height(), 110);
}

TEST_F(FoldingTest, OnAndThenOffReturnsToTheFormerHeight)
{
    ColorDialog dialog;
    const auto &panel = dialog.show();
    auto &arrow = dialog.part<QAbstractButton>("optionButton");
    QTest::mouseClick(&arrow, Qt::LeftButton);
    EXPECT_EQ(panel.loadedView()->size(), QSize(560, 312));
    EXPECT_TRUE(dialog.part<QWidget>("advancedSection").isVisible());
    QTest::mouseClick(&arrow, Qt::LeftButton);
    EXPECT_EQ(panel.loadedView()->size(), QSize(560, 110));
    EXPECT_FALSE(dialog.part<QWidget>("advancedSection").isVisible());
    EXPECT_EQ(dialog.calls, QStringList({u"panelViewDidResize"_s, u"panelViewDidResize"_s}));
}

TEST_F(FoldingTest, TheTicketRemembersIt)
{
    ColorDialog dialog;
    dialog.setTicket(kFoldKey, true);
    const auto &panel = dialog.show();
    EXPECT_EQ(panel.loadedView()->height(), 312);
    EXPECT_TRUE(dialog.part<QAbstractButton>("optionButton").isChecked());
    EXPECT_TRUE(dialog.part<QWidget>("advancedSection").isVisible());
    dialog.part<QAbstractButton>("optionButton").click();
    dialog.panel->saveAllValues();
    EXPECT_EQ(dialog.ticket(kFoldKey), QVariant(false));
    dialog.setTicket(kFoldKey, true);
    dialog.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(panel.loadedView()->height(), 312);
}

TEST_F(FoldingTest, AnythingThatIsNotOnFolds)
{
    ColorDialog dialog;
    auto &panel = dialog.show();
    dialog.part<QAbstractButton>("optionButton").click();
    panel.toggleShowOption(nullptr);
    EXPECT_EQ(panel.loadedView()->height(), 110);
}

TEST_F(FoldingTest, AHostThatCannotBeToldKeepsTheHeight)
{
    ColorDialog dialog;
    dialog.host->setLacking({HostOperation::PanelViewDidResize});
    const auto &panel = dialog.show();
    dialog.part<QAbstractButton>("optionButton").click();
    EXPECT_EQ(panel.loadedView()->height(), 110);
}

TEST_F(FoldingTest, ASmallWindowIsWaitedFor)
{
    ColorDialog dialog;
    const auto &panel = dialog.show();
    const int frame = dialog.window->frameGeometry().height() - dialog.window->height();
    dialog.window->resize(640, 312 + 96 - frame);
    ASSERT_EQ(keyWindowHeight(), 408.0);
    dialog.part<QAbstractButton>("optionButton").click();
    EXPECT_EQ(dialog.calls, QStringList());
    NotificationCenter::defaultCenter().post(QLatin1String(kViewDidUpdateTrackingAreasNotification),
                                             panel.loadedView());
    EXPECT_EQ(dialog.calls, QStringList{u"panelViewDidResize"_s});
}
