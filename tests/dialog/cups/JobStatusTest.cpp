#include "dialog/cups/JobControl.h"
#include "dialog/cups/JobSentence.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct StatusCase
{
    const char *behaviour;
    int state;
    std::vector<const char *> reasons;
    std::vector<const char *> printerReasons;
    const char *message; ///< null: none
    JobPhase phase;
    QString sentence;
};

IppHandle answer(const StatusCase &row)
{
    IppHandle job(ippNew());
    ippAddInteger(job.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", row.state);
    ippAddStrings(job.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-state-reasons",
                  static_cast<int>(row.reasons.size()), nullptr, row.reasons.data());
    ippAddStrings(job.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-printer-state-reasons",
                  static_cast<int>(row.printerReasons.size()), nullptr, row.printerReasons.data());
    if (row.message)
        ippAddString(job.get(), IPP_TAG_JOB, IPP_TAG_TEXT, "job-printer-state-message", nullptr,
                     row.message);
    return job;
}

class StatusOf : public testing::TestWithParam<StatusCase>
{};

TEST_P(StatusOf, AJobIsTold)
{
    const IppHandle job = answer(GetParam());
    const JobStatus status = statusOf(job.get());
    EXPECT_EQ(status.phase, GetParam().phase);
    EXPECT_EQ(sentenceOf({u"Photo"_s, 41, 0}, status), GetParam().sentence);
}

const StatusCase kStatuses[] = {
    {"Waiting",
     IPP_JSTATE_PENDING,
     {"none"},
     {"none"},
     nullptr,
     JobPhase::Waiting,
     u"Job 41 on Photo is waiting for its turn."_s},
    {"BehindAStoppedPrinter",
     IPP_JSTATE_PENDING,
     {"printer-stopped"},
     {"paused"},
     "Maintenance.",
     JobPhase::Stopped,
     u"Job 41 on Photo is waiting: the printer is stopped: Maintenance."_s},
    {"BehindAStoppedPrinterThatGivesNoReason",
     IPP_JSTATE_PENDING,
     {"printer-stopped"},
     {"none"},
     nullptr,
     JobPhase::Stopped,
     u"Job 41 on Photo is waiting: the printer is stopped."_s},
    {"Printing",
     IPP_JSTATE_PROCESSING,
     {"job-printing"},
     {"none"},
     "Rendering",
     JobPhase::Printing,
     u"Job 41 on Photo is printing."_s},
    {"PrintingWithAWarning",
     IPP_JSTATE_PROCESSING,
     {"job-printing"},
     {"marker-supply-low-warning", "media-low-report"},
     nullptr,
     JobPhase::Printing,
     u"Job 41 on Photo is printing."_s},
    {"OutOfPaperInThePrintersWords",
     IPP_JSTATE_PROCESSING,
     {"job-printing"},
     {"media-empty-error"},
     "The multi-purpose tray is empty",
     JobPhase::InTrouble,
     u"Job 41 on Photo: the printer needs somebody: The multi-purpose tray is empty."_s},
    {"OutOfPaperByItsKeyword",
     IPP_JSTATE_PROCESSING,
     {"job-printing"},
     {"marker-supply-low-warning", "media-empty-error"},
     nullptr,
     JobPhase::InTrouble,
     u"Job 41 on Photo: the printer needs somebody: Out of paper."_s},
    {"HeldToTryAgain",
     IPP_JSTATE_HELD,
     {"resources-are-not-ready"},
     {"none"},
     "No route to the printer",
     JobPhase::HeldToRetry,
     u"Job 41 on Photo is held and will be tried again later: No route to the printer."_s},
    {"HeldForAPassword",
     IPP_JSTATE_HELD,
     {"cups-held-for-authentication"},
     {"none"},
     nullptr,
     JobPhase::NeedsPassword,
     u"Job 41 on Photo is held until its printer is given a user name and a password."_s},
    {"Held",
     IPP_JSTATE_HELD,
     {"job-hold-until-specified"},
     {"none"},
     nullptr,
     JobPhase::Held,
     u"Job 41 on Photo is held."_s},
    {"Finished",
     IPP_JSTATE_COMPLETED,
     {"job-completed-successfully"},
     {"media-empty-error"},
     "Out of paper for the next one",
     JobPhase::Finished,
     u"Job 41 on Photo is printed."_s},
    {"FinishedWithErrors",
     IPP_JSTATE_COMPLETED,
     {"job-completed-with-errors"},
     {"none"},
     "Two pages are missing.",
     JobPhase::FinishedWithErrors,
     u"Job 41 on Photo has ended with errors: Two pages are missing."_s},
    {"Cancelled",
     IPP_JSTATE_CANCELED,
     {"processing-to-stop-point"},
     {"none"},
     nullptr,
     JobPhase::Cancelled,
     u"Job 41 on Photo was cancelled."_s},
    {"Aborted",
     IPP_JSTATE_ABORTED,
     {"aborted-by-system"},
     {"none"},
     "Unsupported document",
     JobPhase::Aborted,
     u"The server has given job 41 on Photo up: Unsupported document."_s},
    {"InAStateThatThereIsNot",
     77,
     {"none"},
     {"none"},
     nullptr,
     JobPhase::Unknown,
     u"The server has no record of job 41 on Photo any more: whether it was printed is not known."_s},
};

INSTANTIATE_TEST_SUITE_P(Table, StatusOf, testing::ValuesIn(kStatuses), CaseName());

TEST(JobSentence, CountsNoMorePagesThanThereAre)
{
    JobStatus status{JobPhase::Printing, 1, {}, {}};
    EXPECT_EQ(sentenceOf({u"Photo"_s, 41, 5}, status),
              u"Job 41 on Photo is printing page 2 of 5."_s);
    status.sheets = 9;
    EXPECT_EQ(sentenceOf({u"Photo"_s, 41, 5}, status),
              u"Job 41 on Photo is printing page 5 of 5."_s);
    EXPECT_EQ(sentenceOf({u"Photo"_s, 41, 0}, status),
              u"Job 41 on Photo is printing, 9 sheets so far."_s);
    status.sheets = 0;
    EXPECT_EQ(sentenceOf({u"Photo"_s, 41, 5}, status), u"Job 41 on Photo is printing."_s);
}

struct HeldCase
{
    const char *behaviour;
    const char *until;
    QString sentence;
};

class HeldUntil : public testing::TestWithParam<HeldCase>
{};

TEST_P(HeldUntil, AJobSaysWhatItWaitsFor)
{
    const IppHandle job(ippNew());
    ippAddInteger(job.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", IPP_JSTATE_HELD);
    ippAddString(job.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-hold-until", nullptr,
                 GetParam().until);
    EXPECT_EQ(sentenceOf({u"Photo"_s, 41, 0}, statusOf(job.get())), GetParam().sentence);
}

INSTANTIATE_TEST_SUITE_P(
    Table, HeldUntil,
    testing::Values(HeldCase{"Somebody", "indefinite",
                             u"Job 41 on Photo is held until somebody releases it."_s},
                    HeldCase{"ANamedTime", "weekend",
                             u"Job 41 on Photo is held. When to Print: At the weekend."_s},
                    HeldCase{"ANameThatNobodyKnows", "full-moon", u"Job 41 on Photo is held."_s},
                    HeldCase{"NothingAnyMore", "no-hold", u"Job 41 on Photo is held."_s}),
    CaseName());

TEST(JobSentence, TakesAQueueAndAReasonAsTheyStand)
{
    EXPECT_EQ(sentenceOf({u"%2 %3"_s, 41, 0}, {JobPhase::Aborted, 0, u"%1 of %4"_s, {}}),
              u"The server has given job 41 on %2 %3 up: %1 of %4."_s);
}

TEST(JobStatusOf, AttributesOfAnotherSyntaxAreMissing)
{
    const IppHandle job(ippNew());
    ippAddInteger(job.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", IPP_JSTATE_PROCESSING);
    ippAddInteger(job.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-state-reasons", 7);
    ippAddString(job.get(), IPP_TAG_JOB, IPP_TAG_TEXT, "job-media-sheets-completed", nullptr, "3");
    ippAddInteger(job.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-printer-state-message", 1);
    EXPECT_EQ(statusOf(job.get()), (JobStatus{JobPhase::Printing, 0, {}, {}}));
}

TEST(JobStatusOf, FewerThanNoSheetsAreNone)
{
    const IppHandle job(ippNew());
    ippAddInteger(job.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", IPP_JSTATE_PROCESSING);
    ippAddInteger(job.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-media-sheets-completed", -3);
    EXPECT_EQ(statusOf(job.get()), (JobStatus{JobPhase::Printing, 0, {}, {}}));
}

TEST(JobStatusOf, AWaitingJobKnowsOfItsPrinterThatItIsStopped)
{
    const JobStatus waiting{JobPhase::Waiting, 0, {}, {}};
    const IppHandle printer(ippNew());
    ippAddInteger(printer.get(), IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", IPP_PSTATE_IDLE);
    ippAddString(printer.get(), IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-state-message", nullptr,
                 "Paused");
    EXPECT_EQ(withPrinter(waiting, printer.get()), waiting);
    ipp_attribute_t *state = ippFindAttribute(printer.get(), "printer-state", IPP_TAG_ENUM);
    ippSetInteger(printer.get(), &state, 0, IPP_PSTATE_STOPPED);
    EXPECT_EQ(withPrinter(waiting, printer.get()),
              (JobStatus{JobPhase::Stopped, 0, u"Paused"_s, {}}));
}

struct OfferCase
{
    JobAction action;
    QList<JobPhase> phases;
};

TEST(JobActions, AreOfferedWhereTheServerWouldTakeThem)
{
    using enum JobPhase;
    const QList<JobPhase> all{Waiting,   Held,    HeldToRetry, NeedsPassword,      Printing,
                              InTrouble, Stopped, Finished,    FinishedWithErrors, Cancelled,
                              Aborted,   Unknown};
    const QList<OfferCase> offers{
        {JobAction::Cancel,
         {Waiting, Held, HeldToRetry, NeedsPassword, Printing, InTrouble, Stopped}},
        {JobAction::Hold, {Waiting, Stopped}},
        {JobAction::Release, {Held, HeldToRetry}},
        {JobAction::Restart, {Finished, FinishedWithErrors, Cancelled, Aborted}}};
    for (const OfferCase &offer : offers)
        for (const JobPhase phase : all)
            EXPECT_EQ(isOffered(offer.action, phase), offer.phases.contains(phase))
                << static_cast<int>(offer.action) << " in " << static_cast<int>(phase);
}

} // namespace
