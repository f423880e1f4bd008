#include "tests/printsettings/PrintPanel.h"

using namespace Qt::StringLiterals;

namespace {

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
        panel->recordPendingValue(u"VKMediaType"_s, GetParam().medium);
        panel->recordPendingValue(u"VKResolution"_s, u"Something"_s);
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

// What every medium but plain paper and the discs brings.
MediumState photoMedium(const QString &medium, const QString &qualities,
                        const QString &qualitiesAtRefresh)
{
    return {medium, qualities, u"off"_s,      u"off"_s,           true,
            true,   false,     kNaturalTwice, qualitiesAtRefresh, {}};
}

// Without a disc its media are replaced, but the later steps go on with them.
MediumState discMedium(const QString &medium)
{
    const QString qualities = u"PlainFast* PlainNormal High Best"_s;
    return {medium,    qualities, u"off"_s, u"off"_s, true, true, false, kToPlain + kNaturalTwice,
            qualities, kToPlain};
}

std::vector<MediumState> mediumStates()
{
    const QString plain = u"PlainFast PlainNormal* High Best"_s;
    const QString plainAtRefresh = u"PlainFast* PlainNormal High Best"_s;
    // The address side's first post says yes, the second no, and the second one holds.
    return {
        {u"Plain"_s,
         plain,
         u"off"_s,
         u"on"_s,
         false,
         false,
         true,
         {u"natural NO"_s, u"natural NO"_s},
         plainAtRefresh,
         {}},
        {u"HagakiAtena"_s,
         plain,
         u"on"_s,
         u"on"_s,
         false,
         false,
         false,
         {u"natural YES"_s, u"natural NO"_s},
         plainAtRefresh,
         {}},
        photoMedium(u"Inkjet"_s, u"Normal Photo* Best"_s, u"Normal* Photo Best"_s),
        photoMedium(u"VelkaroQM41Matte"_s, u"Normal Photo* Best"_s, u"Normal* Photo Best"_s),
        photoMedium(u"VelkaroGlossy"_s, u"Fast Photo* Best"_s, u"Fast* Photo Best"_s),
        photoMedium(u"VelkaroGlossyR"_s, u"Fast Photo* Best"_s, u"Fast* Photo Best"_s),
        photoMedium(u"Glossy"_s, u"Fast Photo* Best"_s, u"Fast* Photo Best"_s),
        photoMedium(u"HagakiUra"_s, u"Fast Photo* Best"_s, u"Fast* Photo Best"_s),
        photoMedium(u"Transparencies"_s, u"Normal*"_s, u"Normal*"_s),
        discMedium(u"PrintableDisc"_s),
        discMedium(u"GlossyPrintableDisc"_s),
    };
}

INSTANTIATE_TEST_SUITE_P(EveryListedMedium, MediaTypeState, testing::ValuesIn(mediumStates()));

class MediaTypeStateOnPaper : public PrintPanelTest
{};

TEST_F(MediaTypeStateOnPaper, WithoutVendorColorMatchingTheSlowDryingBoxIsLeftAloneAndUnavailable)
{
    show();
    panel->setFlag(VendorColorMatching, false);
    box(u"slowDryButton"_s)->setChecked(true);
    panel->setFlag(SlowDryingUnavailable, false);
    panel->checkUIStateWithMediaType(true);
    EXPECT_TRUE(box(u"slowDryButton"_s)->isChecked());
    EXPECT_TRUE(panel->hasFlag(SlowDryingUnavailable));
}

TEST_F(MediaTypeStateOnPaper, BorderlessPaperTakesTheFastestQualityAway)
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

TEST_F(MediaTypeStateOnPaper, BorderlessA3LeavesTheBestQualityAlone)
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

TEST_F(MediaTypeStateOnPaper, OnADiscAnotherMediumIsReplacedAndKeepsTheFirstQuality)
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
TEST_F(MediaTypeStateOnPaper, AGlossyDiscKeepsItsQualityBesideAnotherDefault)
{
    show();
    panel->setFlag(DiscPaper, true);
    ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(u"GlossyPrintableDisc"_s));
    panel->setDefaultQuality(u"GlossyPrintableDisc"_s);
    EXPECT_EQ(pending(u"VKResolution"_s), u"Photo"_s);
    panel->checkUIStateWithMediaType(true);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"DiscNormal*"_s);
}

TEST_F(MediaTypeStateOnPaper, NoSelectedMediumCountsAsOneThatNobodyKnows)
{
    show();
    popup(u"mediaTypePopup"_s)->setItems({});
    panel->recordPendingValue(u"VKMediaType"_s, u"Glossy"_s);
    panel->recordPendingValue(u"VKResolution"_s, u"Photo"_s);
    panel->checkUIStateWithMediaType(false);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
    EXPECT_EQ(log(), kToPlain);
}

TEST_F(MediaTypeStateOnPaper, TheSecondTrayIsFoundByItsTitle)
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

TEST_F(MediaTypeStateOnPaper, APrinterWithoutASecondTrayIsPassedOver)
{
    useSample(u"velkaro-px-330c"_s);
    show();
    ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(u"Glossy"_s));
    panel->checkUIStateWithMediaType(true);
    EXPECT_EQ(itemsOf(popup(u"paperFeedPopup"_s)), u"Tray1* MPTray"_s);
}

} // namespace
