#include "colorsettings/EffectVal.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/NumberField.h"
#include "tests/colorsettings/ColorPanelFixture.h"

#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

using namespace Qt::StringLiterals;

namespace {

// An unfolded panel with enhancement on.
class SlidersTest : public ColorPanelTest
{
protected:
    SlidersTest()
    {
        dialog.host->willChangePPDOptionKeyValue(u"VKColorEnhancement"_s, u"ON"_s);
        dialog.setTicket("com.velkaro.print.PrintSettings.advancedcolorItem", true);
        dialog.show();
    }

    FractionSlider &slider(const char *name) { return dialog.part<FractionSlider>(name); }

    NumberField &focused(const char *name)
    {
        auto &field = dialog.part<NumberField>(name);
        field.setFocus();
        EXPECT_TRUE(field.hasFocus());
        field.selectAll();
        return field;
    }

    static void turnWheel(QWidget &widget, int notches)
    {
        const QPointF middle = QRectF(widget.rect()).center();
        QWheelEvent wheel(middle, widget.mapToGlobal(middle), QPoint(), QPoint(0, 120 * notches),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &wheel);
    }

    int drawn() { return dialog.panel->inspectedPicture()->imagesPut(); }

    void save() { dialog.panel->saveValuesAndReturnError(nullptr); }

    ColorDialog dialog;
};

} // namespace

TEST_F(SlidersTest, AFractionIsSavedCutTowardZero)
{
    slider("brightnessSlider").moveByUser(7.6);
    slider("redSlider").moveByUser(-7.6);
    save();
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[0]), QVariant(u"7"_s));
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[2]), QVariant(u"-7"_s));
    EXPECT_EQ(dialog.pending("VKRed"), QVariant(-7LL));
    EXPECT_EQ(dialog.calls, QStringList()) << "the values are not marked in the PPD";
}

TEST_F(SlidersTest, TheWholeNumberIsPutBackOnTheSliderAndTheField)
{
    slider("contrastSlider").moveByUser(7.6);
    EXPECT_EQ(dialog.content("VKContrast"), QVariant(7.0F));
    EXPECT_EQ(dialog.content("VKContrast").typeId(), QMetaType::Float);
    EXPECT_EQ(slider("contrastSlider").doubleValue(), 7.0);
    EXPECT_EQ(dialog.part<NumberField>("contrastField").value(), 7);

    slider("blueSlider").moveByUser(-7.6);
    EXPECT_EQ(dialog.content("VKBlue"), QVariant(-7LL));
    EXPECT_EQ(dialog.content("VKBlue").typeId(), QMetaType::LongLong);
    EXPECT_EQ(slider("blueSlider").doubleValue(), -7.0);
    EXPECT_EQ(dialog.part<NumberField>("blueField").value(), -7);
}

TEST_F(SlidersTest, TheSameWholeValueAgainIsNotDrawnAgain)
{
    slider("brightnessSlider").moveByUser(7);
    const int before = drawn();
    slider("brightnessSlider").moveByUser(7.0);
    EXPECT_EQ(drawn(), before);
    slider("brightnessSlider").moveByUser(7.4);
    EXPECT_EQ(drawn(), before + 1) << "7.4 is not 7";
    EXPECT_EQ(EffectVal.code, 0);
    EXPECT_EQ(EffectVal.value, 7);
}

TEST_F(SlidersTest, EachSliderAndFieldHasTheTagOfItsValue)
{
    const std::pair<const char *, const char *> pairs[] = {
        {"brightnessSlider", "brightnessField"},
        {"contrastSlider", "contrastField"},
        {"redSlider", "redField"},
        {"greenSlider", "greenField"},
        {"blueSlider", "blueField"},
    };
    for (int tag = 0; tag < 5; ++tag) {
        const auto [sliderName, fieldName] = pairs[tag];
        slider(sliderName).moveByUser(3);
        EXPECT_EQ(EffectVal.code, tag);
        EXPECT_EQ(EffectVal.value, 3);
        QTest::keyClick(&focused(fieldName), Qt::Key_Up);
        EXPECT_EQ(EffectVal.code, tag);
        EXPECT_EQ(EffectVal.value, 4);
        EXPECT_EQ(slider(sliderName).doubleValue(), 4.0);
    }
}

TEST_F(SlidersTest, ASliderTakesArrowKeysAndThePointer)
{
    auto &red = slider("redSlider");
    red.setFocus();
    QTest::keyClick(&red, Qt::Key_Right);
    EXPECT_EQ(dialog.content("VKRed"), QVariant(1LL));
    QTest::keyClick(&red, Qt::Key_Home);
    EXPECT_EQ(dialog.content("VKRed"), QVariant(-20LL));
    QTest::keyClick(&red, Qt::Key_End);
    QTest::keyClick(&red, Qt::Key_Right);
    EXPECT_EQ(dialog.content("VKRed"), QVariant(20LL));

    const QPoint middle = red.rect().center();
    QTest::keyClick(&red, Qt::Key_Home);
    const QPoint knob(4, middle.y());
    QTest::mousePress(&red, Qt::LeftButton, {}, knob);
    QTest::mouseMove(&red, middle);
    QTest::mouseRelease(&red, Qt::LeftButton, {}, middle);
    const double value = dialog.content("VKRed").toDouble();
    EXPECT_GT(value, -20.0);
    EXPECT_LT(value, 20.0);
    EXPECT_EQ(value, static_cast<int>(value)) << "whole, wherever the pointer let go";
}

TEST_F(SlidersTest, AFieldTakesTypingWhenTheNumberIsComplete)
{
    auto &field = focused("greenField");
    QTest::keyClicks(&field, u"-12"_s);
    EXPECT_EQ(dialog.content("VKGreen"), QVariant(0LL)) << "not after each digit";
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(dialog.content("VKGreen"), QVariant(-12LL));
    EXPECT_EQ(slider("greenSlider").doubleValue(), -12.0);
    save();
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[3]), QVariant(u"-12"_s));
}

TEST_F(SlidersTest, AFieldTakesTypingWhenItIsLeft)
{
    QTest::keyClicks(&focused("greenField"), u"5"_s);
    focused("blueField");
    EXPECT_EQ(dialog.content("VKGreen"), QVariant(5LL));
}

TEST_F(SlidersTest, AFieldTakesArrowKeysAndTheWheelWhileItHasTheFocus)
{
    auto &field = focused("redField");
    QTest::keyClick(&field, Qt::Key_Up);
    QTest::keyClick(&field, Qt::Key_Up);
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(dialog.content("VKRed"), QVariant(1LL));
    turnWheel(field, 2);
    EXPECT_EQ(dialog.content("VKRed"), QVariant(3LL));
    EXPECT_EQ(slider("redSlider").doubleValue(), 3.0);

    auto &other = dialog.part<NumberField>("blueField");
    turnWheel(other, 2);
    EXPECT_EQ(dialog.content("VKBlue"), QVariant(0LL)) << "the wheel only passes over it";
}

TEST_F(SlidersTest, AFieldRefusesTextThatIsNoNumberAndKeepsToTheRange)
{
    auto &field = focused("redField");
    QTest::keyClicks(&field, u"a<b>7.,e"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(dialog.content("VKRed"), QVariant(7LL)) << "only the digit got in";

    focused("redField");
    QTest::keyClicks(&field, u"99"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(dialog.content("VKRed"), QVariant(9LL)) << "a second 9 would leave the range";

    focused("redField");
    QTest::keyClicks(&field, u"20"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(dialog.content("VKRed"), QVariant(20LL));
}

TEST_F(SlidersTest, ASummaryDiscardsWhatWasNotSavedYet)
{
    slider("redSlider").moveByUser(9);
    dialog.panel->summaryInfo();
    EXPECT_EQ(dialog.content("VKRed"), QVariant(0LL));
    EXPECT_EQ(slider("redSlider").doubleValue(), 0.0);
}

TEST_F(SlidersTest, ARestoreKeepsWhatWasSaved)
{
    slider("redSlider").moveByUser(9);
    save();
    dialog.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(slider("redSlider").doubleValue(), 9.0);
}

TEST_F(SlidersTest, APickSavesTheValuesToo)
{
    slider("redSlider").moveByUser(9);
    dialog.part<QAbstractButton>("colorEnhanceButton").click();
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[2]), QVariant(u"9"_s));
}

TEST_F(SlidersTest, AFieldThatStillHoldsTypedTextWhenTheDialogGoesIsHarmless)
{
    QTest::keyClicks(&focused("redField"), u"8"_s);
    dialog.panel->loadedView()->setParent(nullptr);
    dialog.panel->loadedView()->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.panel->loadedView()));
    QTest::keyClicks(&focused("redField"), u"8"_s);
    dialog.panel.reset();
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[2]), QVariant(u"0"_s));
}
