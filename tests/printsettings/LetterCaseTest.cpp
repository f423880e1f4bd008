#include "tests/printsettings/PrintPanel.h"

#include "platform/toolkit/ImageView.h"

using namespace Qt::StringLiterals;

namespace {

/// The sample printer with names of its PPD in other letters.
class OtherLetters : public PrintPanelTest
{
protected:
    void useSpelling(const QByteArray &name, const QByteArray &spelling)
    {
        QByteArray text = sampleText(u"velkaro-px-t900"_s);
        ASSERT_TRUE(text.contains(name));
        usePrinter(openText(text.replace(name, spelling)));
    }
};

TEST_F(OtherLetters, OfAKeywordLeaveItsControlAsItIs)
{
    useSpelling("VKMediaType", "vkmediatype");
    show();
    EXPECT_TRUE(panel->supportedPPDOptionKeys()->contains(u"VKMediaType"_s));
    pickChoice(popup(u"mediaTypePopup"_s), u"Glossy"_s);
    EXPECT_EQ(panel->pending(), u"Glossy/Photo"_s);
    EXPECT_EQ(session->marked(u"vkmediatype"_s), u"Glossy"_s);
    const QVariantMap summary = panel->summaryInfo();
    EXPECT_EQ(summary.value(u"Media Type"_s), u"Other Glossy Paper"_s);
}

TEST_F(OtherLetters, OfTheOutputKeywordStillMeanFax)
{
    useSpelling("VKOutput", "vkoutput");
    open();
    session->mark(u"vkoutput"_s, u"FAX"_s);
    EXPECT_TRUE(panel->checkIfOutputToFax());
    panel->checkFax();
    EXPECT_TRUE(panel->hasFlag(FaxOutput));
}

TEST_F(OtherLetters, OfTheTwoSidedMediumAreFoundAndRecordedAsThePPDSpellsThem)
{
    useSpelling("PlainDuplex", "plainduplex");
    open();
    ppdMarkOption(session->ppd(), "Duplex", "DuplexNoTumble");
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_TRUE(panel->hasFlag(DuplexOn));
    EXPECT_EQ(session->marked(u"VKMediaType"_s), u"plainduplex"_s);
    EXPECT_EQ(pending(u"VKMediaType"_s), u"PlainDuplex"_s) << "what the panel offered";
}

TEST_F(OtherLetters, OfTheTrayForEnvelopesAreFound)
{
    useSpelling("MPTray", "mptray");
    show();
    panel->readyToShowEnvelopeAlert();
    const auto *picture = qobject_cast<ImageView *>(panel->outlet(u"envAlertImageView"_s));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->imageName(), u"QTLark22_Tray_Env"_s);
}

TEST_F(OtherLetters, OfTheSecondTrayAreFound)
{
    useSpelling("Tray2/", "TRAY2/");
    show();
    pickChoice(popup(u"mediaTypePopup"_s), u"Glossy"_s);
    auto *feed = popup(u"paperFeedPopup"_s);
    EXPECT_FALSE(feed->isItemEnabled(feed->indexOfRepresentedObject(u"TRAY2"_s)));
}

// libcups marks such a default, and says all the same that the name that it has is not marked.
TEST_F(OtherLetters, OfADefaultAreAnotherChoiceThanTheMarkedOne)
{
    useSpelling("*DefaultDuplex: None", "*DefaultDuplex: NONE");
    open();
    ASSERT_EQ(session->marked(u"Duplex"_s), u"None"_s);
    panel->checkDuplex();
    EXPECT_TRUE(panel->hasFlag(DuplexOn));
}

} // namespace
