#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/NumberField.h"

#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>
#include <QtWidgets/QVBoxLayout>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// A window with a slider and a field from -20 to 20, and something else that can have the focus.
class NumberControlsTest : public testing::Test
{
protected:
    NumberControlsTest()
    {
        auto *layout = new QVBoxLayout(&window);
        for (QWidget *control : {static_cast<QWidget *>(slider), static_cast<QWidget *>(field),
                                 static_cast<QWidget *>(elsewhere)})
            layout->addWidget(control);
        slider->setLimit(20);
        field->setLimit(20);
        window.resize(400, 120);
        window.show();
        window.activateWindow();
    }

    void focus(QWidget *control)
    {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        control->setFocus();
        ASSERT_TRUE(control->hasFocus());
    }

    static void turnWheelUp(QWidget *control)
    {
        const QPointF centre = control->rect().center();
        QWheelEvent event(centre, control->mapToGlobal(centre), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(control, &event);
    }

    QWidget window;
    FractionSlider *slider = new FractionSlider;
    NumberField *field = new NumberField;
    QLineEdit *elsewhere = new QLineEdit;
};

TEST_F(NumberControlsTest, AFieldRunsFromMinusItsLimitToIt)
{
    EXPECT_EQ(field->property("limit").toInt(), 20);
    EXPECT_EQ(field->minimum(), -20);
    EXPECT_EQ(field->maximum(), 20);
}

TEST_F(NumberControlsTest, ASliderHasTicksAtItsEndsAndInTheMiddle)
{
    EXPECT_EQ(slider->limit(), 20);
    EXPECT_EQ(slider->maximum(), -slider->minimum());
    EXPECT_EQ(slider->tickInterval(), slider->maximum());
    EXPECT_EQ(slider->tickPosition(), QSlider::TicksBelow);
}

struct SetCase
{
    const char *behaviour;
    double set;
    double sliderValue;
    int knob;
    int fieldValue;
};

class SetNumber : public NumberControlsTest, public testing::WithParamInterface<SetCase>
{};

const SetCase kSetCases[] = {
    {"Whole", 7, 7, 700, 7},
    {"FractionIsCutTowardZeroInTheField", 7.9, 7.9, 790, 7},
    {"NegativeFraction", -7.9, -7.9, -790, -7},
    {"FinerThanTheKnob", 0.123, 0.123, 12, 0},
    {"AboveTheRange", 33.5, 33.5, 2000, 20},
    {"BelowTheRange", -33.5, -33.5, -2000, -20},
    {"FarOutside", 1e300, 1e300, 2000, 20},
    {"Infinite", -std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
     -2000, -20},
};

TEST_P(SetNumber, ShowsItWithoutTellingAnybody)
{
    QSignalSpy moves(slider, &FractionSlider::movedByUser);
    QSignalSpy edits(field, &NumberField::editedByUser);
    slider->setDoubleValue(GetParam().set);
    field->setDoubleValue(GetParam().set);
    EXPECT_EQ(slider->doubleValue(), GetParam().sliderValue);
    EXPECT_EQ(slider->value(), GetParam().knob);
    EXPECT_EQ(field->value(), GetParam().fieldValue);
    EXPECT_TRUE(moves.isEmpty());
    EXPECT_TRUE(edits.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Cases, SetNumber, testing::ValuesIn(kSetCases), CaseName());

TEST_F(NumberControlsTest, ShowNoNumberAsZero)
{
    slider->setDoubleValue(5);
    field->setDoubleValue(5);
    slider->setDoubleValue(std::numeric_limits<double>::quiet_NaN());
    field->setDoubleValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(slider->value(), 0);
    EXPECT_EQ(field->value(), 0);
}

struct KeyCase
{
    const char *behaviour;
    Qt::Key key;
    double value;
};

class SliderKey : public NumberControlsTest, public testing::WithParamInterface<KeyCase>
{};

const KeyCase kKeyCases[] = {
    {"RightIsOneMore", Qt::Key_Right, 3.5},
    {"LeftIsOneLess", Qt::Key_Left, 1.5},
    {"UpIsOneMore", Qt::Key_Up, 3.5},
    {"PageUpIsFiveMore", Qt::Key_PageUp, 7.5},
    {"PageDownIsFiveLess", Qt::Key_PageDown, -2.5},
    {"HomeIsTheSmallest", Qt::Key_Home, -20},
    {"EndIsTheLargest", Qt::Key_End, 20},
};

TEST_P(SliderKey, MovesTheSlider)
{
    focus(slider);
    slider->setDoubleValue(2.5);
    QSignalSpy moves(slider, &FractionSlider::movedByUser);
    QTest::keyClick(slider, GetParam().key);
    EXPECT_EQ(slider->doubleValue(), GetParam().value);
    EXPECT_EQ(moves.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Cases, SliderKey, testing::ValuesIn(kKeyCases), CaseName());

TEST_F(NumberControlsTest, SliderFollowsTheMouse)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.minimum = -2000;
    option.maximum = 2000;
    option.sliderPosition = option.sliderValue = 0;
    option.orientation = Qt::Horizontal;
    const QRect knob = slider->style()->subControlRect(QStyle::CC_Slider, &option,
                                                       QStyle::SC_SliderHandle, slider);
    QSignalSpy moves(slider, &FractionSlider::movedByUser);
    QTest::mousePress(slider, Qt::LeftButton, {}, knob.center());
    QTest::mouseMove(slider, QPoint(slider->width() + 50, knob.center().y()));
    QTest::mouseRelease(slider, Qt::LeftButton, {},
                        QPoint(slider->width() + 50, knob.center().y()));
    EXPECT_EQ(slider->doubleValue(), 20);
    EXPECT_FALSE(moves.isEmpty());
}

TEST_F(NumberControlsTest, SliderCanBeMovedAsAUserDoesAlsoToTheSameValue)
{
    QSignalSpy moves(slider, &FractionSlider::movedByUser);
    slider->moveByUser(-3.25);
    slider->moveByUser(-3.25);
    EXPECT_EQ(moves.size(), 2);
    EXPECT_EQ(slider->doubleValue(), -3.25);
    EXPECT_EQ(slider->value(), -325);
}

TEST_F(NumberControlsTest, SliderCanBePutElsewhereByWhoHearsOfAMove)
{
    focus(slider);
    QObject::connect(slider, &FractionSlider::movedByUser, slider,
                     [this] { slider->setDoubleValue(std::trunc(slider->doubleValue())); });
    slider->setDoubleValue(2.5);
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(slider->doubleValue(), 3);
    EXPECT_EQ(slider->value(), 300);
}

TEST_F(NumberControlsTest, TakeTheWheelOnlyWhileTheyHaveTheFocus)
{
    focus(elsewhere);
    turnWheelUp(slider);
    turnWheelUp(field);
    EXPECT_EQ(slider->doubleValue(), 0);
    EXPECT_EQ(field->value(), 0);
    EXPECT_TRUE(elsewhere->hasFocus());
    focus(slider);
    turnWheelUp(slider);
    EXPECT_GT(slider->doubleValue(), 0);
    focus(field);
    turnWheelUp(field);
    EXPECT_EQ(field->value(), 1);
}

struct TypeCase
{
    const char *behaviour;
    QString typed;
    int value;
    int edits;
};

class Typing : public NumberControlsTest, public testing::WithParamInterface<TypeCase>
{};

const TypeCase kTypeCases[] = {
    {"TwoDigitsAreOneEdit", u"12"_s, 12, 1},
    {"Negative", u"-7"_s, -7, 1},
    {"ADigitTooManyDoesNotEnter", u"123"_s, 12, 1},
    {"LettersDoNotEnter", u"a5b"_s, 5, 1},
    {"OutsideTheRangeTheSecondDigitDoesNotEnter", u"30"_s, 3, 1},
    {"FractionsDoNotEnter", u"1.5"_s, 15, 1},
    {"TheSameNumberIsNoEdit", u"4"_s, 4, 0},
    {"NothingAtAllIsNoEdit", u""_s, 4, 0},
};

TEST_P(Typing, CountsWhenReturnIsPressed)
{
    focus(field);
    field->setDoubleValue(4);
    QSignalSpy edits(field, &NumberField::editedByUser);
    field->selectAll();
    QTest::keyClicks(field, GetParam().typed);
    EXPECT_TRUE(edits.isEmpty());
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(field->value(), GetParam().value);
    EXPECT_EQ(edits.size(), GetParam().edits);
}

INSTANTIATE_TEST_SUITE_P(Cases, Typing, testing::ValuesIn(kTypeCases), CaseName());

TEST_F(NumberControlsTest, TypedNumberCountsWhenTheFieldIsLeft)
{
    focus(field);
    QSignalSpy edits(field, &NumberField::editedByUser);
    field->selectAll();
    QTest::keyClicks(field, u"12"_s);
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_TRUE(elsewhere->hasFocus());
    EXPECT_EQ(field->value(), 12);
    EXPECT_EQ(edits.size(), 1);
}

TEST_F(NumberControlsTest, ArrowKeysAreEditsUpToTheEndOfTheRange)
{
    focus(field);
    field->setDoubleValue(19);
    QSignalSpy edits(field, &NumberField::editedByUser);
    for (int time = 0; time < 3; ++time)
        QTest::keyClick(field, Qt::Key_Up);
    EXPECT_EQ(field->value(), 20);
    EXPECT_EQ(edits.size(), 1);
}

} // namespace
