#include "tests/panel/PanelFixture.h"

#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

using namespace Qt::StringLiterals;

namespace {

class ReadBackTest : public PanelFixture
{
protected:
    QVariant pending(const QString &keyword) const { return panel->outputBin().value(keyword); }
};

struct DisabledCase
{
    const char *behaviour;
    QCheckBox *TestPanel::*box;
    QString keyword;
    bool checked;
    bool fax;
    QStringList calls;
    QString pending;
};

class DisabledBox : public ReadBackTest, public testing::WithParamInterface<DisabledCase>
{};

// Before each, the pending value is what the box of another state stands for.
const DisabledCase kDisabledCases[] = {
    {"TickedIsCommittedOnAndThenOff",
     &TestPanel::biDirButton,
     u"VKBiDir"_s,
     true,
     false,
     {u"VKBiDir=ON"_s, u"VKBiDir=OFF"_s},
     u"OFF"_s},
    {"ClearedIsOff",
     &TestPanel::biDirButton,
     u"VKBiDir"_s,
     false,
     false,
     {u"VKBiDir=OFF"_s},
     u"OFF"_s},
    {"MirrorPrintTicked",
     &TestPanel::mirrorButton,
     u"MirrorPrint"_s,
     true,
     false,
     {u"MirrorPrint=True"_s, u"MirrorPrint=False"_s},
     u"False"_s},
    {"SlowDryingCountsAsItShows",
     &TestPanel::slowDryButton,
     u"VKSlowDrying"_s,
     true,
     false,
     {u"VKSlowDrying=ON"_s},
     u"ON"_s},
    {"FaxOutputCountsAsItShows",
     &TestPanel::biDirButton,
     u"VKBiDir"_s,
     true,
     true,
     {u"VKBiDir=ON"_s},
     u"ON"_s},
};

TEST_P(DisabledBox, CountsAsOff)
{
    showPanel();
    QCheckBox *box = panel.get()->*GetParam().box;
    panel->setFlag(FaxOutput, GetParam().fax);
    box->setChecked(!GetParam().checked);
    panel->getUIValues();
    box->setChecked(GetParam().checked);
    panel->constraints = [box] { box->setEnabled(false); };
    takeCalls();
    panel->getUIValues();
    EXPECT_EQ(calls, GetParam().calls);
    EXPECT_EQ(pending(GetParam().keyword), GetParam().pending);
    EXPECT_EQ(marked(GetParam().keyword), GetParam().pending);
}

INSTANTIATE_TEST_SUITE_P(Cases, DisabledBox, testing::ValuesIn(kDisabledCases), CaseName());

TEST_F(ReadBackTest, KeepsATickedBoxOfAPanelThatTheDialogHasDisabledAsAWhole)
{
    showPanel();
    panel->biDirButton->click();
    panel->panelView()->setEnabled(false);
    takeCalls();
    panel->getUIValues();
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(pending(u"VKBiDir"_s), u"ON"_s);
}

TEST_F(ReadBackTest, CommitsPlainPapersTwoSidedFormWhileTwoSidedPrintingIsOn)
{
    showPanel();
    panel->setFlag(DuplexOn, true);
    panel->mediaTypePopup->selectObject(u"Glossy"_s);
    panel->resolutionPopup->selectObject(u"Best"_s);
    panel->getUIValues();
    EXPECT_EQ(calls, (QStringList{u"VKMediaType=PlainDuplex"_s, u"VKResolution=Best"_s}));
    EXPECT_EQ(pending(u"VKMediaType"_s), u"PlainDuplex"_s);
    EXPECT_EQ(panel->mediaTypePopup->selectedObject(), u"Glossy"_s);
    panel->setFlag(DuplexOn, false);
    panel->getUIValues();
    EXPECT_EQ(pending(u"VKMediaType"_s), u"Glossy"_s);
}

TEST_F(ReadBackTest, LeavesTheMediumAloneForTwoSidedPrintingWithNothingSelected)
{
    showPanel();
    panel->setFlag(DuplexOn, true);
    panel->mediaTypePopup->setCurrentIndex(-1);
    panel->getUIValues();
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(ReadBackTest, AsksTheHostOnlyForWhatDiffers)
{
    showPanel();
    panel->getUIValues();
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(ReadBackTest, KeepsAValueThatTheHostRefuses)
{
    showPanel();
    host->setRefused({u"VKBiDir"_s});
    panel->biDirButton->setChecked(true);
    panel->getUIValues();
    EXPECT_EQ(calls, QStringList{u"!VKBiDir=ON"_s});
    EXPECT_EQ(pending(u"VKBiDir"_s), u"OFF"_s);
}

TEST_F(ReadBackTest, RestoresTheMarkedChoices)
{
    createPanel();
    mark(u"VKMediaType"_s, u"Glossy"_s);
    mark(u"VKBiDir"_s, u"ON"_s);
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(panel->outputBin(), (QVariantMap{{u"VKMediaType"_s, u"Glossy"_s},
                                               {u"VKResolution"_s, u"Normal"_s},
                                               {u"VKColorMatching"_s, u"Natural"_s},
                                               {u"MirrorPrint"_s, u"False"_s},
                                               {u"VKBiDir"_s, u"ON"_s},
                                               {u"VKSlowDrying"_s, u"OFF"_s},
                                               {u"VKVertLineAlignOther"_s, u"OFF"_s},
                                               {u"VKNoControl"_s, u"A"_s}}));
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(ReadBackTest, TakesTheDefaultWhereNothingIsMarked)
{
    usePrinter(PPDSource().option("VKResolution", {"Normal", "Best"}).open());
    unmark(ppd.get(), "VKResolution");
    createPanel();
    EXPECT_TRUE(marked(u"VKResolution"_s).isNull());
    EXPECT_EQ(panel->outputBin(), (QVariantMap{{u"VKResolution"_s, u"Normal"_s}}));
}

TEST_F(ReadBackTest, TakesAnEmptyValueWithoutADefaultUntilTheControlsAreReadBack)
{
    usePrinter(PPDSource()
                   .optionWithoutDefault("VKResolution", {"Normal", "Best"})
                   .optionWithoutDefault("VKColorMatching", {"Natural", "Vivid"})
                   .optionWithoutDefault("VKBiDir", {"ON", "OFF"})
                   .open());
    createPanel();
    EXPECT_EQ(panel->outputBin(), (QVariantMap{{u"VKResolution"_s, u""_s},
                                               {u"VKColorMatching"_s, u""_s},
                                               {u"VKBiDir"_s, u""_s}}));
    ASSERT_NE(panel->panelView(), nullptr);
    EXPECT_EQ(takeCalls(), QStringList());
    panel->willShow();
    panel->saveAllValues();
    EXPECT_EQ(takeCalls(), QStringList({u"VKResolution=Normal"_s, u"VKBiDir=OFF"_s}));
    EXPECT_EQ(panel->matrix->selectedRow(), -1);
    EXPECT_EQ(panel->outputBin(), (QVariantMap{{u"VKResolution"_s, u"Normal"_s},
                                               {u"VKColorMatching"_s, u""_s},
                                               {u"VKBiDir"_s, u"OFF"_s}}));
}

TEST_F(ReadBackTest, KeepsEntriesOfKeywordsThatThePPDLacks)
{
    createPanel();
    QVariantMap values = panel->outputBin();
    values.insert(u"VKBrightness"_s, 7);
    panel->setOutputBin(values);
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(pending(u"VKBrightness"_s), QVariant(7));
}

TEST_F(ReadBackTest, RunsItsStepsInOrder)
{
    createPanel();
    panel->defaults = [this] {
        panel->asked << u"fax is known: %1"_s.arg((panel->imageModeFlag() & FaxOutput) != 0);
        panel->setOutputBin({{u"VKResolution"_s, u"Best"_s}});
    };
    mark(u"VKOutput"_s, u"FAX"_s);
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(panel->asked,
              (QStringList{u"setDefaults"_s, u"fax is known: 1"_s, u"checkConstraints"_s}));
    EXPECT_EQ(pending(u"VKResolution"_s), u"Normal"_s) << "a mark wins over a default";
}

TEST_F(ReadBackTest, ShowsTheRestoredValuesInTheControls)
{
    showPanel();
    mark(u"VKMediaType"_s, u"Glossy"_s);
    mark(u"VKColorMatching"_s, u"None"_s);
    mark(u"MirrorPrint"_s, u"True"_s);
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(panel->mediaTypePopup->selectedObject(), u"Glossy"_s);
    EXPECT_EQ(panel->matrix->selectedObject(), u"None"_s);
    EXPECT_TRUE(panel->mirrorButton->isChecked());
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(ReadBackTest, LeavesTheControlsAloneBeforeTheyAreBuilt)
{
    createPanel();
    ASSERT_NE(panel->panelView(), nullptr);
    mark(u"VKBiDir"_s, u"ON"_s);
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_FALSE(panel->biDirButton->isChecked());
    EXPECT_TRUE(host->ticket().values().isEmpty());
}

TEST_F(ReadBackTest, RecordsAChoiceMadeElsewhereAndShowsIt)
{
    showPanel();
    mark(u"VKBiDir"_s, u"ON"_s);
    panel->PPDOptionKeyValueDidChange(u"VKBiDir"_s, u"ON"_s);
    EXPECT_EQ(pending(u"VKBiDir"_s), u"ON"_s);
    EXPECT_TRUE(panel->biDirButton->isChecked());
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(ReadBackTest, RecordsAChoiceMadeElsewhereBeforeTheViewIsLoaded)
{
    createPanel();
    panel->PPDOptionKeyValueDidChange(u"VKMediaType"_s, u"HagakiUra"_s);
    EXPECT_EQ(pending(u"VKMediaType"_s), u"HagakiUra"_s);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(ReadBackTest, ShowsAChoiceMadeElsewhereInAViewWhoseControlsAreNotBuiltYet)
{
    createPanel();
    ASSERT_NE(panel->panelView(), nullptr);
    panel->PPDOptionKeyValueDidChange(u"VKBiDir"_s, u"ON"_s);
    EXPECT_TRUE(panel->biDirButton->isChecked());
}

struct ForeignCase
{
    const char *behaviour;
    QString keyword;
};

class ForeignKeyword : public ReadBackTest, public testing::WithParamInterface<ForeignCase>
{};

const ForeignCase kForeignCases[] = {
    {"OfTheOtherPanel", u"VKHalfTonePattern"_s},
    {"PageSize", u"PageSize"_s},
    {"InAnotherCase", u"vkbidir"_s},
    {"Missing", QString()},
};

TEST_P(ForeignKeyword, ChangesNothing)
{
    showPanel();
    const QVariantMap before = panel->outputBin();
    panel->PPDOptionKeyValueDidChange(GetParam().keyword, u"ON"_s);
    EXPECT_EQ(panel->outputBin(), before);
    EXPECT_TRUE(calls.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Cases, ForeignKeyword, testing::ValuesIn(kForeignCases), CaseName());

TEST_F(ReadBackTest, SaysThatSavingSucceeds)
{
    createPanel();
    QString error;
    EXPECT_TRUE(panel->VKPrintQualityPDE::saveValuesAndReturnError(&error));
    EXPECT_TRUE(panel->restoreValuesAndReturnError(&error));
    EXPECT_TRUE(error.isNull());
}

} // namespace
