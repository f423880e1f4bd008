#include "tests/panel/PanelFixture.h"

#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;

namespace {

class CommitTest : public PanelFixture
{
protected:
    QVariant pending(const QString &keyword) const { return panel->outputBin().value(keyword); }
    QString key() const { return panel->outputBin().value(u"VKMediaType"_s).toString(); }
};

TEST_F(CommitTest, RecordsAProgramsChoiceThatTheHostAccepts)
{
    createPanel();
    EXPECT_TRUE(panel->setAndMarkValue(u"Best"_s, u"VKResolution"_s));
    EXPECT_EQ(pending(u"VKResolution"_s), u"Best"_s);
    EXPECT_EQ(marked(u"VKResolution"_s), u"Best"_s);
    EXPECT_EQ(calls, QStringList{u"VKResolution=Best"_s});
}

TEST_F(CommitTest, DoesNotAskTheHostForTheValueThatIsPending)
{
    createPanel();
    EXPECT_FALSE(panel->setAndMarkValue(u"Normal"_s, u"VKResolution"_s));
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(CommitTest, ChangesNothingWhenTheHostRefusesAProgramsChoice)
{
    createPanel();
    host->setRefused({u"VKResolution=Best"_s});
    EXPECT_FALSE(panel->setAndMarkValue(u"Best"_s, u"VKResolution"_s));
    EXPECT_EQ(pending(u"VKResolution"_s), u"Normal"_s);
    EXPECT_EQ(marked(u"VKResolution"_s), u"Normal"_s);
    EXPECT_EQ(calls, QStringList{u"!VKResolution=Best"_s});
}

TEST_F(CommitTest, RefusesAChoiceWithoutAKeyword)
{
    createPanel();
    EXPECT_FALSE(panel->setAndMarkValue(u"Best"_s, QString()));
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(CommitTest, AsksForAKeywordThatHasNoPendingValueYet)
{
    createPanel();
    EXPECT_TRUE(panel->setAndMarkValue(u"FAX"_s, u"VKOutput"_s));
    EXPECT_EQ(pending(u"VKOutput"_s), u"FAX"_s);
}

TEST_F(CommitTest, AsksForAnEmptyNameWhereNothingIsPending)
{
    createPanel();
    EXPECT_FALSE(panel->setAndMarkValue(u""_s, u"VKOutput"_s));
    EXPECT_EQ(calls, QStringList{u"!VKOutput="_s});
}

TEST_F(CommitTest, RefreshesNoControlForAProgramsChoice)
{
    showPanel();
    panel->setAndMarkValue(u"Best"_s, u"VKResolution"_s);
    EXPECT_EQ(panel->resolutionPopup->selectedObject(), u"Normal"_s);
}

TEST_F(CommitTest, RecordsAPickInAPopUp)
{
    showPanel();
    panel->resolutionPopup->pick(1);
    EXPECT_EQ(pending(u"VKResolution"_s), u"Best"_s);
    EXPECT_EQ(marked(u"VKResolution"_s), u"Best"_s);
    EXPECT_EQ(calls, QStringList{u"VKResolution=Best"_s}) << "the read-back finds it done";
}

TEST_F(CommitTest, OffersAPickAlsoOfTheSelectedItem)
{
    showPanel();
    panel->resolutionPopup->pick(0);
    EXPECT_EQ(calls, QStringList{u"VKResolution=Normal"_s});
}

TEST_F(CommitTest, RecordsAPickInAMatrix)
{
    showPanel();
    panel->matrix->pick(1);
    EXPECT_EQ(pending(u"VKColorMatching"_s), u"Vivid"_s);
    EXPECT_EQ(calls, QStringList{u"VKColorMatching=Vivid"_s});
}

struct BoxCase
{
    const char *behaviour;
    QCheckBox *TestPanel::*box;
    QString keyword;
    QString on;
    QString off;
};

class CheckBox : public CommitTest, public testing::WithParamInterface<BoxCase>
{};

const BoxCase kBoxCases[] = {
    {"MirrorPrintIsTrueOrFalse", &TestPanel::mirrorButton, u"MirrorPrint"_s, u"True"_s, u"False"_s},
    {"EveryOtherIsOnOrOff", &TestPanel::biDirButton, u"VKBiDir"_s, u"ON"_s, u"OFF"_s},
    {"SlowDrying", &TestPanel::slowDryButton, u"VKSlowDrying"_s, u"ON"_s, u"OFF"_s},
};

TEST_P(CheckBox, CommitsItsTwoStates)
{
    showPanel();
    QCheckBox *box = panel.get()->*GetParam().box;
    box->click();
    EXPECT_EQ(pending(GetParam().keyword), GetParam().on);
    EXPECT_EQ(marked(GetParam().keyword), GetParam().on);
    box->click();
    EXPECT_EQ(pending(GetParam().keyword), GetParam().off);
    EXPECT_EQ(takeCalls(), (QStringList{GetParam().keyword + u'=' + GetParam().on,
                                        GetParam().keyword + u'=' + GetParam().off}));
}

TEST_P(CheckBox, IsPutBackWhenTheHostRefuses)
{
    showPanel();
    host->setRefused({GetParam().keyword});
    QCheckBox *box = panel.get()->*GetParam().box;
    box->click();
    EXPECT_FALSE(box->isChecked());
    EXPECT_EQ(pending(GetParam().keyword), GetParam().off);
    EXPECT_EQ(calls, QStringList{u'!' + GetParam().keyword + u'=' + GetParam().on});
}

INSTANTIATE_TEST_SUITE_P(Cases, CheckBox, testing::ValuesIn(kBoxCases), CaseName());

TEST_F(CommitTest, PutsAPopUpBackWhenTheHostRefuses)
{
    showPanel();
    host->setRefused({u"VKMediaType=Glossy"_s});
    panel->mediaTypePopup->pick(panel->mediaTypePopup->indexOfRepresentedObject(u"Glossy"_s));
    EXPECT_EQ(panel->mediaTypePopup->selectedObject(), u"Plain"_s);
    EXPECT_EQ(pending(u"VKMediaType"_s), u"Plain"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Plain"_s);
}

TEST_F(CommitTest, PutsAMatrixBackWhenTheHostRefuses)
{
    showPanel();
    host->setRefused({u"VKColorMatching"_s});
    panel->matrix->pick(2);
    EXPECT_EQ(panel->matrix->selectedObject(), u"Natural"_s);
    EXPECT_EQ(pending(u"VKColorMatching"_s), u"Natural"_s);
}

struct RevertCase
{
    const char *behaviour;
    QString pending;
    QString shownBefore;
    QString shownAfter;
};

class RevertMedium : public CommitTest, public testing::WithParamInterface<RevertCase>
{};

const RevertCase kRevertCases[] = {
    {"ListedValue", u"Glossy"_s, u"Plain"_s, u"Glossy"_s},
    {"PlainPapersTwoSidedFormShowsAsPlain", u"PlainDuplex"_s, u"Glossy"_s, u"Plain"_s},
    {"UnlistedValueLeavesThePopUp", u"HagakiUra"_s, u"Glossy"_s, u"Glossy"_s},
    {"MissingValueLeavesThePopUp", QString(), u"Glossy"_s, u"Glossy"_s},
};

TEST_P(RevertMedium, ShowsThePendingValue)
{
    showPanel();
    QVariantMap values = panel->outputBin();
    values.remove(u"VKMediaType"_s);
    if (!GetParam().pending.isNull())
        values.insert(u"VKMediaType"_s, GetParam().pending);
    panel->setOutputBin(values);
    panel->mediaTypePopup->selectObject(GetParam().shownBefore);
    panel->revertUI(panel->mediaTypePopup, u"VKMediaType"_s);
    EXPECT_EQ(panel->mediaTypePopup->selectedObject(), GetParam().shownAfter);
}

INSTANTIATE_TEST_SUITE_P(Cases, RevertMedium, testing::ValuesIn(kRevertCases), CaseName());

struct TickCase
{
    const char *behaviour;
    QString pending;
    bool checked;
};

class RevertBox : public CommitTest, public testing::WithParamInterface<TickCase>
{};

const TickCase kTickCases[] = {
    {"On", u"ON"_s, true},        {"True", u"True"_s, true},     {"Off", u"OFF"_s, false},
    {"False", u"False"_s, false}, {"OtherCase", u"on"_s, false}, {"Missing", QString(), false},
};

TEST_P(RevertBox, IsTickedForOnAndTrue)
{
    showPanel();
    panel->setOutputBin({{u"VKBiDir"_s, GetParam().pending}});
    panel->biDirButton->setChecked(!GetParam().checked);
    panel->revertUI(panel->biDirButton, u"VKBiDir"_s);
    EXPECT_EQ(panel->biDirButton->isChecked(), GetParam().checked);
}

INSTANTIATE_TEST_SUITE_P(Cases, RevertBox, testing::ValuesIn(kTickCases), CaseName());

TEST_F(CommitTest, LeavesAControlOfAnotherKindAlone)
{
    showPanel();
    panel->revertUI(panel->mediaTypeLabel, u"VKMediaType"_s);
    panel->revertUI(nullptr, u"VKMediaType"_s);
    panel->requestNewOutputBin(panel->mediaTypeLabel);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(CommitTest, OnlyReadsTheControlsBackForAPopUpWithoutSelection)
{
    showPanel();
    panel->resolutionPopup->setCurrentIndex(-1);
    panel->biDirButton->setChecked(true);
    panel->requestNewOutputBin(panel->resolutionPopup);
    EXPECT_EQ(calls, QStringList{u"VKBiDir=ON"_s});
    EXPECT_EQ(pending(u"VKResolution"_s), u"Normal"_s);
}

TEST_F(CommitTest, OnlyReadsTheControlsBackForAMatrixWithoutSelection)
{
    showPanel();
    panel->matrix->setNumberOfRows(0);
    panel->requestNewOutputBin(panel->matrix);
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(pending(u"VKColorMatching"_s), u"Natural"_s);
}

TEST_F(CommitTest, OnlyReadsTheControlsBackWithoutASender)
{
    showPanel();
    panel->biDirButton->setChecked(true);
    panel->requestNewOutputBin(nullptr);
    EXPECT_EQ(calls, QStringList{u"VKBiDir=ON"_s});
}

TEST_F(CommitTest, DoesNothingForASenderBeforeTheControlsAreBuilt)
{
    createPanel();
    panel->requestNewOutputBin(nullptr);
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_TRUE(host->ticket().values().isEmpty());
}

TEST_F(CommitTest, LetsTheRulesChangeAControlBeforeItIsReadBack)
{
    showPanel();
    panel->constraints = [this] { panel->resolutionPopup->selectObject(u"Best"_s); };
    panel->biDirButton->click();
    EXPECT_EQ(calls, (QStringList{u"VKBiDir=ON"_s, u"VKResolution=Best"_s}));
}

TEST_F(CommitTest, OffersThePickThenTheRestInTheOrderOfTheKeywords)
{
    showPanel();
    panel->slowDryButton->setChecked(true);
    panel->mirrorButton->setChecked(true);
    panel->biDirButton->click();
    EXPECT_EQ(calls, (QStringList{u"VKBiDir=ON"_s, u"MirrorPrint=True"_s, u"VKSlowDrying=ON"_s}));
}

} // namespace
