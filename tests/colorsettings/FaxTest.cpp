#include "platform/toolkit/ControlColor.h"
#include "tests/colorsettings/PictureFixture.h"

using namespace Qt::StringLiterals;

namespace {

class FaxTest : public PictureTest
{
protected:
    void sendToFax(bool fax = true)
    {
        dialog.host->willChangePPDOptionKeyValue(u"VKOutput"_s, fax ? u"FAX"_s : u"Printer"_s);
        dialog.panel->restoreValuesAndReturnError(nullptr);
    }
};

} // namespace

TEST_F(FaxTest, ShowsTheGreyPlainPictureWhateverTheValues)
{
    dialog.setTicket(kEffectTicketKeys[0], u"20"_s);
    dialog.setTicket(kEffectTicketKeys[2], u"-20"_s);
    show();
    sendToFax();
    EXPECT_TRUE(showsGrey(125));
    sendToFax(false);
    EXPECT_FALSE(showsGrey(125));
}

TEST_F(FaxTest, DimsLabelsAndFields)
{
    show();
    sendToFax();
    for (const char *name :
         {"optionLabel", "colorMatchingLabel", "ditherLabel", "brightnessLabel", "redLabel",
          "brightnessField", "contrastField", "redField", "greenField", "blueField"})
        EXPECT_EQ(textColor(&dialog.part<QWidget>(name)), disabledControlTextColor()) << name;
    for (const char *name : {"ditherPopup", "brightnessField", "redSlider", "revertButton"})
        EXPECT_FALSE(dialog.part<QWidget>(name).isEnabled()) << name;
}

TEST_F(FaxTest, DimsLabelsAndFieldsOfAViewThatBindsNoColours)
{
    pictures.editView("bind.textColor", "unbound");
    show();
    sendToFax();
    for (const char *name : {"optionLabel", "colorMatchingLabel", "ditherLabel", "brightnessField",
                             "contrastField", "redField", "greenField", "blueField"})
        EXPECT_EQ(textColor(&dialog.part<QWidget>(name)), disabledControlTextColor()) << name;
}

TEST_F(FaxTest, LeavesTheStatesOfTheColourControlsAsTheyWere)
{
    show();
    sendToFax();
    EXPECT_EQ(dialog.content("VKOutput"), QVariant(false));
    EXPECT_EQ(dialog.content("VKColorMatching"), QVariant(true));
    EXPECT_EQ(dialog.content("VKMonoColor"), QVariant(true));
    EXPECT_EQ(dialog.content("VKColorEnhancement"), QVariant(true));
    EXPECT_EQ(dialog.content("Color"), QVariant(true));
    EXPECT_EQ(dialog.marked("VKColorEnhancement"), u"ON"_s);
}

TEST_F(FaxTest, ThePictureIsDrawnOffScreenToo)
{
    show();
    dialog.panel->shouldHide();
    sendToFax();
    EXPECT_TRUE(showsGrey(125));
}

TEST_F(FaxTest, BeforeTheViewIsLoadedItIsOnlyNoted)
{
    dialog.create();
    sendToFax();
    dialog.panel->updateUI();
    EXPECT_TRUE(dialog.hasFlag(FaxOutput));
    EXPECT_EQ(dialog.panel->loadedView(), nullptr);
}

TEST_F(FaxTest, APanelThatIsFirstShownForFaxIsDisabledAndGrey)
{
    dialog.host->willChangePPDOptionKeyValue(u"VKOutput"_s, u"FAX"_s);
    show();
    EXPECT_TRUE(showsGrey(125));
    EXPECT_FALSE(dialog.part<QWidget>("colorMatchingMatrix").isEnabled());
    EXPECT_FALSE(dialog.part<QWidget>("colorEnhanceButton").isEnabled());
    EXPECT_EQ(dialog.marked("VKColorEnhancement"), u"ON"_s);
}
