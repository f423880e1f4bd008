#include "platform/toolkit/PopUpButton.h"

#include "platform/toolkit/PlainLabel.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtGui/QHelpEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QToolTip>
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

    /// What the button tells under the pointer; null for nothing.
    static QString toolTipOf(QWidget &widget)
    {
        const QPoint at = widget.mapToGlobal(QPoint(2, 2));
        const QString none = u"none"_s;
        QToolTip::showText(at, none); // one that is there goes late
        QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), at);
        QApplication::sendEvent(&widget, &event);
        return QToolTip::text() == none ? QString() : QToolTip::text();
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

TEST_F(PopUpButtonTest, IsAsWideAsItsWidestChoice)
{
    const QString widest = u"A medium that takes more room than others"_s;
    popup.setItems({{u"Plain"_s, u"Plain"_s}});
    const int narrow = popup.sizeHint().width();
    std::vector<PopUpButton::Item> items{{widest, u"Wide"_s}};
    for (int number = 0; number < 500; ++number)
        items.push_back({QString::number(number), QString::number(number)});
    popup.setItems(items);
    EXPECT_GT(popup.sizeHint().width(), narrow);
    popup.resize(popup.sizeHint());
    EXPECT_EQ(toolTipOf(popup), QString());
    popup.resize(popup.width() - 30, popup.height());
    EXPECT_EQ(toolTipOf(popup), toolTipMarkup(widest));
    popup.selectObject(u"7"_s);
    EXPECT_EQ(toolTipOf(popup), QString());
}

TEST_F(PopUpButtonTest, CutsAChoiceOfNoOrdinaryLength)
{
    popup.setItems({{QString(2000, u'W'), u"Long"_s}});
    const int letter = popup.fontMetrics().horizontalAdvance(u'X');
    EXPECT_GE(popup.sizeHint().width(), 60 * letter);
    EXPECT_LE(popup.sizeHint().width(), 66 * letter);
}

TEST_F(PopUpButtonTest, HasRoomForItsChoicesInALargerFont)
{
    popup.setItems({{u"A medium that takes more room than others"_s, u"Wide"_s}});
    const int before = popup.sizeHint().width();
    QFont font = popup.font();
    font.setPixelSize(36);
    popup.setFont(font);
    EXPECT_GT(popup.sizeHint().width(), 2 * before);
}

} // namespace
