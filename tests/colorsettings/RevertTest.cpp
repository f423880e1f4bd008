#include "colorsettings/EffectVal.h"
#include "platform/toolkit/NumberField.h"
#include "tests/colorsettings/PictureFixture.h"

#include <QtWidgets/QAbstractButton>

using namespace Qt::StringLiterals;

using RevertTest = PictureTest;

TEST_F(RevertTest, SwitchesEnhancementOffWithoutAskingTheHost)
{
    show();
    dialog.part<QAbstractButton>("revertButton").click();
    EXPECT_EQ(dialog.calls, QStringList());
    EXPECT_EQ(dialog.pending("VKColorEnhancement"), QVariant(u"OFF"_s));
    EXPECT_EQ(dialog.marked("VKColorEnhancement"), u"ON"_s);
    EXPECT_EQ(dialog.content("VKColorEnhancement"), QVariant(false));
    EXPECT_EQ(dialog.content("Color"), QVariant(false));
    EXPECT_FALSE(dialog.part<QAbstractButton>("colorEnhanceButton").isChecked());
    EXPECT_FALSE(dialog.part<QAbstractButton>("revertButton").isEnabled());
    EXPECT_FALSE(dialog.part<QWidget>("redSlider").isEnabled());
}

TEST_F(RevertTest, PutsTheSlidersBackToTheLastSavedValues)
{
    dialog.setTicket(kEffectTicketKeys[2], u"4"_s);
    show();
    slide("redSlider", 15);
    slide("contrastSlider", 9);
    dialog.panel->saveValuesAndReturnError(nullptr);
    slide("redSlider", -20);
    slide("brightnessSlider", 3);
    dialog.part<QAbstractButton>("revertButton").click();
    EXPECT_EQ(dialog.part<FractionSlider>("redSlider").doubleValue(), 15.0);
    EXPECT_EQ(dialog.part<NumberField>("redField").value(), 15);
    EXPECT_EQ(dialog.part<FractionSlider>("contrastSlider").doubleValue(), 9.0);
    EXPECT_EQ(dialog.part<FractionSlider>("brightnessSlider").doubleValue(), 0.0);
    EXPECT_EQ(dialog.content("VKRed"), QVariant(15LL));
}

TEST_F(RevertTest, ForgetsTheLastChangeAndDrawsTheReferencePicture)
{
    show();
    slide("redSlider", 20);
    dialog.part<QAbstractButton>("revertButton").click();
    EXPECT_EQ(EffectVal.code, -1);
    EXPECT_EQ(EffectVal.value, 0);
    EXPECT_EQ(shown(), QColor(100, 150, 200));
}

TEST_F(RevertTest, LeavesNoGainBehindInTheFilters)
{
    show();
    slide("redSlider", 20);
    dialog.part<QAbstractButton>("revertButton").click();
    // Were the gain still set, a change of brightness would bring it out.
    slide("brightnessSlider", 20);
    EXPECT_EQ(shown(), QColor(100, 150, 200));
}

TEST_F(RevertTest, WorksOffScreenToo)
{
    show();
    slide("redSlider", 20);
    dialog.panel->shouldHide();
    dialog.panel->revertEffectDialog(nullptr);
    EXPECT_EQ(shown(), QColor(100, 150, 200));
}

using ChangeTest = PictureTest;

TEST_F(ChangeTest, ATagBeyondTheFiveIsRecordedAndDrawsNothing)
{
    show();
    QWidget parent;
    FractionSlider stray(&parent);
    stray.setRange(-2000, 2000);
    stray.setProperty("tag", 5);
    stray.setDoubleValue(3);
    const int before = view().imagesPut();
    dialog.panel->effectValueDidChange(&stray);
    EXPECT_EQ(view().imagesPut(), before);
    EXPECT_EQ(EffectVal.code, 5);
    EXPECT_EQ(EffectVal.value, 3);
}

TEST_F(ChangeTest, ANegativeTagTakesUpBrightnessAndContrastTogether)
{
    show();
    dialog.setTicket(kEffectTicketKeys[0], u"20"_s);
    dialog.setTicket(kEffectTicketKeys[1], u"20"_s);
    dialog.panel->restoreEffectValues();
    FractionSlider stray;
    stray.setProperty("tag", -3);
    dialog.panel->effectValueDidChange(&stray);
    EXPECT_EQ(EffectVal.code, -3);
    EXPECT_EQ(shown(), QColor(122, 168, 218));
    EXPECT_EQ(dialog.content("VKBrightness").typeId(), QMetaType::LongLong);
}
