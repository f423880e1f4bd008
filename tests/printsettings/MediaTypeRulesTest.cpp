#include "tests/printsettings/MediaTable.h"
#include "tests/printsettings/PrintPanel.h"
#include "tests/support/PPDSource.h"

using namespace Qt::StringLiterals;

namespace {

const QString kMedium = u"VKMediaType"_s;
const QString kQuality = u"VKResolution"_s;

// --- Allowed and default qualities ---------------------------------------------------------------

class AllowedQuality : public PrintPanelTest, public testing::WithParamInterface<MediumRow>
{
protected:
    void SetUp() override { open(); }

    void expectAllowed(bool disc, bool duplex, const QString &qualities, const QString &replacement)
    {
        panel->setFlag(DiscPaper, disc);
        panel->setFlag(DuplexOn, duplex);
        panel->recordPendingValue(kMedium, u"Somewhere"_s);
        panel->recordPendingValue(kQuality, u"Something"_s);
        EXPECT_EQ(panel->allowedQuality(GetParam().medium).join(u' '), qualities);
        if (replacement.isNull()) {
            EXPECT_EQ(panel->pending(), u"Somewhere/Something"_s);
            EXPECT_EQ(log(), QStringList());
            return;
        }
        const QString quality = replacement == "Plain"_L1 ? u"PlainNormal"_s : u"DiscNormal"_s;
        EXPECT_EQ(panel->pending(), replacement + u'/' + quality);
        EXPECT_EQ(log(),
                  QStringList({u"VKMediaType="_s + replacement, u"VKResolution="_s + quality}));
    }
};

TEST_P(AllowedQuality, ReplacesAMediumThatThePaperDoesNotTake)
{
    const MediumRow &row = GetParam();
    expectAllowed(false, false, row.oneSided, row.replacement);
    expectAllowed(false, true, row.twoSided, row.replacement);
    expectAllowed(true, false, row.onDisc, row.replacementOnDisc);
    expectAllowed(true, true, row.onDisc, row.replacementOnDisc);
}

TEST_P(AllowedQuality, StartsWithTheDefault)
{
    const MediumRow &row = GetParam();
    EXPECT_EQ(panel->defaultQualityForMediaType(row.medium), row.defaultQuality);
    panel->paperName = u"A3.Fullbleed"_s;
    EXPECT_EQ(panel->defaultQualityForMediaType(row.medium), row.defaultOnBorderlessA3);
    panel->recordPendingValue(kQuality, u"Something"_s);
    panel->setDefaultQuality(row.medium);
    EXPECT_EQ(pending(kQuality), row.defaultOnBorderlessA3);
    EXPECT_EQ(log(), QStringList({u"VKResolution="_s + row.defaultOnBorderlessA3}));
}

INSTANTIATE_TEST_SUITE_P(EveryMedium, AllowedQuality, testing::ValuesIn(mediaTable()));

class MediaTypeRules : public PrintPanelTest
{};

TEST_F(MediaTypeRules, GlossyPaperOnADiscBecomesThePrintableDisc)
{
    open();
    panel->setFlag(DiscPaper, true);
    panel->recordPendingValue(kMedium, u"Glossy"_s);
    EXPECT_EQ(panel->allowedQuality(u"Glossy"_s), QStringList({u"DiscNormal"_s, u"DiscSlow"_s}));
    EXPECT_EQ(panel->pending(), u"PrintableDisc/DiscNormal"_s);
}

TEST_F(MediaTypeRules, APrintableDiscWithoutADiscBecomesPlainPaperAtTheDefaultOfThePaper)
{
    open();
    panel->recordPendingValue(kMedium, u"PrintableDisc"_s);
    panel->recordPendingValue(kQuality, u"DiscSlow"_s);
    panel->paperName = u"A3.Fullbleed"_s;
    panel->allowedQuality(u"PrintableDisc"_s);
    EXPECT_EQ(panel->pending(), u"Plain/Best"_s);
    panel->recordPendingValue(kMedium, u"PrintableDisc"_s);
    panel->paperName = u"A4"_s;
    panel->allowedQuality(u"PrintableDisc"_s);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
}

// --- Colour mode, JPEG ---------------------------------------------------------------------------

TEST_F(MediaTypeRules, TheColorModeIsPostedAsMonoOnlyForMono)
{
    open();
    for (const auto &[value, mono] : {std::pair(u"Mono"_s, true), std::pair(u"Color"_s, false),
                                      std::pair(u"mono"_s, false), std::pair(u""_s, false)}) {
        panel->setFlag(MonoColorMode, !mono);
        panel->recordPendingValue(u"VKMonoColor"_s, value);
        panel->canSelectColorMode();
        EXPECT_EQ(log(), QStringList({mono ? u"mono YES"_s : u"mono NO"_s})) << qPrintable(value);
        EXPECT_EQ(panel->hasFlag(MonoColorMode), mono);
    }
    panel->setOutputBin({});
    panel->canSelectColorMode();
    EXPECT_EQ(log(), QStringList({u"mono NO"_s}));
}

TEST_F(MediaTypeRules, JpegPrintingIsAlwaysAllowed)
{
    open();
    panel->setFlag(JpegUnavailable, true);
    panel->canSelectJpegPrint();
    EXPECT_FALSE(panel->hasFlag(JpegUnavailable));
}

// --- The state that follows the medium -----------------------------------------------------------

struct MediumState
{
    QString medium;
    QString qualities; ///< with defaults applied
    QString slowDry;
    QString biDir;
    bool slowDryUnavailable;
    bool natural;
    bool tray2;
    QStringList log;
    QString qualitiesAtRefresh; ///< without defaults: the first item is selected
    QStringList logAtRefresh;
};

void PrintTo(const MediumState &row, std::ostream *out)
{
    *out << qPrintable(row.medium);
}

class MediaTypeState : public PrintPanelTest, public testing::WithParamInterface<MediumState>
{
protected:
    void SetUp() override
    {
        show();
        ASSERT_TRUE(panel->hasFlag(VendorColorMatching));
        ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(GetParam().medium));
        panel->recordPendingValue(kMedium, GetParam().medium);
        panel->recordPendingValue(kQuality, u"Something"_s);
        for (const QString &name : {u"slowDryButton"_s, u"biDirButton"_s}) {
            box(name)->setEnabled(true);
            box(name)->setChecked(false);
        }
    }

    bool isTray2Enabled()
    {
        PopUpButton *feed = popup(u"paperFeedPopup"_s);
        return feed->isItemEnabled(feed->indexOfRepresentedObject(u"Tray2"_s));
    }
};

TEST_P(MediaTypeState, WithDefaultsSetsQualityBoxesAndColorMatching)
{
    const MediumState &row = GetParam();
    panel->checkUIStateWithMediaType(true);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), row.qualities);
    EXPECT_EQ(stateOf(box(u"slowDryButton"_s)), row.slowDry);
    EXPECT_EQ(stateOf(box(u"biDirButton"_s)), row.biDir);
    EXPECT_EQ(panel->hasFlag(SlowDryingUnavailable), row.slowDryUnavailable);
    EXPECT_EQ(panel->hasFlag(NaturalColorMatching), row.natural);
    EXPECT_EQ(panel->hasFlag(TransparenciesMedium), row.medium == "Transparencies"_L1);
    EXPECT_EQ(isTray2Enabled(), row.tray2);
    EXPECT_EQ(log(), row.log);
}

TEST_P(MediaTypeState, AtARefreshKeepsTheBoxesAndPostsNothing)
{
    const MediumState &row = GetParam();
    box(u"slowDryButton"_s)->setChecked(row.slowDry == "off"_L1);
    box(u"biDirButton"_s)->setChecked(row.biDir == "off"_L1);
    panel->checkUIStateWithMediaType(false);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), row.qualitiesAtRefresh);
    EXPECT_NE(stateOf(box(u"slowDryButton"_s)), row.slowDry);
    EXPECT_NE(stateOf(box(u"biDirButton"_s)), row.biDir);
    EXPECT_EQ(panel->hasFlag(SlowDryingUnavailable), row.slowDryUnavailable);
    EXPECT_EQ(panel->hasFlag(NaturalColorMatching), row.natural);
    EXPECT_EQ(panel->hasFlag(TransparenciesMedium), row.medium == "Transparencies"_L1);
    EXPECT_EQ(isTray2Enabled(), row.tray2);
    EXPECT_EQ(log(), row.logAtRefresh);
}

const QStringList kNaturalTwice = {u"natural YES"_s, u"natural YES"_s};
const QStringList kToPlain = {u"VKMediaType=Plain"_s, u"VKResolution=PlainNormal"_s};

INSTANTIATE_TEST_SUITE_P(
    EveryListedMedium, MediaTypeState,
    testing::Values(MediumState{u"Plain"_s,
                                u"PlainFast PlainNormal* High Best"_s,
                                u"off"_s,
                                u"on"_s,
                                false,
                                false,
                                true,
                                {u"natural NO"_s, u"natural NO"_s},
                                u"PlainFast* PlainNormal High Best"_s,
                                {}},
                    // The first post says yes, the second no, and the second one holds.
                    MediumState{u"HagakiAtena"_s,
                                u"PlainFast PlainNormal* High Best"_s,
                                u"on"_s,
                                u"on"_s,
                                false,
                                false,
                                false,
                                {u"natural YES"_s, u"natural NO"_s},
                                u"PlainFast* PlainNormal High Best"_s,
                                {}},
                    MediumState{u"Inkjet"_s,
                                u"Normal Photo* Best"_s,
                                u"off"_s,
                                u"off"_s,
                                true,
                                true,
                                false,
                                kNaturalTwice,
                                u"Normal* Photo Best"_s,
                                {}},
                    MediumState{u"VelkaroQM41Matte"_s,
                                u"Normal Photo* Best"_s,
                                u"off"_s,
                                u"off"_s,
                                true,
                                true,
                                false,
                                kNaturalTwice,
                                u"Normal* Photo Best"_s,
                                {}},
                    MediumState{u"VelkaroGlossy"_s,
                                u"Fast Photo* Best"_s,
                                u"off"_s,
                                u"off"_s,
                                true,
                                true,
                                false,
                                kNaturalTwice,
                                u"Fast* Photo Best"_s,
                                {}},
                    MediumState{u"VelkaroGlossyR"_s,
                                u"Fast Photo* Best"_s,
                                u"off"_s,
                                u"off"_s,
                                true,
                                true,
                                false,
                                kNaturalTwice,
                                u"Fast* Photo Best"_s,
                                {}},
                    MediumState{u"Glossy"_s,
                                u"Fast Photo* Best"_s,
                                u"off"_s,
                                u"off"_s,
                                true,
                                true,
                                false,
                                kNaturalTwice,
                                u"Fast* Photo Best"_s,
                                {}},
                    MediumState{u"HagakiUra"_s,
                                u"Fast Photo* Best"_s,
                                u"off"_s,
                                u"off"_s,
                                true,
                                true,
                                false,
                                kNaturalTwice,
                                u"Fast* Photo Best"_s,
                                {}},
                    MediumState{u"Transparencies"_s,
                                u"Normal*"_s,
                                u"off"_s,
                                u"off"_s,
                                true,
                                true,
                                false,
                                kNaturalTwice,
                                u"Normal*"_s,
                                {}},
                    // Without a disc its media are replaced, but the later steps go on with them.
                    MediumState{u"PrintableDisc"_s, u"PlainFast* PlainNormal High Best"_s, u"off"_s,
                                u"off"_s, true, true, false, kToPlain + kNaturalTwice,
                                u"PlainFast* PlainNormal High Best"_s, kToPlain},
                    MediumState{u"GlossyPrintableDisc"_s, u"PlainFast* PlainNormal High Best"_s,
                                u"off"_s, u"off"_s, true, true, false, kToPlain + kNaturalTwice,
                                u"PlainFast* PlainNormal High Best"_s, kToPlain}));

TEST_F(MediaTypeRules, WithoutVendorColorMatchingTheSlowDryingBoxIsLeftAloneAndUnavailable)
{
    show();
    panel->setFlag(VendorColorMatching, false);
    box(u"slowDryButton"_s)->setChecked(true);
    panel->setFlag(SlowDryingUnavailable, false);
    panel->checkUIStateWithMediaType(true);
    EXPECT_TRUE(box(u"slowDryButton"_s)->isChecked());
    EXPECT_TRUE(panel->hasFlag(SlowDryingUnavailable));
}

TEST_F(MediaTypeRules, BorderlessPaperTakesTheFastestQualityAway)
{
    show();
    panel->setFlag(BorderlessPaper, true);
    panel->paperName = u"A4.Fullbleed"_s;
    panel->checkUIStateWithMediaType(true);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"-PlainFast PlainNormal* High Best"_s);
    // A refresh selects the first item, which is not enabled: the default takes its place.
    panel->checkUIStateWithMediaType(false);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"-PlainFast PlainNormal* High Best"_s);
}

TEST_F(MediaTypeRules, BorderlessA3LeavesTheBestQualityAlone)
{
    show();
    panel->setFlag(BorderlessPaper, true);
    panel->paperName = u"A3.Fullbleed"_s;
    panel->checkUIStateWithMediaType(true);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"-PlainFast -PlainNormal -High Best*"_s);
    panel->checkUIStateWithMediaType(false);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"-PlainFast -PlainNormal -High Best*"_s);
    ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(u"Glossy"_s));
    panel->checkUIStateWithMediaType(true);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"Fast Photo* Best"_s);
}

TEST_F(MediaTypeRules, OnADiscAnotherMediumIsReplacedAndKeepsTheFirstQuality)
{
    show();
    panel->setFlag(DiscPaper, true);
    ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(u"Glossy"_s));
    panel->checkUIStateWithMediaType(true);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"DiscNormal* DiscSlow"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=PrintableDisc"_s, u"VKResolution=DiscNormal"_s}) +
                         kNaturalTwice);
}

// "Photo" is pending then, and the pop-up shows the one quality that it has.
TEST_F(MediaTypeRules, AGlossyDiscKeepsItsQualityBesideAnotherDefault)
{
    show();
    panel->setFlag(DiscPaper, true);
    ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(u"GlossyPrintableDisc"_s));
    panel->setDefaultQuality(u"GlossyPrintableDisc"_s);
    EXPECT_EQ(pending(kQuality), u"Photo"_s);
    panel->checkUIStateWithMediaType(true);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"DiscNormal*"_s);
}

TEST_F(MediaTypeRules, NoSelectedMediumCountsAsOneThatNobodyKnows)
{
    show();
    popup(u"mediaTypePopup"_s)->setItems({});
    panel->recordPendingValue(kMedium, u"Glossy"_s);
    panel->recordPendingValue(kQuality, u"Photo"_s);
    panel->checkUIStateWithMediaType(false);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
    EXPECT_EQ(log(), kToPlain);
}

TEST_F(MediaTypeRules, TheSecondTrayIsFoundByItsTitle)
{
    usePrinter(PPDSource()
                   .option("VKMediaType", {"Plain", "Glossy"})
                   .option("VKInputSlot", {"Tray1/Upper", "Lower/Same", "Tray2/Same"})
                   .open());
    show();
    ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(u"Glossy"_s));
    panel->checkUIStateWithMediaType(false);
    EXPECT_EQ(itemsOf(popup(u"paperFeedPopup"_s)), u"Tray1* -Lower Tray2"_s);
    ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(u"Plain"_s));
    panel->checkUIStateWithMediaType(false);
    EXPECT_EQ(itemsOf(popup(u"paperFeedPopup"_s)), u"Tray1* Lower Tray2"_s);
}

TEST_F(MediaTypeRules, APrinterWithoutASecondTrayIsPassedOver)
{
    useSample(u"velkaro-px-330c"_s);
    show();
    ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(u"Glossy"_s));
    panel->checkUIStateWithMediaType(true);
    EXPECT_EQ(itemsOf(popup(u"paperFeedPopup"_s)), u"Tray1* MPTray"_s);
}

// --- Paper feed, custom envelopes ----------------------------------------------------------------

TEST_F(MediaTypeRules, ThePaperFeedDisablesTransparenciesOnBorderlessPaperAlone)
{
    show();
    PopUpButton *media = popup(u"mediaTypePopup"_s);
    const int transparencies = media->indexOfRepresentedObject(u"Transparencies"_s);
    ASSERT_TRUE(media->selectObject(u"Transparencies"_s));
    panel->setFlag(TransparenciesMedium, true);
    panel->checkStateWithPaperFeed();
    EXPECT_TRUE(media->isItemEnabled(transparencies));
    EXPECT_TRUE(panel->hasFlag(TransparenciesMedium));
    panel->setFlag(BorderlessPaper, true);
    panel->checkStateWithPaperFeed();
    EXPECT_FALSE(media->isItemEnabled(transparencies));
    EXPECT_FALSE(panel->hasFlag(TransparenciesMedium));
    EXPECT_EQ(media->selectedObject(), u"Plain"_s);
}

struct CustomEnvelope
{
    QString paperName;
    QString thickness;
    bool bitsBefore;
    bool answer;
    bool bitsAfter;
};

TEST_F(MediaTypeRules, ACustomPaperIsAnEnvelopeByItsThickness)
{
    open();
    for (const CustomEnvelope &row : {
             CustomEnvelope{u"Custom.100x200"_s, u"Env"_s, false, true, true},
             CustomEnvelope{u"Custom.100x200"_s, u"Regular"_s, true, false, false},
             CustomEnvelope{u"Custom.100x200"_s, QString(), true, false, false},
             CustomEnvelope{u"EnvDL"_s, u"Env"_s, false, false, false},
             CustomEnvelope{u"EnvDL"_s, u"Env"_s, true, false, true},
             CustomEnvelope{u"custom"_s, u"Env"_s, true, false, true},
             CustomEnvelope{QString(), u"Env"_s, true, false, true},
         }) {
        panel->paperName = row.paperName;
        panel->recordPendingValue(u"VKColorPaperThick"_s, row.thickness);
        panel->setFlag(EnvelopePaper, row.bitsBefore);
        panel->setFlag(BiDirLeftAlone, row.bitsBefore);
        EXPECT_EQ(panel->paperSizeIsCustomEnv(), row.answer) << qPrintable(row.paperName);
        EXPECT_EQ(panel->hasFlag(EnvelopePaper), row.bitsAfter) << qPrintable(row.paperName);
        EXPECT_EQ(panel->hasFlag(BiDirLeftAlone), row.bitsAfter) << qPrintable(row.paperName);
    }
}

// --- Keeping the PPD's defaults ------------------------------------------------------------------

TEST_F(MediaTypeRules, ADefaultIsOfferedWhereNothingIsMarked)
{
    open();
    unmark(session->ppd(), "VKReverse");
    panel->recordPendingValue(u"VKReverse"_s, u"ON"_s);
    panel->setDefaults();
    EXPECT_EQ(pending(u"VKReverse"_s), u"OFF"_s);
    EXPECT_EQ(log(), QStringList({u"VKReverse=OFF"_s}));
}

TEST_F(MediaTypeRules, ADefaultThatTheHostRefusesIsNotKept)
{
    open();
    session->host()->setRefused({u"VKReverse"_s});
    unmark(session->ppd(), "VKReverse");
    panel->recordPendingValue(u"VKReverse"_s, u"ON"_s);
    panel->setDefaults();
    EXPECT_EQ(pending(u"VKReverse"_s), u"ON"_s);
    EXPECT_EQ(log(), QStringList({u"VKReverse=OFF refused"_s}));
}

TEST_F(MediaTypeRules, AnotherMarkedChoiceIsLeftAlone)
{
    open();
    session->mark(u"VKReverse"_s, u"ON"_s);
    panel->recordPendingValue(u"VKReverse"_s, u"ON"_s);
    panel->setDefaults();
    EXPECT_EQ(pending(u"VKReverse"_s), u"ON"_s);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(MediaTypeRules, AnEnvelopeKeepsItsThicknessAndDirectionWhereTheDefaultIsMarked)
{
    usePrinter(PPDSource()
                   .option("VKColorPaperThick", {"Regular", "Thick", "Env"})
                   .option("VKBiDir", {"OFF", "ON"})
                   .option("VKReverse", {"OFF", "ON"})
                   .open());
    open();
    for (const auto &[keyword, value] :
         {std::pair(u"VKColorPaperThick"_s, u"Thick"_s), std::pair(u"VKBiDir"_s, u"ON"_s),
          std::pair(u"VKReverse"_s, u"ON"_s)})
        panel->recordPendingValue(keyword, value);
    panel->setDefaults();
    EXPECT_EQ(log(), QStringList());
    panel->setFlag(BiDirLeftAlone, true);
    panel->setDefaults();
    EXPECT_EQ(log(), QStringList({u"VKBiDir=OFF"_s}));
    panel->setFlag(EnvelopePaper, true);
    panel->setDefaults();
    EXPECT_EQ(log(), QStringList({u"VKColorPaperThick=Env"_s}));
    EXPECT_EQ(pending(u"VKReverse"_s), u"ON"_s);
}

TEST_F(MediaTypeRules, KeywordsThatThePPDLacksHaveNoDefault)
{
    usePrinter(PPDSource().option("VKBiDir", {"OFF", "ON"}).open());
    open();
    panel->setOutputBin({});
    panel->setDefaults();
    EXPECT_EQ(panel->outputBin(), QVariantMap());
    EXPECT_EQ(log(), QStringList());
}

// --- Borderless Letter ---------------------------------------------------------------------------

struct LetterRule
{
    int modelNumber;
    QString paperName;
    QString quality; ///< after
};

TEST_F(MediaTypeRules, BorderlessLetterResetsTheQualityOnModelTwelve)
{
    for (const LetterRule &row :
         {LetterRule{12, u"Letter.Fullbleed"_s, u"PlainNormal"_s},
          LetterRule{12, u"VkLetter_B"_s, u"PlainNormal"_s}, LetterRule{12, u"Letter"_s, u"Best"_s},
          LetterRule{12, u"A4.Fullbleed"_s, u"Best"_s},
          LetterRule{11, u"Letter.Fullbleed"_s, u"Best"_s},
          LetterRule{13, u"Letter.Fullbleed"_s, u"Best"_s}}) {
        usePrinter(PPDSource()
                       .modelNumber(row.modelNumber)
                       .option("VKResolution", {"PlainNormal", "Best"})
                       .open());
        open();
        panel->recordPendingValue(kQuality, u"Best"_s);
        panel->paperName = row.paperName;
        panel->changeResolutionLetterB();
        EXPECT_EQ(pending(kQuality), row.quality) << row.modelNumber << qPrintable(row.paperName);
    }
}

} // namespace
