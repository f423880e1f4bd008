#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/ViewLoader.h"
#include "tests/colorsettings/ColorPanelFixture.h"
#include "tests/support/TabWalk.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>

using namespace Qt::StringLiterals;

TEST(ColorSettingsView, SendsNothingWhileItIsDestroyed)
{
    int sent = 0;
    QWidget *panelView = nullptr;
    ViewConnections owner;
    owner.outlet(u"panelView"_s, panelView);
    owner.action(u"effectValueDidChange:"_s, [&](QWidget *) { ++sent; });
    auto view = loadView(builtBundle() + u"/Resources/VKInkColorSetting.ui"_s, owner);
    ASSERT_TRUE(view);
    view->content()->setValue(u"VKOutput"_s, true);
    view->content()->setValue(u"Color"_s, true);
    view->content()->setValue(u"advancedcolorItem"_s, true);
    panelView->setParent(nullptr);
    panelView->setFixedSize(560, 312);
    panelView->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(panelView));
    auto &field = *panelView->findChild<NumberField *>(u"redField"_s);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, u"8"_s);
    ASSERT_EQ(field.text(), u"8"_s);
    view.reset();
    EXPECT_EQ(sent, 0) << "the typed number was complete when the field lost the focus";
}

TEST(ColorSettingsView, IsWalkedThroughInReadingOrder)
{
    QWidget *panelView = nullptr;
    ViewConnections owner;
    owner.outlet(u"panelView"_s, panelView);
    const auto view = loadView(builtBundle() + u"/Resources/VKInkColorSetting.ui"_s, owner);
    ASSERT_TRUE(view);
    for (const char *key :
         {"VKOutput", "VKMonoColor", "VKColorMatching", "VKColorEnhancement", "Color"})
        view->content()->setValue(QLatin1String(key), true);
    view->content()->setValue(u"advancedcolorItem"_s, true);
    for (const QString &name : {u"ditherPopup"_s, u"colorEnhanceButton"_s})
        panelView->findChild<QWidget *>(name)->show();
    panelView->setParent(nullptr);
    panelView->setFixedSize(560, 312);
    panelView->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(panelView));
    const QStringList order{u"ditherPopup"_s,      u"optionButton"_s,    u"colorEnhanceButton"_s,
                            u"brightnessSlider"_s, u"brightnessField"_s, u"contrastSlider"_s,
                            u"contrastField"_s,    u"redSlider"_s,       u"redField"_s,
                            u"greenSlider"_s,      u"greenField"_s,      u"blueSlider"_s,
                            u"blueField"_s,        u"revertButton"_s};
    EXPECT_EQ(visitedByTab(*panelView->findChild<QWidget *>(order[0]), order.size()), order);
}
