#include "colorsettings/EffectVal.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ImageView.h"
#include "tests/colorsettings/ColorPanelFixture.h"

#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace {

// Two dialogs that are open at the same time, with enhancement on.
class TwoDialogsTest : public ColorPanelTest
{
protected:
    TwoDialogsTest()
    {
        for (ColorDialog *dialog : {&first, &second}) {
            dialog->host->willChangePPDOptionKeyValue(u"VKColorEnhancement"_s, u"ON"_s);
            dialog->show();
        }
    }

    static int drawnBy(ColorDialog &dialog, double value)
    {
        const int before = dialog.panel->inspectedPicture()->imagesPut();
        dialog.part<FractionSlider>("redSlider").moveByUser(value);
        return dialog.panel->inspectedPicture()->imagesPut() - before;
    }

    ColorDialog first;
    ColorDialog second;
};

} // namespace

TEST_F(TwoDialogsTest, ShareTheRecordOfTheLastChange)
{
    EXPECT_EQ(drawnBy(first, 7), 1);
    EXPECT_EQ(drawnBy(second, 7), 0) << "the process has handled this change already";
    EXPECT_EQ(second.content("VKRed"), QVariant(7.0)) << "the value is there all the same";
    EXPECT_EQ(drawnBy(second, 8), 1);
    EXPECT_EQ(drawnBy(first, 7), 1);
}

TEST_F(TwoDialogsTest, AResetInOneForgetsTheLastChangeOfTheOther)
{
    EXPECT_EQ(drawnBy(first, 7), 1);
    second.part<QPushButton>("revertButton").click();
    EXPECT_EQ(EffectVal.code, -1);
    EXPECT_EQ(EffectVal.value, 0);
    EXPECT_EQ(drawnBy(first, 7), 1);
}

TEST_F(TwoDialogsTest, ANewDialogResetsTheRecord)
{
    EXPECT_EQ(drawnBy(first, 7), 1);
    ColorDialog third;
    third.create();
    EXPECT_EQ(EffectVal.code, -1);
    EXPECT_EQ(EffectVal.value, 0);
}

TEST_F(TwoDialogsTest, KeepTheirValuesApart)
{
    drawnBy(first, 7);
    drawnBy(second, -3);
    first.panel->saveValuesAndReturnError(nullptr);
    second.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(first.ticket(kEffectTicketKeys[2]), QVariant(u"7"_s));
    EXPECT_EQ(second.ticket(kEffectTicketKeys[2]), QVariant(u"-3"_s));
}
