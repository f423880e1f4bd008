#include "dialog/cups/PrinterReasons.h"

#include "dialog/cups/Destinations.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using enum ReasonSeverity;

struct Keyword
{
    const char *behaviour;
    QString keyword;
    ReasonSeverity severity;
    QString text;
};

class PrinterReasonKeyword : public testing::TestWithParam<Keyword>
{};

TEST_P(PrinterReasonKeyword, IsPutIntoWords)
{
    const PrinterReason reason = printerReason(GetParam().keyword);
    EXPECT_EQ(reason.severity, GetParam().severity);
    EXPECT_EQ(reason.text, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, PrinterReasonKeyword,
    testing::Values(
        Keyword{"AnError", u"media-empty-error"_s, Error, u"Out of paper"_s},
        Keyword{"AWarning", u"marker-supply-low-warning"_s, Warning, u"Ink or toner is low"_s},
        Keyword{"AReport", u"offline-report"_s, Report, u"Not connected or switched off"_s},
        Keyword{"WithoutASeverity", u"media-jam"_s, Error, u"Paper jam"_s},
        Keyword{"OfAPart", u"stapler-almost-empty-warning"_s, Warning, u"Stapler: almost empty"_s},
        Keyword{"OfAPartOfTwoWords", u"media-path-jam-error"_s, Error, u"Paper path: jammed"_s},
        Keyword{"OfAPartThatEndsAsASeverityDoes", u"interpreter-unrecoverable-storage-error"_s,
                Error, u"interpreter-unrecoverable-storage-error"_s},
        Keyword{"OfAPartWithAnErrorOfStorage", u"interpreter-unrecoverable-storage-error-error"_s,
                Error, u"Interpreter: storage failed"_s},
        Keyword{"OfAMaker", u"com.example-<b>dusty-warning"_s, Warning,
                u"com.example-<b>dusty-warning"_s},
        Keyword{"OfAnUnknownMatter", u"stapler-on-fire-error"_s, Error, u"stapler-on-fire-error"_s},
        Keyword{"Empty", u""_s, Error, u""_s}),
    CaseName());

struct State
{
    const char *behaviour;
    Destination printer;
    QString text;
    bool isInTrouble;
};

class StateOfAPrinter : public testing::TestWithParam<State>
{};

TEST_P(StateOfAPrinter, IsToldTheWorstFirst)
{
    EXPECT_EQ(stateText(GetParam().printer), GetParam().text);
    EXPECT_EQ(isInTrouble(GetParam().printer), GetParam().isInTrouble);
}

INSTANTIATE_TEST_SUITE_P(
    Table, StateOfAPrinter,
    testing::Values(
        State{"Idle", {}, u"Ready"_s, false},
        State{"AtWork", {.isPrinting = true}, u"Printing"_s, false},
        State{"Closed", {.isAccepting = false}, u"Takes no jobs at present"_s, true},
        State{"StoppedWithoutAWord",
              {.isStopped = true, .reasons = {u"paused"_s}, .stateMessage = u"Paused"_s},
              u"Stopped: jobs wait"_s,
              true},
        State{"StoppedByAPerson",
              {.isStopped = true, .reasons = {u"paused"_s}, .stateMessage = u"New ink comes"_s},
              u"Stopped: jobs wait · New ink comes"_s,
              true},
        State{"ClosedAndStopped",
              {.isAccepting = false, .isStopped = true},
              u"Takes no jobs at present · Stopped: jobs wait"_s,
              true},
        State{"WithReasonsOfAllSeverities",
              {.reasons = {u"offline-report"_s, u"toner-low-warning"_s, u"media-empty-error"_s,
                           u"cover-open-warning"_s}},
              u"Error: Out of paper · Warning: Toner is low · Warning: The cover is open · Not "
              "connected or switched off"_s,
              true},
        State{"WithReportsAlone",
              {.reasons = {u"connecting-to-device-report"_s}},
              u"Connecting"_s,
              false}),
    CaseName());

} // namespace
