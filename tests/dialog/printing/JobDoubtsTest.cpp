#include "dialog/printing/JobDoubts.h"

#include "dialog/printing/PanelVeto.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Settings, saved for the queue or asked for, and what is to be said of the job.
struct DoubtfulJob
{
    const char *behaviour;
    QList<JobOption> saved;
    QList<RequestedChoice> wanted;
    QStringList doubts = {};
    QStringList replaced = {};
    QList<JobAdvice> advice = {};
};

class DoubtfulJobs : public testing::TestWithParam<DoubtfulJob>
{};

TEST_P(DoubtfulJobs, AreToldInOneSentenceEach)
{
    SessionOptions options;
    options.ppdPath = samplePPD(u"velkaro-px-t900"_s);
    options.bundlePath = builtBundle();
    PrintJob job;
    job.setPrinter({}, openPrinter(options, *openPPD(options.ppdPath), GetParam().saved));
    const ScriptedAnswers answers(true);
    static_cast<void>(makeSettings(job, GetParam().wanted));
    const SettingState before = settingState(job);
    ASSERT_TRUE(askPanels(*job.session()));
    EXPECT_EQ(replacedBySaving(job, before, settingState(job)), GetParam().replaced);
    EXPECT_EQ(doubtsOf(job, settingState(job)), GetParam().doubts);
    EXPECT_EQ(adviceFor(job), GetParam().advice);
}

INSTANTIATE_TEST_SUITE_P(
    Table, DoubtfulJobs,
    testing::Values(
        DoubtfulJob{"NothingToSay", {}, {}},
        DoubtfulJob{"APaperForBothSides",
                    {},
                    {{u"Duplex"_s, u"DuplexTumble"_s}, {u"PageSize"_s, u"A3.LongGrain"_s}}},
        DoubtfulJob{"ABorderlessPaperForOneSide", {}, {{u"PageSize"_s, u"A4.Fullbleed"_s}}},
        DoubtfulJob{"ABorderlessPaperForBothSides",
                    {},
                    {{u"PageSize"_s, u"A4.Fullbleed"_s}, {u"Duplex"_s, u"DuplexNoTumble"_s}},
                    {u"The printer cannot print on both sides of this paper: A4 (Borderless)."_s}},
        DoubtfulJob{"AnOwnSizeForBothSides",
                    {},
                    {{u"PageSize"_s, u"Custom.100x150mm"_s}, {u"Duplex"_s, u"DuplexNoTumble"_s}},
                    {u"The printer cannot print on both sides of this paper: 100 × 150 mm."_s}},
        DoubtfulJob{"SavedChoicesThatSavingReplaces",
                    {{u"VKMediaType"_s, u"Glossy"_s},
                     {u"VKResolution"_s, u"Best"_s},
                     {u"Duplex"_s, u"DuplexNoTumble"_s}},
                    {},
                    {},
                    {u"Media Type: \"Plain Paper (Two-Sided)\" would be printed in place of "
                     "\"Other Glossy Paper\"."_s,
                     u"Print Quality: \"Normal\" would be printed in place of \"Best\"."_s}},
        DoubtfulJob{"DefaultsThatSavingReplaces", {{u"Duplex"_s, u"DuplexNoTumble"_s}}, {}},
        DoubtfulJob{"AShownMediumThatIsNotPrinted",
                    {},
                    {{u"VKMediaType"_s, u"Glossy"_s}, {u"Duplex"_s, u"DuplexNoTumble"_s}},
                    {u"Media Type: \"Plain Paper (Two-Sided)\" would be printed in place of "
                     "\"Other Glossy Paper\"."_s}},
        DoubtfulJob{"AnEnvelopeFromAnotherTray",
                    {},
                    {{u"PageSize"_s, u"EnvDL"_s}},
                    {},
                    {},
                    {{{u"VKInputSlot"_s, u"MPTray"_s},
                      u"For Envelope DL there is \"Paper Source: Multi-Purpose Tray\"."_s}}},
        DoubtfulJob{"AnEnvelopeFromTheTrayForIt",
                    {},
                    {{u"PageSize"_s, u"EnvDL"_s}, {u"VKInputSlot"_s, u"MPTray"_s}}}),
    CaseName());

} // namespace
