#include "dialog/advice/Advising.h"

#include "dialog/advice/RemedySearch.h"
#include "dialog/advice/SettingScratch.h"
#include "dialog/advice/SettingTrials.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "dialog/printing/SettingRequests.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QMap>
#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void openOn(PrintJob &job, const QString &ppd, const QList<RequestedChoice> &settings)
{
    SessionOptions options;
    options.ppdPath = ppd;
    options.bundlePath = builtBundle();
    job.setPrinter({}, openPrinter(options, *openPPD(ppd), {}));
    EXPECT_TRUE(makeSettings(job, settings));
}

struct Question
{
    std::string behaviour;
    QString printer;
    QList<RequestedChoice> settings;
    RequestedChoice wanted;
    Advice::Outcome outcome;
    QList<RequestedChoice> changes; ///< of the first remedy
    QString sentence;
};

class AdviceOn : public testing::TestWithParam<Question>
{
protected:
    void SetUp() override
    {
        openOn(m_job, samplePPD(GetParam().printer), GetParam().settings);
        const Result<PPDMark> wanted =
            choiceOfPPD(*m_job.session(), GetParam().wanted.keyword, GetParam().wanted.choice);
        ASSERT_TRUE(wanted);
        m_wanted = *wanted;
    }

    PrintJob m_job;
    PPDMark m_wanted;
};

QList<RequestedChoice> changesOf(const Advice &advice)
{
    QList<RequestedChoice> changes;
    for (const SettingChange &change : advice.remedies.value(0).changes)
        changes += RequestedChoice{change.keyword, change.to};
    return changes;
}

TEST_P(AdviceOn, AChoice)
{
    const std::optional<Advice> advice = adviceOn(*m_job.session(), m_wanted);
    ASSERT_TRUE(advice);
    EXPECT_EQ(advice->outcome, GetParam().outcome);
    EXPECT_EQ(changesOf(*advice), GetParam().changes);
    EXPECT_EQ(advice->sentence, GetParam().sentence);
}

TEST_P(AdviceOn, AChoiceHoldsInAnotherSession)
{
    const std::optional<Advice> advice = adviceOn(*m_job.session(), m_wanted);
    ASSERT_TRUE(advice);
    m_job.closePrinter();
    openOn(m_job, samplePPD(GetParam().printer), GetParam().settings);
    prepareControls(*m_job.session());
    applyRemedy(m_job, advice->remedies.value(0), m_wanted);
    savePreparedPanels(*m_job.session());
    EXPECT_EQ(hasSetting(m_job, {m_wanted.keyword, m_wanted.choice}),
              advice->outcome != Advice::Outcome::Impossible);
}

TEST_P(AdviceOn, AChoiceLeavesTheSessionAlone)
{
    const SettingState before = settingState(m_job);
    const QVariantMap ticket = m_job.session()->ticket().values();
    ASSERT_TRUE(adviceOn(*m_job.session(), m_wanted));
    EXPECT_EQ(settingState(m_job).marks, before.marks);
    EXPECT_EQ(settingState(m_job).shown, before.shown);
    EXPECT_EQ(m_job.session()->ticket().values(), ticket);
}

using enum Advice::Outcome;

const Question kQuestions[] = {
    {"WhatIsThereAlready",
     u"velkaro-px-t900"_s,
     {},
     {u"VKResolution"_s, u"High"_s},
     Available,
     {},
     u"High can be chosen."_s},
    {"AQualityThatNeedsAnotherMedium",
     u"velkaro-px-t900"_s,
     {},
     {u"vkresolution"_s, u"photo"_s},
     Possible,
     {{u"VKMediaType"_s, u"Inkjet"_s}},
     u"Photo is not there for Plain Paper. It is there for Inkjet Paper, Velkaro Photo Paper, "
     u"Glossy and 4 more."_s},
    {"WhatThePlugInSwitchesOffOnPurpose",
     u"velkaro-px-t900"_s,
     {{u"VKMediaType"_s, u"Glossy"_s}},
     {u"VKBiDir"_s, u"ON"_s},
     Possible,
     {{u"VKResolution"_s, u"Fast"_s}},
     u"Some media types and print qualities are printed in one direction on purpose, so that lines "
     u"and areas stay even. Bi-Directional Printing: On is not there for Photo. It is there for "
     u"Fast Photo."_s},
    {"AMediumThatNeedsAnotherPaper",
     u"velkaro-px-t900"_s,
     {},
     {u"VKMediaType"_s, u"PrintableDisc"_s},
     Possible,
     {{u"PageSize"_s, u"120x120mm"_s}},
     u"Printable Disc is not there for A4. It is there for Disc 120 mm and Disc 120 mm (Wide "
     u"Label)."_s},
    {"AValueOfASliderThatIsSwitchedOff",
     u"velkaro-px-t900"_s,
     {},
     {u"VKBrightness"_s, u"5"_s},
     Possible,
     {{u"VKColorEnhancement"_s, u"ON"_s}},
     u"Brightness: +5 is not there for Color Enhancement: Off. It is there for Color Enhancement: "
     u"On."_s},
    {"WhatTheDialogOnlyHasDoubtsOf",
     u"velkaro-px-t900"_s,
     {{u"PageSize"_s, u"A4.Fullbleed"_s}},
     {u"Duplex"_s, u"DuplexTumble"_s},
     Available,
     {},
     u"Short-Edge Binding can be chosen."_s},
    {"AFormThatThePanelsMarkWhenTheySave",
     u"velkaro-px-t900"_s,
     {{u"Duplex"_s, u"DuplexTumble"_s}, {u"VKOutput"_s, u"FAX"_s}},
     {u"VKMediaType"_s, u"Plain"_s},
     Possible,
     {{u"Duplex"_s, u"None"_s}},
     u"Plain Paper is not there for Short-Edge Binding. It is there for Two-Sided Printing: "
     u"Off."_s},
    {"AMediumOfAPaperThatIsNotForTwoSides",
     u"velkaro-px-t900"_s,
     {{u"Duplex"_s, u"DuplexTumble"_s}},
     {u"VKMediaType"_s, u"PrintableDisc"_s},
     Possible,
     {{u"PageSize"_s, u"120x120mm"_s}, {u"Duplex"_s, u"None"_s}},
     u"Printable Disc is not there for A4 and Short-Edge Binding. It is there with Disc 120 mm "
     u"and Two-Sided Printing: Off."_s},
    {"AMediumThatIsShownButNotPrinted",
     u"velkaro-px-t900"_s,
     {{u"Duplex"_s, u"DuplexTumble"_s}},
     {u"VKMediaType"_s, u"Glossy"_s},
     Possible,
     {{u"Duplex"_s, u"None"_s}},
     u"Other Glossy Paper is not there for Short-Edge Binding. It is there for Two-Sided "
     u"Printing: Off."_s},
};

INSTANTIATE_TEST_SUITE_P(, AdviceOn, testing::ValuesIn(kQuestions), CaseName());

TEST(AdviceOnAForeignPrinter, NamesBothSidesOfAConstraint)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"foreign.ppd"_s);
    writeFile(path, PPDSource()
                        .papers({{"A4", 595, 842}})
                        .option("Tray/Tray", {"Upper/Upper", "Lower/Lower", "Side/Side"})
                        .option("Staple/Staples", {"None/Off", "Left/Left", "Two/Two"})
                        .constraint("Tray Upper", "Staple Left")
                        .constraint("Staple Left", "Tray Upper")
                        .text());
    PrintJob job;
    openOn(job, path, {});
    const std::optional<Advice> advice = adviceOn(*job.session(), {u"Staple"_s, u"Left"_s});
    ASSERT_TRUE(advice);
    EXPECT_EQ(advice->sentence, u"Left is not there for Upper. It is there for Lower and Side."_s);
    EXPECT_EQ(advice->remedies.size(), 2);
}

// The envelope would give it as well, and then the job would have both sides of an envelope.
TEST(AdviceOnAForeignPrinter, NamesNoRemedyThatBringsANewDoubt)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"foreign.ppd"_s);
    writeFile(path, PPDSource()
                        .papers({{"A4", 595, 842}, {"A5", 420, 595}, {"Env10", 297, 684}})
                        .option("Duplex/Two-Sided", {"None/Off", "DuplexNoTumble/Long Edge"})
                        .option("Tray/Tray", {"Upper/Upper", "Side/Side"})
                        .constraint("Tray Side", "PageSize A4")
                        .constraint("PageSize A4", "Tray Side")
                        .text());
    PrintJob job;
    openOn(job, path, {{u"Duplex"_s, u"DuplexNoTumble"_s}});
    const std::optional<Advice> advice = adviceOn(*job.session(), {u"Tray"_s, u"Side"_s});
    ASSERT_TRUE(advice);
    ASSERT_EQ(advice->remedies.size(), 1);
    EXPECT_EQ(advice->remedies.constFirst().changes,
              (QList<SettingChange>{{u"PageSize"_s, u"A4"_s, u"A5"_s}}));
}

/// Ten settings of ten choices. The first one's second choice goes with no choice of the second
/// setting.
QByteArray printerOfManyConditions(int conditions)
{
    PPDSource source;
    source.papers({{"A4", 595, 842}});
    QByteArrayList choices;
    for (int choice = 0; choice < 10; ++choice)
        choices += "C" + QByteArray::number(choice);
    for (int setting = 0; setting < 10; ++setting)
        source.option("S" + QByteArray::number(setting), choices);
    for (const QByteArray &choice : choices)
        source.constraint("S0 C1", "S1 " + choice);
    QByteArray text = source.text();
    for (int count = 0; count < conditions; ++count)
        text += "*UIConstraints: *S" + QByteArray::number(2 + count % 8) + " C" +
                QByteArray::number(1 + count % 9) + " *S" + QByteArray::number(2 + count % 7) +
                " C" + QByteArray::number(1 + count % 5) + '\n';
    return text;
}

TEST(AdviceOnAForeignPrinter, EndsWhereThereAreTooManyConditions)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"bomb.ppd"_s);
    writeFile(path, printerOfManyConditions(4980));
    PrintJob job;
    openOn(job, path, {});
    const std::optional<Advice> advice = adviceOn(*job.session(), {u"S0"_s, u"C1"_s});
    ASSERT_TRUE(advice);
    EXPECT_EQ(advice->outcome, Advice::Outcome::Unknown);
    EXPECT_EQ(advice->sentence,
              u"There are too many conditions to explain why S0: C1 is not there."_s);
}

QString keyOf(const Advice &advice)
{
    return advice.keyword + u'=' + advice.choice;
}

// What is there already, what one change gives, and what takes two.
TEST(AdviceOnSeveralChoices, IsThatOnEachOfThem)
{
    PrintJob job;
    openOn(job, samplePPD(u"velkaro-px-t900"_s), {{u"VKMediaType"_s, u"Glossy"_s}});
    QList<PPDMark> wanted;
    for (const QString &keyword : {u"VKResolution"_s, u"VKBiDir"_s})
        for (const QString &choice : typedChoices(job.ppd(), keyword))
            wanted += PPDMark{keyword, choice};
    QMap<QString, Advice> alone;
    for (const PPDMark &one : wanted)
        if (const auto advice = adviceOn(*job.session(), one))
            alone.insert(keyOf(*advice), *advice);
    QMap<QString, Advice> together;
    for (const Advice &advice : adviceOnEach(*job.session(), wanted))
        together.insert(keyOf(advice), advice);
    EXPECT_EQ(alone.size(), wanted.size());
    EXPECT_EQ(together, alone);
}

TEST(AdviceOnAChoice, IsNotKnownWithoutTime)
{
    PrintJob job;
    openOn(job, samplePPD(u"velkaro-px-t900"_s), {});
    SettingTrials trials(job, {{u"VKResolution"_s, u"Photo"_s}}, std::chrono::seconds(0));
    SettingScratch scratch(trials, 0, 1000);
    EXPECT_EQ(findRemedies(scratch).outcome, Advice::Outcome::Unknown);
}

TEST(AdviceOnAChoice, IsRefusedForWhatThePPDLacks)
{
    PrintJob job;
    openOn(job, samplePPD(u"velkaro-px-t900"_s), {});
    EXPECT_EQ(choiceOfPPD(*job.session(), u"Nothing"_s, u"ON"_s).sentence(),
              u"The printer has no setting Nothing."_s);
    EXPECT_EQ(choiceOfPPD(*job.session(), u"VKBiDir"_s, u"Maybe"_s).sentence(),
              u"Maybe is no value for VKBiDir."_s);
    EXPECT_EQ(*choiceOfPPD(*job.session(), u"pageregion"_s, u"a4"_s),
              (PPDMark{u"PageSize"_s, u"A4"_s}));
}

TEST(AdviceOnAChoice, IsGivenUpWhenNobodyWaitsForIt)
{
    PrintJob job;
    openOn(job, samplePPD(u"velkaro-px-t900"_s), {});
    EXPECT_EQ(adviceOn(*job.session(), {u"VKResolution"_s, u"Photo"_s}, [] { return true; }),
              std::nullopt);
}

} // namespace
