#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/ViewLoader.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/TabWalk.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStackedWidget>

using namespace Qt::StringLiterals;

// The view resource of the Print Settings panel keeps what the panel's code counts on.

namespace {

const char *const kPopUps[] = {"resolutionPopup", "mediaTypePopup", "paperThickPopup",
                               "paperFeedPopup",  "monoColorPopup", "jpegPopup",
                               "duplexPopup"};
const char *const kLabels[] = {"resolutionLabel", "mediaTypeLabel", "paperThickLabel",
                               "paperFeedLabel",  "monoColorLabel", "jpegLabel",
                               "duplexLabel"};
const char *const kCheckBoxes[] = {"slowDryButton",
                                   "biDirButton",
                                   "mirrorButton",
                                   "reverseButton",
                                   "vertLineAlignA3Button",
                                   "vertLineAlignA4Button",
                                   "vertLineAlignOtherButton",
                                   "vertLineAlignQM43Button"};
const char *const kAdvancedParts[] = {"optionLabel", "optionButton", "advancedTabView",
                                      "advancedTableView"};

class PrintSettingViewTest : public testing::Test
{
protected:
    PrintSettingViewTest()
    {
        ViewConnections owner;
        owner.outlet(u"panelView"_s, panelView);
        owner.outlet(u"VKInkPrintSetting14"_s, root);
        for (const char *action : {"requestNewOutputBin:", "toggleShowOption:"}) {
            owner.action(QString::fromLatin1(action), [this, action](QWidget *sender) {
                sent << QString::fromLatin1(action) + sender->objectName();
            });
        }
        loaded = loadView(builtBundle() + u"/Resources/VKInkPrintSetting14.ui"_s, owner);
    }

    template <typename Widget> Widget *find(const char *name) const
    {
        return root->findChild<Widget *>(QString::fromLatin1(name));
    }

    void unfold() { loaded->content()->setValue(u"advancedItem"_s, true); }

    QWidget *root = nullptr;
    QWidget *panelView = nullptr;
    std::unique_ptr<LoadedView> loaded;
    QStringList sent;
};

TEST_F(PrintSettingViewTest, IsOneFixedCollapsedPanel)
{
    ASSERT_NE(panelView, nullptr);
    EXPECT_EQ(panelView->size(), QSize(560, 160));
}

TEST_F(PrintSettingViewTest, HidesWhatBelongsToAKeywordUntilThePrinterHasIt)
{
    for (const char *name : kPopUps)
        EXPECT_TRUE(find<PopUpButton>(name) && find<PopUpButton>(name)->isHidden()) << name;
    for (const char *name : kLabels)
        EXPECT_TRUE(find<QLabel>(name) && find<QLabel>(name)->isHidden()) << name;
    for (const char *name : kCheckBoxes)
        EXPECT_TRUE(find<QCheckBox>(name) && find<QCheckBox>(name)->isHidden()) << name;
}

TEST_F(PrintSettingViewTest, ShowsTextsOfThePrinterAsTheyAre)
{
    for (const char *name : kLabels) {
        auto *label = find<QLabel>(name);
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << name;
        const QString control = QLatin1String(name).chopped(5) + u"Popup"_s;
        EXPECT_EQ(label->buddy(), find<QWidget>(control.toLatin1().constData())) << name;
        // A buddy makes a mnemonic of an ampersand.
        setLabelText(label, u"Fast & Fine: "_s);
        EXPECT_EQ(label->text(), u"Fast & Fine: "_s) << name;
        EXPECT_EQ(label->buddy(), nullptr) << name;
    }
    EXPECT_EQ(find<QLabel>("optionLabel")->textFormat(), Qt::PlainText);
}

TEST_F(PrintSettingViewTest, TagsTheQualityForTitlesAndTheMediumForPictures)
{
    for (const char *name : kPopUps) {
        const QByteArray popup = name;
        const int tag = popup == "resolutionPopup" ? 5 : popup == "mediaTypePopup" ? 10 : 0;
        EXPECT_EQ(tagOf(find<QWidget>(name)), tag) << name;
    }
}

TEST_F(PrintSettingViewTest, SendsTheActionOfEveryControl)
{
    QStringList expected;
    for (const char *name : kCheckBoxes) {
        find<QCheckBox>(name)->click();
        expected << u"requestNewOutputBin:"_s + QString::fromLatin1(name);
    }
    for (const char *name : kPopUps) {
        find<PopUpButton>(name)->setItems({{u"A"_s, u"a"_s}});
        find<PopUpButton>(name)->pick(0);
        expected << u"requestNewOutputBin:"_s + QString::fromLatin1(name);
    }
    EXPECT_EQ(sent, expected);
}

TEST_F(PrintSettingViewTest, FoldsItsAdvancedPartsWithTheDisclosureButton)
{
    auto *button = find<DisclosureButton>("optionButton");
    EXPECT_TRUE(find<QListWidget>("advancedTableView")->isHidden());
    EXPECT_TRUE(find<QStackedWidget>("advancedTabView")->isHidden());
    button->click();
    EXPECT_EQ(sent, QStringList{u"toggleShowOption:optionButton"_s});
    EXPECT_TRUE(loaded->content()->boolValue(u"advancedItem"_s));
    EXPECT_FALSE(find<QListWidget>("advancedTableView")->isHidden());
    EXPECT_FALSE(find<QStackedWidget>("advancedTabView")->isHidden());
    loaded->content()->setValue(u"advancedItem"_s, false);
    EXPECT_FALSE(button->isChecked());
    EXPECT_TRUE(find<QStackedWidget>("advancedTabView")->isHidden());
}

TEST_F(PrintSettingViewTest, HasAPageForEachGroup)
{
    auto *pages = find<QStackedWidget>("advancedTabView");
    QStringList names;
    for (int page = 0; page < pages->count(); ++page)
        names << pages->widget(page)->objectName();
    EXPECT_EQ(names, (QStringList{u"Layout"_s, u"VKJpeg"_s, u"VKDuplexMode"_s, u"OtherOption"_s}));
    EXPECT_TRUE(find<QWidget>("Layout")->isAncestorOf(find<QWidget>("mirrorButton")));
    EXPECT_TRUE(find<QWidget>("Layout")->isAncestorOf(find<QWidget>("reverseButton")));
    EXPECT_TRUE(find<QWidget>("VKJpeg")->isAncestorOf(find<QWidget>("jpegPopup")));
    EXPECT_TRUE(find<QWidget>("VKDuplexMode")->isAncestorOf(find<QWidget>("duplexPopup")));
}

TEST_F(PrintSettingViewTest, HasRoomForTheAdvancedPartsWhereTheyAreMovedTo)
{
    for (const char *name : kAdvancedParts) {
        const auto *part = find<QWidget>(name);
        EXPECT_EQ(part->parentWidget(), panelView) << name;
        EXPECT_GE(part->y(), 130) << name;
        EXPECT_LE(part->geometry().bottom(), 300) << name;
    }
}

// Whatever the printer has, nothing lies over anything else, and nothing is cut off.
TEST_F(PrintSettingViewTest, CutsNothingOffWithEverythingShown)
{
    unfold();
    panelView->setFixedSize(560, 300);
    for (QWidget *widget : panelView->findChildren<QWidget *>()) {
        const QByteArray name = widget->objectName().toLatin1();
        if (name.endsWith("Popup") || name.endsWith("Label") || name.endsWith("Button"))
            widget->show();
    }
    QWidget window;
    panelView->setParent(&window);
    panelView->show();
    window.resize(560, 300);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    auto *stack = panelView->findChild<QStackedWidget *>();
    QList<QRect> taken;
    for (int page = 0; page < stack->count(); ++page) {
        stack->setCurrentIndex(page);
        QApplication::processEvents();
        for (const char *name : kCheckBoxes) {
            const auto *box = panelView->findChild<QCheckBox *>(QString::fromLatin1(name));
            if (box->isVisible()) {
                EXPECT_GE(box->height(), box->minimumSizeHint().height()) << name;
            }
        }
    }
    for (const char *name : kPopUps) {
        const auto *popup = panelView->findChild<PopUpButton *>(QString::fromLatin1(name));
        if (!popup->isVisible())
            continue;
        const QRect area(popup->mapTo(panelView, QPoint()), popup->size());
        EXPECT_TRUE(panelView->rect().contains(area)) << name;
        for (const QRect &other : taken)
            EXPECT_FALSE(other.intersects(area)) << name;
        taken << area;
    }
    EXPECT_EQ(taken.size(), 5);
}

TEST_F(PrintSettingViewTest, HasThePaperSourceLastSoThatTheRowAboveTheAdvancedPartsCanGo)
{
    for (const char *name :
         {"mediaTypePopup", "resolutionPopup", "monoColorPopup", "paperThickPopup"})
        find<QWidget>(name)->show();
    panelView->setParent(nullptr);
    panelView->show();
    QApplication::processEvents();
    for (const char *name :
         {"mediaTypePopup", "resolutionPopup", "monoColorPopup", "paperThickPopup"}) {
        const auto *popup = panelView->findChild<QWidget *>(QString::fromLatin1(name));
        EXPECT_LE(popup->mapTo(panelView, QPoint(0, popup->height())).y(), 101) << name;
    }
}

TEST_F(PrintSettingViewTest, ReachesEveryControlWithTheTabKey)
{
    unfold();
    for (QWidget *widget : panelView->findChildren<QWidget *>())
        widget->show();
    panelView->findChild<QStackedWidget *>()->setCurrentIndex(3);
    for (const char *name : {"Layout", "VKJpeg", "VKDuplexMode"})
        find<QWidget>(name)->hide();
    QWidget window;
    panelView->setParent(&window);
    window.resize(560, 300);
    panelView->show();
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QStringList order{
        u"mediaTypePopup"_s,         u"resolutionPopup"_s,       u"monoColorPopup"_s,
        u"paperThickPopup"_s,        u"paperFeedPopup"_s,        u"optionButton"_s,
        u"advancedTableView"_s,      u"biDirButton"_s,           u"slowDryButton"_s,
        u"vertLineAlignA3Button"_s,  u"vertLineAlignA4Button"_s, u"vertLineAlignOtherButton"_s,
        u"vertLineAlignQM43Button"_s};
    EXPECT_EQ(visitedByTab(*panelView->findChild<QWidget *>(order[0]), order.size()), order);
}

} // namespace
