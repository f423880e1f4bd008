#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/ViewLoader.h"
#include "tests/colorsettings/ColorPanelFixture.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;

TEST(ColorSettingsView, SendsNothingWhileItIsDestroyed)
{
    int sent = 0;
    QWidget *panelView = nullptr;
    ViewConnections owner;
    owner.outlet(u"panelView"_s, panelView);
    owner.action(u"effectValueDidChange:"_s, [&](QWidget *) { ++sent; });
    auto view =
        loadView(QStringLiteral(VELKARO_TEST_BUNDLE "/Resources/VKInkColorSetting.ui"), owner);
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
