#include "platform/toolkit/ControlColor.h"
#include "tests/printsettings/PrintPanel.h"
#include "tests/support/PPDSource.h"

using namespace Qt::StringLiterals;

namespace {

const QString kMedium = u"VKMediaType"_s;
const QString kQuality = u"VKResolution"_s;
const QString kBiDir = u"VKBiDir"_s;

// --- Rules on pending values ---------------------------------------------------------------------

struct Constraint
{
    QString name;
    std::int32_t flags; ///< of the bits that the rules read
    QString paperName;
    QString pending; ///< "MEDIUM/QUALITY", before
    QString pendingAfter;
    QStringList log;
    QString biDir = u"OFF"_s;
    QString thickness = u"Regular"_s;
    QStringList refused = {};
};

void PrintTo(const Constraint &row, std::ostream *out)
{
    *out << qPrintable(row.name);
}

class Constraints : public PrintPanelTest, public testing::WithParamInterface<Constraint>
{
protected:
    void prepare()
    {
        const Constraint &row = GetParam();
        for (const ImageModeFlag flag : {DiscPaper, BorderlessPaper, DuplexOn, BiDirLeftAlone})
            panel->setFlag(flag, (row.flags & flag) != 0);
        panel->paperName = row.paperName;
        panel->recordPendingValue(kMedium, row.pending.section(u'/', 0, 0));
        panel->recordPendingValue(kQuality, row.pending.section(u'/', 1));
        panel->recordPendingValue(kBiDir, row.biDir);
        panel->recordPendingValue(u"VKColorPaperThick"_s, row.thickness);
        session->host()->setRefused(row.refused);
        log();
    }

    void expectOutcome()
    {
        EXPECT_EQ(log(), GetParam().log);
        EXPECT_EQ(panel->pending(), GetParam().pendingAfter);
    }
};

TEST_P(Constraints, ApplyInTheirOrderWithoutAView)
{
    open();
    prepare();
    panel->checkConstraints();
    expectOutcome();
}

TEST_P(Constraints, ApplyInTheirOrderWithAView)
{
    show();
    prepare();
    panel->checkConstraints();
    expectOutcome();
}

const QStringList kAlways = {u"VKBiDir=OFF"_s, u"mono NO"_s};
constexpr std::int32_t kNone = 0;

INSTANTIATE_TEST_SUITE_P(
    Quality, Constraints,
    testing::Values(
        Constraint{u"a valid pair is told nothing but the direction"_s, kNone, u"A4"_s,
                   u"Plain/High"_s, u"Plain/High"_s, kAlways},
        Constraint{u"a quality of another medium becomes the default"_s, kNone, u"A4"_s,
                   u"Plain/Photo"_s, u"Plain/PlainNormal"_s,
                   QStringList({u"VKResolution=PlainNormal"_s}) + kAlways},
        Constraint{u"on photo paper likewise"_s, kNone, u"A4"_s, u"Glossy/PlainFast"_s,
                   u"Glossy/Photo"_s, QStringList({u"VKResolution=Photo"_s}) + kAlways},
        Constraint{u"a disc without a disc becomes plain paper"_s, kNone, u"A4"_s,
                   u"PrintableDisc/DiscSlow"_s, u"Plain/PlainNormal"_s,
                   QStringList({u"VKMediaType=Plain"_s, u"VKResolution=PlainNormal"_s}) + kAlways},
        Constraint{u"after a refusal the default is that of the medium before"_s,
                   kNone,
                   u"A4"_s,
                   u"GlossyPrintableDisc/DiscNormal"_s,
                   u"Plain/Photo"_s,
                   QStringList({u"VKMediaType=Plain"_s, u"VKResolution=PlainNormal refused"_s,
                                u"VKResolution=Photo"_s}) +
                       kAlways,
                   u"OFF"_s,
                   u"Regular"_s,
                   {u"VKResolution=PlainNormal"_s}}));

INSTANTIATE_TEST_SUITE_P(
    Borderless, Constraints,
    testing::Values(Constraint{u"transparencies on borderless Letter become plain paper"_s,
                               BorderlessPaper,
                               u"Letter.Fullbleed"_s,
                               u"Transparencies/Normal"_s,
                               u"Plain/PlainNormal"_s,
                               {u"VKMediaType=Plain"_s, u"VKResolution=PlainNormal"_s,
                                u"VKBiDir=ON"_s, u"VKBiDir=ON"_s, u"mono NO"_s}},
                    Constraint{u"transparencies on borderless A3 become plain paper at its best"_s,
                               BorderlessPaper,
                               u"A3.Fullbleed"_s,
                               u"Transparencies/Normal"_s,
                               u"Plain/Best"_s,
                               {u"VKMediaType=Plain"_s, u"VKResolution=Best"_s, u"VKBiDir=ON"_s,
                                u"VKBiDir=ON"_s, u"mono NO"_s}},
                    Constraint{u"transparencies with borders stay"_s, kNone, u"Letter"_s,
                               u"Transparencies/Normal"_s, u"Transparencies/Normal"_s, kAlways},
                    Constraint{u"the fastest quality becomes the default"_s, BorderlessPaper,
                               u"A4.Fullbleed"_s, u"Plain/PlainFast"_s, u"Plain/PlainNormal"_s,
                               QStringList({u"VKResolution=PlainNormal"_s}) + kAlways},
                    Constraint{u"other qualities stay"_s, BorderlessPaper, u"A4.Fullbleed"_s,
                               u"Plain/High"_s, u"Plain/High"_s, kAlways},
                    Constraint{u"A3 takes the best quality alone"_s, BorderlessPaper,
                               u"A3.Fullbleed"_s, u"HagakiAtena/High"_s, u"HagakiAtena/Best"_s,
                               QStringList({u"VKResolution=Best"_s}) + kAlways},
                    Constraint{u"A3 at its best is not told again"_s, BorderlessPaper,
                               u"A3.Fullbleed"_s, u"Plain/Best"_s, u"Plain/Best"_s, kAlways},
                    Constraint{u"photo paper stays"_s, BorderlessPaper, u"A3.Fullbleed"_s,
                               u"Glossy/Fast"_s, u"Glossy/Fast"_s, kAlways}));

INSTANTIATE_TEST_SUITE_P(
    Disc, Constraints,
    testing::Values(
        Constraint{u"another medium becomes the disc"_s, DiscPaper, u"120x120mm"_s,
                   u"Glossy/Photo"_s, u"PrintableDisc/DiscNormal"_s,
                   QStringList({u"VKMediaType=PrintableDisc"_s, u"VKResolution=DiscNormal"_s}) +
                       kAlways},
        Constraint{u"the disc keeps its quality"_s, DiscPaper, u"120x120mm"_s,
                   u"PrintableDisc/DiscSlow"_s, u"PrintableDisc/DiscSlow"_s, kAlways},
        Constraint{u"the glossy disc keeps its one quality"_s, DiscPaper, u"120x120mm"_s,
                   u"GlossyPrintableDisc/DiscNormal"_s, u"GlossyPrintableDisc/DiscNormal"_s,
                   kAlways},
        // Its default is none of its qualities.
        Constraint{u"the glossy disc at another quality gets Photo"_s, DiscPaper, u"120x120mm"_s,
                   u"GlossyPrintableDisc/DiscSlow"_s, u"GlossyPrintableDisc/Photo"_s,
                   QStringList({u"VKResolution=Photo"_s}) + kAlways}));

INSTANTIATE_TEST_SUITE_P(
    DirectionAndDuplex, Constraints,
    testing::Values(Constraint{u"the direction is told again as it is"_s,
                               kNone,
                               u"A4"_s,
                               u"Plain/High"_s,
                               u"Plain/High"_s,
                               {u"VKBiDir=ON"_s, u"mono NO"_s},
                               u"ON"_s},
                    Constraint{u"a refusal of it changes nothing"_s,
                               kNone,
                               u"A4"_s,
                               u"Plain/High"_s,
                               u"Plain/High"_s,
                               {u"VKBiDir=ON refused"_s, u"mono NO"_s},
                               u"ON"_s,
                               u"Regular"_s,
                               {u"VKBiDir"_s}},
                    Constraint{u"an envelope prints in one direction"_s,
                               BiDirLeftAlone,
                               u"EnvDL"_s,
                               u"Plain/High"_s,
                               u"Plain/High"_s,
                               {u"VKBiDir=OFF"_s, u"mono NO"_s},
                               u"ON"_s},
                    Constraint{u"and is not told so twice"_s,
                               BiDirLeftAlone,
                               u"EnvDL"_s,
                               u"Plain/High"_s,
                               u"Plain/High"_s,
                               {u"mono NO"_s},
                               u"OFF"_s},
                    Constraint{u"a custom envelope prints in one direction"_s,
                               kNone,
                               u"Custom.100x200"_s,
                               u"Plain/High"_s,
                               u"Plain/High"_s,
                               {u"VKBiDir=OFF"_s, u"mono NO"_s},
                               u"ON"_s,
                               u"Env"_s},
                    Constraint{u"a custom paper that is none loses the bit first"_s,
                               BiDirLeftAlone,
                               u"Custom.100x200"_s,
                               u"Plain/High"_s,
                               u"Plain/High"_s,
                               {u"VKBiDir=ON"_s, u"mono NO"_s},
                               u"ON"_s},
                    Constraint{u"two-sided printing takes its own medium"_s,
                               DuplexOn,
                               u"A4"_s,
                               u"Plain/Best"_s,
                               u"PlainDuplex/Best"_s,
                               {u"VKBiDir=OFF"_s, u"VKMediaType=PlainDuplex"_s, u"mono NO"_s}},
                    Constraint{u"two-sided printing has no high quality"_s,
                               DuplexOn,
                               u"A4"_s,
                               u"Plain/High"_s,
                               u"PlainDuplex/PlainNormal"_s,
                               {u"VKResolution=PlainNormal"_s, u"VKBiDir=OFF"_s,
                                u"VKMediaType=PlainDuplex"_s, u"mono NO"_s}},
                    Constraint{u"two-sided printing takes any medium's place"_s,
                               DuplexOn,
                               u"A4"_s,
                               u"Glossy/Photo"_s,
                               u"PlainDuplex/Photo"_s,
                               {u"VKBiDir=OFF"_s, u"VKMediaType=PlainDuplex"_s, u"mono NO"_s}},
                    Constraint{u"the two-sided medium stays without two-sided printing"_s, kNone,
                               u"A4"_s, u"PlainDuplex/High"_s, u"PlainDuplex/High"_s, kAlways}));

class ConstraintRules : public PrintPanelTest
{};

TEST_F(ConstraintRules, WithNothingPendingOnlyTheColorModeIsTold)
{
    open();
    panel->setOutputBin({});
    panel->checkConstraints();
    EXPECT_EQ(log(), QStringList({u"mono NO"_s}));
    EXPECT_EQ(panel->outputBin(), QVariantMap());
}

TEST_F(ConstraintRules, TheMonoBitIsPostedLast)
{
    open();
    panel->recordPendingValue(u"VKMonoColor"_s, u"Mono"_s);
    panel->checkConstraints();
    EXPECT_EQ(log(), QStringList({u"VKBiDir=ON"_s, u"mono YES"_s}));
}

TEST_F(ConstraintRules, TransparenciesAreNotedAndOnBorderlessPaperReplacedWithSlowDrying)
{
    open();
    panel->recordPendingValue(kMedium, u"Transparencies"_s);
    panel->recordPendingValue(kQuality, u"Normal"_s);
    panel->checkConstraints();
    EXPECT_TRUE(panel->hasFlag(TransparenciesMedium));
    panel->setFlag(BorderlessPaper, true);
    panel->setFlag(SlowDryingUnavailable, false);
    panel->paperName = u"Letter.Fullbleed"_s;
    panel->checkConstraints();
    EXPECT_FALSE(panel->hasFlag(TransparenciesMedium));
    EXPECT_TRUE(panel->hasFlag(SlowDryingUnavailable));
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
    EXPECT_EQ(pending(kBiDir), u"ON"_s);
}

// On every run: the pending medium stays, and a refresh of the pop-up shows it again.
TEST_F(ConstraintRules, PlainPaperIsSelectedInThePopUpWhateverIsPending)
{
    show();
    panel->recordPendingValue(kMedium, u"Glossy"_s);
    panel->recordPendingValue(kQuality, u"Photo"_s);
    ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(u"Glossy"_s));
    panel->checkConstraints();
    EXPECT_EQ(itemsOf(popup(u"mediaTypePopup"_s)),
              u"Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy HagakiAtena "
              "HagakiUra Transparencies -PrintableDisc -GlossyPrintableDisc"_s);
    EXPECT_EQ(panel->pending(), u"Glossy/Photo"_s);
}

// "VelkaroGlossy" and "Transparencies" stand in neither of this operation's two lists.
TEST_F(ConstraintRules, OnADiscTheDiscIsSelectedWithItsQualities)
{
    show();
    PopUpButton *media = popup(u"mediaTypePopup"_s);
    for (int index = 0; index < media->count(); ++index)
        media->setItemEnabled(index, true);
    panel->setFlag(DiscPaper, true);
    panel->checkConstraints();
    EXPECT_EQ(itemsOf(media),
              u"-Plain -Inkjet VelkaroGlossy -VelkaroGlossyR -VelkaroQM41Matte -Glossy "
              "-HagakiAtena -HagakiUra Transparencies PrintableDisc* GlossyPrintableDisc"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"DiscNormal* DiscSlow"_s);
}

TEST_F(ConstraintRules, TheTwoListsOfMediaDifferInTransparenciesAndTheGlossyDisc)
{
    show();
    PopUpButton *media = popup(u"mediaTypePopup"_s);
    for (int index = 0; index < media->count(); ++index)
        media->setItemEnabled(index, true);
    panel->setFlag(DiscPaper, true);
    ASSERT_TRUE(media->selectObject(u"GlossyPrintableDisc"_s));
    panel->checkUIConstraints();
    EXPECT_EQ(itemsOf(media),
              u"-Plain -Inkjet VelkaroGlossy -VelkaroGlossyR -VelkaroQM41Matte -Glossy "
              "-HagakiAtena -HagakiUra -Transparencies PrintableDisc GlossyPrintableDisc*"_s);
    for (int index = 0; index < media->count(); ++index)
        media->setItemEnabled(index, true);
    panel->setFlag(DiscPaper, false);
    panel->checkConstraints();
    EXPECT_EQ(itemsOf(media),
              u"Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy HagakiAtena "
              "HagakiUra Transparencies -PrintableDisc GlossyPrintableDisc"_s);
}

// --- Rules on controls ---------------------------------------------------------------------------

class ControlConstraints : public PrintPanelTest
{
protected:
    void SetUp() override
    {
        show();
        panel->setFlag(SlowDryingUnavailable, false);
        for (const QString &name : {u"slowDryButton"_s, u"biDirButton"_s, u"mirrorButton"_s})
            box(name)->setChecked(true);
    }

    // "biDir slowDry mirror", of the boxes that are ticked before.
    QString boxes()
    {
        return stateOf(box(u"biDirButton"_s)) + u", "_s + stateOf(box(u"slowDryButton"_s)) +
               u", "_s + stateOf(box(u"mirrorButton"_s));
    }

    void selectPair(const QString &medium, const QString &quality)
    {
        ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(medium));
        panel->changeState(popup(u"resolutionPopup"_s), panel->allowedQuality(medium), true, true);
        ASSERT_TRUE(popup(u"resolutionPopup"_s)->selectObject(quality));
        log();
    }
};

TEST_F(ControlConstraints, OnPlainPaperEverythingMayBeChosen)
{
    panel->checkUIConstraints();
    EXPECT_EQ(boxes(), u"on, on, on"_s);
    EXPECT_TRUE(popup(u"jpegPopup"_s)->isEnabled());
    EXPECT_EQ(itemsOf(popup(u"mediaTypePopup"_s)),
              u"Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy HagakiAtena "
              "HagakiUra Transparencies -PrintableDisc -GlossyPrintableDisc"_s);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(ControlConstraints, AnEnvelopeDisablesTheDirectionWithoutTurningItOff)
{
    panel->setFlag(BiDirLeftAlone, true);
    panel->checkUIConstraints();
    EXPECT_EQ(boxes(), u"on disabled, on, on"_s);
}

TEST_F(ControlConstraints, UnavailableSlowDryingIsTurnedOff)
{
    panel->setFlag(SlowDryingUnavailable, true);
    panel->checkUIConstraints();
    EXPECT_EQ(boxes(), u"on, off disabled, on"_s);
}

TEST_F(ControlConstraints, TransparenciesDisableTheMirrorBox)
{
    panel->setFlag(TransparenciesMedium, true);
    panel->checkUIConstraints();
    EXPECT_EQ(boxes(), u"on, on, on disabled"_s);
}

TEST_F(ControlConstraints, UnselectableJpegPrintingIsDisabledWithItsLabel)
{
    QWidget *label = panel->outlet(u"jpegLabel"_s);
    panel->setFlag(JpegUnavailable, true);
    panel->checkUIConstraints();
    EXPECT_FALSE(popup(u"jpegPopup"_s)->isEnabled());
    EXPECT_EQ(textColor(label), disabledControlTextColor());
    panel->setFlag(JpegUnavailable, false);
    panel->checkUIConstraints();
    EXPECT_TRUE(popup(u"jpegPopup"_s)->isEnabled());
    EXPECT_EQ(textColor(label), controlTextColor());
}

struct OneWay
{
    QString medium;
    QString quality;
    QString biDir;
};

TEST_F(ControlConstraints, TheDirectionDependsOnQualityAndMedium)
{
    for (const OneWay &row :
         {OneWay{u"Plain"_s, u"PlainFast"_s, u"on"_s}, OneWay{u"Plain"_s, u"High"_s, u"on"_s},
          OneWay{u"Plain"_s, u"Best"_s, u"off disabled"_s},
          OneWay{u"HagakiAtena"_s, u"PlainNormal"_s, u"on"_s},
          OneWay{u"VelkaroGlossy"_s, u"Fast"_s, u"on"_s},
          OneWay{u"VelkaroGlossy"_s, u"Photo"_s, u"off disabled"_s},
          OneWay{u"Glossy"_s, u"Fast"_s, u"on"_s},
          OneWay{u"Glossy"_s, u"Best"_s, u"off disabled"_s},
          OneWay{u"HagakiUra"_s, u"Fast"_s, u"on"_s},
          OneWay{u"VelkaroGlossyR"_s, u"Fast"_s, u"on"_s},
          OneWay{u"Inkjet"_s, u"Normal"_s, u"off disabled"_s},
          OneWay{u"VelkaroQM41Matte"_s, u"Normal"_s, u"off disabled"_s},
          OneWay{u"Transparencies"_s, u"Normal"_s, u"off disabled"_s}}) {
        selectPair(row.medium, row.quality);
        box(u"biDirButton"_s)->setChecked(true);
        panel->checkUIConstraints();
        EXPECT_EQ(stateOf(box(u"biDirButton"_s)), row.biDir)
            << qPrintable(row.medium) << qPrintable(row.quality);
    }
}

TEST_F(ControlConstraints, DiscsPrintInOneDirection)
{
    panel->setFlag(DiscPaper, true);
    for (const QString &medium : {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s}) {
        selectPair(medium, u"DiscNormal"_s);
        box(u"biDirButton"_s)->setChecked(true);
        panel->checkUIConstraints();
        EXPECT_EQ(stateOf(box(u"biDirButton"_s)), u"off disabled"_s) << qPrintable(medium);
        EXPECT_EQ(popup(u"mediaTypePopup"_s)->selectedObject(), medium);
    }
}

TEST_F(ControlConstraints, BorderlessPaperDisablesTransparencies)
{
    panel->setFlag(BorderlessPaper, true);
    selectPair(u"Transparencies"_s, u"Normal"_s);
    panel->checkUIConstraints();
    EXPECT_EQ(itemsOf(popup(u"mediaTypePopup"_s)),
              u"Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy HagakiAtena "
              "HagakiUra -Transparencies -PrintableDisc -GlossyPrintableDisc"_s);
}

TEST_F(ControlConstraints, OtherMediaAreNotEnabledAgainByThemselves)
{
    PopUpButton *media = popup(u"mediaTypePopup"_s);
    media->setItemEnabled(media->indexOfRepresentedObject(u"Inkjet"_s), false);
    panel->checkUIConstraints();
    EXPECT_FALSE(media->isItemEnabled(media->indexOfRepresentedObject(u"Inkjet"_s)));
}

TEST_F(ControlConstraints, AFaxJobIsLeftAsTheBasePanelLeavesIt)
{
    const QString media = itemsOf(popup(u"mediaTypePopup"_s));
    for (const ImageModeFlag flag :
         {FaxOutput, BiDirLeftAlone, SlowDryingUnavailable, TransparenciesMedium, DiscPaper})
        panel->setFlag(flag, true);
    panel->checkUIConstraints();
    EXPECT_EQ(boxes(), u"on disabled, on disabled, on disabled"_s);
    EXPECT_FALSE(popup(u"jpegPopup"_s)->isEnabled());
    EXPECT_EQ(itemsOf(popup(u"mediaTypePopup"_s)), media);
}

TEST_F(ConstraintRules, OnControlsDoNothingWithoutAView)
{
    open();
    panel->checkUIConstraints();
    EXPECT_EQ(log(), QStringList());
}

} // namespace
