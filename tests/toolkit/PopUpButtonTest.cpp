#include "platform/toolkit/PopUpButton.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

class PopUpButtonTest : public testing::Test
{
protected:
    PopUpButtonTest()
    {
        popup.setItems({{u"Plain Paper"_s, u"Plain"_s},
                        {u"Black & White"_s, u"Mono"_s},
                        {u"<b>Glossy</b>"_s, u"Glossy"_s}});
    }

    void showPopup()
    {
        popup.show();
        popup.activateWindow();
        popup.setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&popup));
    }

    PopUpButton popup;
};

TEST_F(PopUpButtonTest, SelectsTheFirstItemWhenItIsFilled)
{
    EXPECT_EQ(popup.count(), 3);
    EXPECT_EQ(popup.selectedObject(), u"Plain"_s);
    EXPECT_TRUE(popup.isItemEnabled(2));
}

TEST_F(PopUpButtonTest, SelectsNothingWhenItIsEmptied)
{
    popup.setItems({});
    EXPECT_EQ(popup.count(), 0);
    EXPECT_EQ(popup.currentIndex(), -1);
    EXPECT_TRUE(popup.selectedObject().isNull());
}

TEST_F(PopUpButtonTest, ShowsTitlesAsTheyAre)
{
    EXPECT_EQ(popup.itemText(1), u"Black & White"_s);
    EXPECT_EQ(popup.itemText(2), u"<b>Glossy</b>"_s);
}

struct FindCase
{
    const char *behaviour;
    QString object;
    int index;
};

class Find : public PopUpButtonTest, public testing::WithParamInterface<FindCase>
{};

const FindCase kFindCases[] = {
    {"ItsObject", u"Glossy"_s, 2},     {"ItsTitle", u"Plain Paper"_s, -1},
    {"AnotherCase", u"glossy"_s, -1},  {"AnEmptyString", u""_s, -1},
    {"AMissingString", QString(), -1},
};

TEST_P(Find, FindsAnItemByItsRepresentedObject)
{
    EXPECT_EQ(popup.indexOfRepresentedObject(GetParam().object), GetParam().index);
    EXPECT_EQ(popup.selectObject(GetParam().object), GetParam().index >= 0);
    EXPECT_EQ(popup.currentIndex(), std::max(GetParam().index, 0));
}

INSTANTIATE_TEST_SUITE_P(Cases, Find, testing::ValuesIn(kFindCases), CaseName());

TEST_F(PopUpButtonTest, TellsAMissingObjectFromAnEmptyOne)
{
    popup.setItems({{u"Nameless"_s, QString()}, {u"Empty"_s, u""_s}});
    EXPECT_EQ(popup.indexOfRepresentedObject(QString()), -1);
    EXPECT_EQ(popup.indexOfRepresentedObject(u""_s), 1);
}

TEST_F(PopUpButtonTest, FindsTheFirstItemOfATitle)
{
    popup.setItems({{u"Tray"_s, u"Tray1"_s}, {u"Tray"_s, u"Tray2"_s}});
    EXPECT_EQ(popup.indexOfTitle(u"Tray"_s), 0);
    EXPECT_EQ(popup.indexOfTitle(u"tray"_s), -1);
    EXPECT_EQ(popup.representedObject(1), u"Tray2"_s);
    EXPECT_TRUE(popup.representedObject(2).isNull());
    EXPECT_TRUE(popup.representedObject(-1).isNull());
}

TEST_F(PopUpButtonTest, SaysNothingOfWhatTheProgramSelects)
{
    QSignalSpy picks(&popup, &PopUpButton::activated);
    popup.selectObject(u"Glossy"_s);
    popup.setItems({{u"Other"_s, u"Other"_s}});
    popup.setItemEnabled(0, false);
    EXPECT_TRUE(picks.isEmpty());
}

TEST_F(PopUpButtonTest, SaysAPickAlsoOfTheSelectedItem)
{
    QSignalSpy picks(&popup, &PopUpButton::activated);
    popup.pick(2);
    popup.pick(2);
    ASSERT_EQ(picks.size(), 2);
    EXPECT_EQ(picks[1][0].toInt(), 2);
    EXPECT_EQ(popup.selectedObject(), u"Glossy"_s);
}

TEST_F(PopUpButtonTest, TakesAClickOnAnItemOfTheOpenList)
{
    showPopup();
    QSignalSpy picks(&popup, &PopUpButton::activated);
    popup.showPopup();
    QAbstractItemView *list = popup.view();
    const QRect item = list->visualRect(popup.model()->index(2, 0));
    QTest::mouseMove(list->viewport(), item.center());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, item.center());
    EXPECT_EQ(picks.size(), 1);
    EXPECT_EQ(popup.selectedObject(), u"Glossy"_s);
}

TEST_F(PopUpButtonTest, PassesOverADisabledItemWithTheArrowKeys)
{
    showPopup();
    popup.setItemEnabled(1, false);
    EXPECT_FALSE(popup.isItemEnabled(1));
    QSignalSpy picks(&popup, &PopUpButton::activated);
    QTest::keyClick(&popup, Qt::Key_Down);
    EXPECT_EQ(picks.size(), 1);
    EXPECT_EQ(popup.selectedObject(), u"Glossy"_s);
}

TEST_F(PopUpButtonTest, KeepsADisabledItemThatIsSelected)
{
    popup.selectObject(u"Mono"_s);
    popup.setItemEnabled(1, false);
    EXPECT_EQ(popup.selectedObject(), u"Mono"_s);
    popup.setItemEnabled(1, true);
    EXPECT_TRUE(popup.isItemEnabled(1));
}

TEST_F(PopUpButtonTest, HasNoEnabledItemThatIsNotThere)
{
    popup.setItemEnabled(7, true);
    EXPECT_FALSE(popup.isItemEnabled(7));
    EXPECT_FALSE(popup.isItemEnabled(-1));
}

void turnWheelDown(QWidget &widget)
{
    const QPointF centre = widget.rect().center();
    QWheelEvent event(centre, widget.mapToGlobal(centre), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

TEST_F(PopUpButtonTest, TakesTheWheelOnlyWhileItHasTheFocus)
{
    showPopup();
    popup.clearFocus();
    turnWheelDown(popup);
    EXPECT_EQ(popup.selectedObject(), u"Plain"_s);
    popup.setFocus();
    turnWheelDown(popup);
    EXPECT_EQ(popup.selectedObject(), u"Mono"_s);
}

TEST_F(PopUpButtonTest, IsAsWideForManyLongChoicesAsForFew)
{
    const QSize before = popup.sizeHint();
    std::vector<PopUpButton::Item> items;
    items.reserve(500);
    for (int number = 0; number < 500; ++number)
        items.push_back({QString(200, u'W'), QString::number(number)});
    popup.setItems(items);
    EXPECT_EQ(popup.sizeHint().width(), before.width());
}

} // namespace
