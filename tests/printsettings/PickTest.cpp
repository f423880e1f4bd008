#include "platform/foundation/UserDefaults.h"
#include "tests/printsettings/PrintPanel.h"

#include <QtCore/QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class Picks : public PrintPanelTest
{
protected:
    void SetUp() override { show(); }

    void pick(const QString &control, const QString &choice)
    {
        pickChoice(panel->outlet(control), choice);
    }
};

// --- Medium --------------------------------------------------------------------------------------

// The first quality of the new list is committed by the read-back, then the medium's default.
TEST_F(Picks, AMediumBringsItsQualitiesAndItsDefault)
{
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=Glossy"_s, u"VKResolution=Fast"_s, u"natural YES"_s,
                                  u"natural YES"_s, u"VKResolution=Photo"_s, u"VKBiDir=OFF"_s}));
    EXPECT_EQ(panel->pending(), u"Glossy/Photo"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"Fast Photo* Best"_s);
    EXPECT_EQ(stateOf(box(u"biDirButton"_s)), u"off disabled"_s);
    EXPECT_EQ(session->marked(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(session->marked(u"VKResolution"_s), u"Photo"_s);
}

TEST_F(Picks, PlainPaperAgainBringsEverythingBack)
{
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    log();
    pick(u"mediaTypePopup"_s, u"Plain"_s);
    EXPECT_EQ(log(),
              QStringList({u"VKMediaType=Plain"_s, u"VKResolution=PlainFast"_s, u"natural NO"_s,
                           u"natural NO"_s, u"VKResolution=PlainNormal"_s, u"VKBiDir=ON"_s}));
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"PlainFast PlainNormal* High Best"_s);
    EXPECT_EQ(stateOf(box(u"biDirButton"_s)), u"on"_s);
}

TEST_F(Picks, AddressSideTurnsSlowDryingOn)
{
    pick(u"mediaTypePopup"_s, u"HagakiAtena"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=HagakiAtena"_s, u"VKResolution=PlainFast"_s,
                                  u"natural YES"_s, u"natural NO"_s, u"VKResolution=PlainNormal"_s,
                                  u"VKSlowDrying=ON"_s}));
    EXPECT_EQ(stateOf(box(u"slowDryButton"_s)), u"on"_s);
}

TEST_F(Picks, ARefusedMediumIsPutBackWithItsDefaultQuality)
{
    pick(u"resolutionPopup"_s, u"High"_s);
    log();
    session->host()->setRefused({u"VKMediaType"_s});
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    EXPECT_EQ(log(),
              QStringList({u"VKMediaType=Glossy refused"_s, u"natural NO"_s, u"natural NO"_s,
                           u"VKResolution=PlainNormal"_s, u"natural NO"_s, u"natural NO"_s}));
    EXPECT_EQ(popup(u"mediaTypePopup"_s)->selectedObject(), u"Plain"_s);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"PlainFast PlainNormal* High Best"_s);
}

// The default of a glossy disc is none of its qualities: it is offered, then what the pop-up shows.
TEST_F(Picks, ARefusedMediumOnAGlossyDiscOffersTheDefaultAndThenTheQualityShown)
{
    session->changePaper(u"120x120mm"_s);
    pick(u"mediaTypePopup"_s, u"GlossyPrintableDisc"_s);
    log();
    session->host()->setRefused({u"VKMediaType"_s});
    pick(u"mediaTypePopup"_s, u"PrintableDisc"_s);
    EXPECT_EQ(log(),
              QStringList({u"VKMediaType=PrintableDisc refused"_s, u"natural YES"_s,
                           u"natural YES"_s, u"VKResolution=Photo"_s, u"VKResolution=DiscNormal"_s,
                           u"natural YES"_s, u"natural YES"_s}));
    EXPECT_EQ(panel->pending(), u"GlossyPrintableDisc/DiscNormal"_s);
}

// --- Quality and its alert -----------------------------------------------------------------------

TEST_F(Picks, TheBestQualityOfPlainPaperRaisesNoAlert)
{
    pick(u"resolutionPopup"_s, u"Best"_s);
    EXPECT_EQ(log(), QStringList({u"VKResolution=Best"_s, u"VKBiDir=OFF"_s}));
    EXPECT_TRUE(session->alerts().take().empty());
}

TEST_F(Picks, TheBestQualityOfPhotoPaperRaisesASheetAndStaysSelected)
{
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    session->alerts().expect();
    pick(u"resolutionPopup"_s, u"Best"_s);
    const auto alerts = session->alerts().take();
    ASSERT_EQ(alerts.size(), 1u);
    EXPECT_EQ(alerts[0].kind, ShownAlert::Kind::Sheet);
    const AlertContent &content = alerts[0].content;
    EXPECT_EQ(content.style, AlertStyle::Informational);
    EXPECT_EQ(content.text, u"Best Alert"_s);
    EXPECT_EQ(content.informative, u"Highest Alert2"_s);
    EXPECT_EQ(content.buttons, QStringList({u"OK"_s}));
    EXPECT_TRUE(content.suppression);
    EXPECT_EQ(content.suppressionTitle, u"Suppression"_s);
    EXPECT_EQ(panel->pending(), u"Glossy/Best"_s);
}

TEST_F(Picks, TheBestQualityAlertComesAgainUntilItIsSuppressed)
{
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    for (const bool suppress : {false, true}) {
        session->alerts().expect(AlertAnswers::button(0, suppress));
        pick(u"resolutionPopup"_s, u"Best"_s);
        EXPECT_EQ(session->alerts().take().size(), 1u);
        pick(u"resolutionPopup"_s, u"Photo"_s);
    }
    pick(u"resolutionPopup"_s, u"Best"_s);
    EXPECT_TRUE(session->alerts().take().empty());
}

TEST_F(Picks, ARefusedBestQualityRaisesNoAlert)
{
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    session->host()->setRefused({u"VKResolution=Best"_s});
    pick(u"resolutionPopup"_s, u"Best"_s);
    EXPECT_TRUE(session->alerts().take().empty());
    EXPECT_EQ(popup(u"resolutionPopup"_s)->selectedObject(), u"Photo"_s);
}

TEST_F(Picks, AQualityMakesJpegPrintingSelectable)
{
    panel->setFlag(JpegUnavailable, true);
    pick(u"resolutionPopup"_s, u"High"_s);
    EXPECT_FALSE(panel->hasFlag(JpegUnavailable));
}

// A panel that is dropped while its sheet is open must not be called any more.
TEST_F(Picks, TheSheetMayOutliveThePanel)
{
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    session->alerts().expect(AlertAnswers::button(0, true));
    pick(u"resolutionPopup"_s, u"Best"_s);
    panel.reset();
    EXPECT_EQ(session->alerts().take().size(), 1u);
    EXPECT_TRUE(UserDefaults::standardUserDefaults()
                    .persistentDomainForName(u"com.velkaro.print.pde"_s)
                    .isEmpty());
}

TEST_F(Picks, TheSuppressionLastsFromRunToRun)
{
    const QTemporaryDir folder;
    UserDefaults::standardUserDefaults().setFolder(folder.path());
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    session->alerts().expect(AlertAnswers::button(0, true));
    pick(u"resolutionPopup"_s, u"Best"_s);
    session->alerts().take();

    useSample(u"velkaro-px-t900"_s);
    UserDefaults::standardUserDefaults().setFolder(folder.path());
    show();
    EXPECT_FALSE(panel->shouldShowAlert(u"Best Alert"_s));
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    pick(u"resolutionPopup"_s, u"Best"_s);
    EXPECT_TRUE(session->alerts().take().empty());
    UserDefaults::standardUserDefaults().setFolder(QString());
}

// --- Feed, colour --------------------------------------------------------------------------------

TEST_F(Picks, APaperFeedOnBorderlessPaperKeepsTransparenciesDisabled)
{
    PopUpButton *media = popup(u"mediaTypePopup"_s);
    const int transparencies = media->indexOfRepresentedObject(u"Transparencies"_s);
    panel->setFlag(TransparenciesMedium, true);
    pick(u"paperFeedPopup"_s, u"MPTray"_s);
    EXPECT_TRUE(media->isItemEnabled(transparencies));
    EXPECT_TRUE(panel->hasFlag(TransparenciesMedium));
    panel->setFlag(BorderlessPaper, true);
    pick(u"paperFeedPopup"_s, u"AutoSelect"_s);
    EXPECT_FALSE(media->isItemEnabled(transparencies));
    EXPECT_FALSE(panel->hasFlag(TransparenciesMedium));
    EXPECT_EQ(log(), QStringList({u"VKInputSlot=MPTray"_s, u"VKInputSlot=AutoSelect"_s}));
}

TEST_F(Picks, AColorModeIsPostedAtTheRefreshAndAfterThePick)
{
    pick(u"monoColorPopup"_s, u"Mono"_s);
    EXPECT_EQ(log(), QStringList({u"VKMonoColor=Mono"_s, u"mono YES"_s, u"mono YES"_s}));
    EXPECT_TRUE(panel->hasFlag(MonoColorMode));
}

TEST_F(Picks, ARefusedColorModeIsPostedAsItWas)
{
    session->host()->setRefused({u"VKMonoColor"_s});
    pick(u"monoColorPopup"_s, u"Mono"_s);
    EXPECT_EQ(log(), QStringList({u"VKMonoColor=Mono refused"_s, u"mono NO"_s, u"mono NO"_s}));
    EXPECT_EQ(popup(u"monoColorPopup"_s)->selectedObject(), u"Color"_s);
}

// --- Thickness -----------------------------------------------------------------------------------

TEST_F(Picks, AThicknessOnPlainPaperTurnsTheDirectionOn)
{
    clickBox(box(u"biDirButton"_s), false);
    log();
    pick(u"paperThickPopup"_s, u"Thick"_s);
    EXPECT_EQ(log(), QStringList({u"VKColorPaperThick=Thick"_s, u"VKBiDir=ON"_s}));
    EXPECT_EQ(stateOf(box(u"biDirButton"_s)), u"on"_s);
}

TEST_F(Picks, AThicknessOnAnotherMediumLeavesTheDirectionAlone)
{
    pick(u"mediaTypePopup"_s, u"Glossy"_s);
    pick(u"resolutionPopup"_s, u"Fast"_s);
    for (const bool on : {true, false}) {
        clickBox(box(u"biDirButton"_s), on);
        log();
        pick(u"paperThickPopup"_s, on ? u"Thick"_s : u"Regular"_s);
        EXPECT_EQ(log().size(), 1);
        EXPECT_EQ(pending(u"VKBiDir"_s), on ? u"ON"_s : u"OFF"_s);
    }
}

TEST_F(Picks, AnEnvelopesThicknessOnACustomPaperTurnsTheDirectionOff)
{
    session->changePaper(u"Custom.300x400"_s, {}, {300, 400});
    log();
    pick(u"paperThickPopup"_s, u"Env"_s);
    EXPECT_EQ(log(), QStringList({u"VKColorPaperThick=Env"_s, u"VKBiDir=OFF"_s}));
    EXPECT_EQ(stateOf(box(u"biDirButton"_s)), u"off disabled"_s);
    EXPECT_TRUE(panel->hasFlag(EnvelopePaper));
    EXPECT_TRUE(panel->hasFlag(BiDirLeftAlone));
    pick(u"paperThickPopup"_s, u"Regular"_s);
    EXPECT_EQ(log(), QStringList({u"VKColorPaperThick=Regular"_s, u"VKBiDir=ON"_s}));
    EXPECT_EQ(stateOf(box(u"biDirButton"_s)), u"on"_s);
}

// What the steps cause on their way: "ON" by the thickness, "OFF" by the read-back after it.
TEST_F(Picks, AThicknessAtTheBestQualityMarksTheDirectionOnAndTheNextReadBackOff)
{
    pick(u"resolutionPopup"_s, u"Best"_s);
    log();
    pick(u"paperThickPopup"_s, u"Thick"_s);
    EXPECT_EQ(log(), QStringList({u"VKColorPaperThick=Thick"_s, u"VKBiDir=ON"_s}));
    panel->saveAllValues();
    EXPECT_EQ(log(), QStringList({u"VKBiDir=OFF"_s}));
}

// --- Others --------------------------------------------------------------------------------------

TEST_F(Picks, OtherKeywordsBringNothingElse)
{
    pick(u"jpegPopup"_s, u"Fine"_s);
    pick(u"duplexPopup"_s, u"Fast"_s);
    clickBox(box(u"reverseButton"_s), true);
    clickBox(box(u"mirrorButton"_s), true);
    EXPECT_EQ(log(), QStringList({u"VKJpeg=Fine"_s, u"VKDuplexMode=Fast"_s, u"VKReverse=ON"_s,
                                  u"VKMirror=ON"_s}));
}

TEST_F(PrintPanelTest, APickOfNothingBeforeTheViewIsLoadedDoesNothing)
{
    open();
    panel->requestNewOutputBin(nullptr);
    EXPECT_EQ(log(), QStringList());
}

} // namespace
