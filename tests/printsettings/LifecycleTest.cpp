#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/PreferredLanguages.h"
#include "tests/printsettings/PrintPanel.h"
#include "tests/support/PPDSource.h"

using namespace Qt::StringLiterals;

namespace {

class Creation : public PrintPanelTest
{};

TEST_F(Creation, ReadsTheKeywordsAndThePaperAndObservesThePageSetup)
{
    ASSERT_TRUE(panel->initWithCallback(session->host()));
    EXPECT_EQ(log(), QStringList({u"mono NO"_s, u"mono NO"_s, u"VKColorPaperThick=Regular"_s}));
    EXPECT_EQ(panel->paperName, u"A4"_s);
    EXPECT_EQ(panel->outputBin(),
              QVariantMap({{u"VKColorPaperThick"_s, u"Regular"_s}, {u"VKBiDir"_s, u"OFF"_s}}));
    EXPECT_EQ(registrations(), 2);
    EXPECT_FALSE(panel->popupInited);
    EXPECT_EQ(panel->loadedView(), nullptr);
}

TEST_F(Creation, ReadingTheValuesTellsTheDirectionAndTheColorMode)
{
    ASSERT_TRUE(panel->initWithCallback(session->host()));
    log();
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(log(), QStringList({u"VKBiDir=ON"_s, u"mono NO"_s}));
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
    EXPECT_EQ(panel->outputBin().size(), panel->supportedPPDOptionKeys()->size());
}

TEST_F(Creation, WithoutAHostThatMarksChoicesDoesNothingAtAll)
{
    session->host()->setLacking({HostOperation::WillChangePPDOptionKeyValue});
    EXPECT_FALSE(panel->initWithCallback(session->host()));
    EXPECT_EQ(log(), QStringList());
    EXPECT_EQ(registrations(), 0);
    EXPECT_TRUE(panel->paperName.isNull());
    EXPECT_EQ(panel->supportedPPDOptionKeys(), std::nullopt);
}

TEST_F(Creation, WithoutAKeywordListKeepsNone)
{
    session->bundle().overrideInfo({{u"PMPPDKeysSupported"_s, QVariant()}});
    ASSERT_TRUE(panel->initWithCallback(session->host()));
    EXPECT_EQ(panel->supportedPPDOptionKeys(), std::nullopt);
}

TEST_F(Creation, EndsEveryRegistrationWithThePanel)
{
    open();
    const void *address = panel.get();
    panel.reset();
    EXPECT_EQ(NotificationCenter::defaultCenter().registrationCount(address), 0);
    session->changePaper(u"Letter"_s);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(Creation, NamesThePanelInTheUsersLanguage)
{
    open();
    EXPECT_EQ(panel->panelName(), u"Print Setting"_s);
    session->bundle().setStrings(Bundle::Strings::Tables);
    EXPECT_EQ(panel->panelName(), u"Print Settings"_s);
    EXPECT_EQ(panel->panelKind(), u"com.velkaro.print.pde.CocoaVKInkPrintSetting14"_s);
    EXPECT_EQ(panel->shortName(), u"print"_s);
    EXPECT_EQ(panel->inspectedClassName(), u"VKInkPrintSetting14PDE"_s);
}

TEST_F(Creation, ShowingRefreshesEveryControlFromThePendingValues)
{
    session->mark(u"VKMediaType"_s, u"Glossy"_s);
    session->mark(u"VKResolution"_s, u"Best"_s);
    session->mark(u"VKMonoColor"_s, u"Mono"_s);
    open();
    panel->panelView();
    panel->willShow();
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"Fast Photo Best*"_s);
    EXPECT_EQ(popup(u"mediaTypePopup"_s)->selectedObject(), u"Glossy"_s);
    EXPECT_EQ(itemsOf(popup(u"monoColorPopup"_s)), u"Color Mono*"_s);
    EXPECT_EQ(panel->pending(), u"Glossy/Best"_s);
    EXPECT_EQ(log(), QStringList({u"mono YES"_s}));
}

TEST_F(Creation, ShowingTakesTheTwoSidedState)
{
    open();
    session->mark(u"Duplex"_s, u"DuplexTumble"_s);
    panel->setFlag(DuplexOn, false);
    panel->panelView();
    panel->willShow();
    EXPECT_TRUE(panel->hasFlag(DuplexOn));
}

// --- A choice made elsewhere ---------------------------------------------------------------------

class ChoiceElsewhere : public PrintPanelTest
{
protected:
    void report(const QString &keyword, const QString &choice)
    {
        session->mark(keyword, choice);
        panel->PPDOptionKeyValueDidChange(keyword, choice);
    }
};

TEST_F(ChoiceElsewhere, OfAMediumRunsTheRulesOfAPick)
{
    show();
    report(u"VKMediaType"_s, u"Glossy"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=Glossy"_s, u"VKResolution=Fast"_s, u"natural YES"_s,
                                  u"natural YES"_s, u"VKResolution=Photo"_s, u"VKBiDir=OFF"_s}));
    EXPECT_EQ(panel->pending(), u"Glossy/Photo"_s);
}

TEST_F(ChoiceElsewhere, OfAMediumIsOnlyRecordedBeforeTheViewIsLoaded)
{
    open();
    report(u"VKMediaType"_s, u"Glossy"_s);
    EXPECT_EQ(log(), QStringList());
    EXPECT_EQ(panel->pending(), u"Glossy/PlainNormal"_s);
}

TEST_F(ChoiceElsewhere, OfAnotherKeywordRefreshesItsControlAlone)
{
    show();
    report(u"VKReverse"_s, u"ON"_s);
    EXPECT_TRUE(box(u"reverseButton"_s)->isChecked());
    EXPECT_EQ(log(), QStringList());
}

TEST_F(ChoiceElsewhere, OfAnotherPanelsKeywordChangesNothing)
{
    show();
    const QVariantMap before = panel->outputBin();
    panel->PPDOptionKeyValueDidChange(u"VKColorMatching"_s, u"Vivid"_s);
    EXPECT_EQ(panel->outputBin(), before);
    EXPECT_EQ(log(), QStringList());
}

// --- Saving --------------------------------------------------------------------------------------

struct Saving
{
    QString name;
    bool shown;
    bool duplex;
    QString medium;  ///< pending, and selected where the panel was shown
    QString pending; ///< "MEDIUM/QUALITY", after
    QStringList log;
};

void PrintTo(const Saving &row, std::ostream *out)
{
    *out << qPrintable(row.name);
}

class SavingValues : public PrintPanelTest, public testing::WithParamInterface<Saving>
{};

TEST_P(SavingValues, SwapsPlainPaperAndItsTwoSidedForm)
{
    const Saving &row = GetParam();
    if (row.shown)
        show();
    else
        open();
    panel->recordPendingValue(u"VKMediaType"_s, row.medium);
    panel->recordPendingValue(u"VKResolution"_s, u"Best"_s);
    if (row.shown) {
        const QString selected = row.medium == "PlainDuplex"_L1 ? u"Plain"_s : row.medium;
        ASSERT_TRUE(popup(u"mediaTypePopup"_s)->selectObject(selected));
    }
    if (row.duplex)
        ppdMarkOption(session->ppd(), "Duplex", "DuplexNoTumble");
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(panel->pending(), row.pending);
    EXPECT_EQ(panel->hasFlag(DuplexOn), row.duplex);
    EXPECT_EQ(log(), row.log);
}

INSTANTIATE_TEST_SUITE_P(
    All, SavingValues,
    testing::Values(
        Saving{u"shown, two-sided, plain"_s,
               true,
               true,
               u"Plain"_s,
               u"PlainDuplex/Best"_s,
               {u"VKMediaType=PlainDuplex"_s}},
        Saving{u"shown, two-sided, its two-sided form already"_s,
               true,
               true,
               u"PlainDuplex"_s,
               u"PlainDuplex/Best"_s,
               {}},
        Saving{u"shown, one-sided, plain"_s, true, false, u"Plain"_s, u"Plain/Best"_s, {}},
        Saving{u"shown, one-sided, the two-sided form"_s,
               true,
               false,
               u"PlainDuplex"_s,
               u"Plain/Best"_s,
               {u"VKMediaType=Plain"_s}},
        Saving{u"shown, two-sided, glossy is left alone"_s,
               true,
               true,
               u"Glossy"_s,
               u"Glossy/Best"_s,
               {}},
        Saving{u"shown, one-sided, glossy is left alone"_s,
               true,
               false,
               u"Glossy"_s,
               u"Glossy/Best"_s,
               {}},
        Saving{u"never shown, two-sided, plain"_s,
               false,
               true,
               u"Plain"_s,
               u"PlainDuplex/PlainNormal"_s,
               {u"VKMediaType=PlainDuplex"_s, u"VKResolution=PlainNormal"_s}},
        Saving{u"never shown, two-sided, any medium"_s,
               false,
               true,
               u"Glossy"_s,
               u"PlainDuplex/PlainNormal"_s,
               {u"VKMediaType=PlainDuplex"_s, u"VKResolution=PlainNormal"_s}},
        Saving{u"never shown, one-sided, the two-sided form"_s,
               false,
               false,
               u"PlainDuplex"_s,
               u"Plain/Best"_s,
               {u"VKMediaType=Plain"_s}},
        Saving{u"never shown, one-sided, plain"_s, false, false, u"Plain"_s, u"Plain/Best"_s, {}},
        Saving{
            u"never shown, one-sided, glossy"_s, false, false, u"Glossy"_s, u"Glossy/Best"_s, {}}));

// --- Summary -------------------------------------------------------------------------------------

class PanelSummary : public PrintPanelTest
{
protected:
    QStringList order()
    {
        return panel->summaryInfo().value(u"Summary Display Order"_s).toStringList();
    }
};

TEST_F(PanelSummary, BeginsWithTheModel)
{
    open();
    EXPECT_EQ(order(),
              QStringList({u"Model"_s, u"Media Type"_s, u"Print Quality"_s, u"Color Mode"_s,
                           u"Paper Thickness"_s, u"Paper Source"_s, u"Mirror Image"_s,
                           u"Rotate by 180 Degrees"_s, u"JPEG Printing"_s,
                           u"Two-Sided Print Mode"_s, u"Bi-Directional Printing"_s,
                           u"Slow Drying Paper"_s, u"Align Vertical Lines (A3, B4, Ledger)"_s,
                           u"Align Vertical Lines (A4, Letter)"_s,
                           u"Align Vertical Lines (Other Papers)"_s, u"Dedicated Media"_s}));
    const QVariantMap summary = panel->summaryInfo();
    EXPECT_EQ(summary.value(u"Model"_s).toString(), u"Velkaro PX-T900"_s);
    EXPECT_EQ(summary.value(u"Media Type"_s).toString(), u"Plain Paper"_s);
    EXPECT_EQ(summary.value(u"Bi-Directional Printing"_s).toString(), u"ON"_s);
}

// The order keeps its place: whoever shows the summary passes over a title without a text.
TEST_F(PanelSummary, NamesTheDedicatedMediaInJapaneseAlone)
{
    open();
    for (const QString &language : {u"en"_s, u"ja-JP"_s, u"ja-US"_s}) {
        setPreferredLanguages({language});
        EXPECT_FALSE(panel->summaryInfo().contains(u"Dedicated Media"_s)) << qPrintable(language);
        EXPECT_TRUE(order().contains(u"Dedicated Media"_s));
    }
    setPreferredLanguages({u"ja"_s});
    EXPECT_TRUE(panel->summaryInfo().contains(u"Dedicated Media"_s));
}

TEST_F(PanelSummary, ReadsTheMarkedChoicesAgain)
{
    show();
    session->mark(u"VKMonoColor"_s, u"Mono"_s);
    EXPECT_EQ(panel->summaryInfo().value(u"Color Mode"_s).toString(), u"Black & White"_s);
    EXPECT_EQ(popup(u"monoColorPopup"_s)->selectedObject(), u"Mono"_s);
}

TEST_F(PanelSummary, LacksUnselectableJpegPrinting)
{
    open();
    panel->setFlag(JpegUnavailable, true);
    EXPECT_FALSE(order().contains(u"JPEG Printing"_s));
}

// --- Fax, languages ------------------------------------------------------------------------------

TEST_F(Creation, AFaxJobIsOneWhoseOutputIsMarkedFax)
{
    open();
    EXPECT_FALSE(panel->checkIfOutputToFax());
    session->mark(u"VKOutput"_s, u"FAX"_s);
    EXPECT_TRUE(panel->checkIfOutputToFax());
    usePrinter(PPDSource().option("VKOutput", {"fax"}).open());
    open();
    EXPECT_FALSE(panel->checkIfOutputToFax());
    useSample(u"velkaro-mx-j710dw"_s);
    open();
    EXPECT_FALSE(panel->checkIfOutputToFax());
}

TEST_F(Creation, TheFirstLanguageIsTheUsersFirst)
{
    setPreferredLanguages({u"ja"_s, u"en"_s});
    EXPECT_EQ(panel->firstLanguageSetting(), u"ja"_s);
    setPreferredLanguages({u"en-GB"_s, u"ja"_s});
    EXPECT_EQ(panel->firstLanguageSetting(), u"en-GB"_s);
}

} // namespace
