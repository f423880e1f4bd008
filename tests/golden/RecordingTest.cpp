#include "tests/golden/Recording.h"
#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

constexpr auto kOpen =
    R"({"event":1,"do":"open","result":[],"calls":[],"notifications":[],"alerts":[],)"
    R"("panels":{"print":{"height":null}},"marks":{"A":"1"},"ticket":{},"alertMemory":{}})";
constexpr auto kShow =
    R"({"event":2,"do":"show","result":null,"error":"no","calls":[{"call":"x"}],)"
    R"("notifications":[],"alerts":[],"panels":{"print":{"height":160}},"marks":{},)"
    R"("ticket":{},"alertMemory":{}})";
constexpr auto kState =
    R"({"event":3,"do":"state","result":null,"calls":[],"notifications":[],"alerts":[],)"
    R"("panels":{"print":{"height":160}},"marks":{},"ticket":{},"alertMemory":{}})";
constexpr auto kReopened =
    R"({"event":4,"do":"open","result":[],"calls":[],"notifications":[],"alerts":[],)"
    R"("panels":{"print":{"height":null}},"marks":{"A":"1"},"ticket":{},"alertMemory":{}})";

Recording recordingOf(const QByteArrayList &lines, const QByteArrayList &ending = {"exit 0"})
{
    return {recordedEvents(lines.join('\n') + '\n'), ending};
}

QByteArray changed(const char *line, const char *from, const char *to)
{
    return QByteArray(line).replace(from, to);
}

} // namespace

TEST(Recording, TellsOfEachEventWhatIsNewInIt)
{
    const Recording recording = recordingOf({kOpen, kShow, kState, kReopened});
    const auto hash = [&](int event) { return recording.events[event].hash.toStdString(); };
    EXPECT_EQ(textOf(recording).toStdString(), "event 1 open " + hash(0) +
                                                   "\n"
                                                   "  /marks/A \"1\"\n"
                                                   "  /panels/print {\"height\":null}\n"
                                                   "  /result []\n"
                                                   "event 2 show " +
                                                   hash(1) +
                                                   "\n"
                                                   "  /calls [{\"call\":\"x\"}]\n"
                                                   "  /error \"no\"\n"
                                                   "  -/marks/A\n"
                                                   "  /panels/print/height 160\n"
                                                   "event 3 state " +
                                                   hash(2) +
                                                   "\n"
                                                   "event 4 open " +
                                                   hash(3) +
                                                   " from 1\n"
                                                   "  /result []\n"
                                                   "exit 0\n");
}

TEST(Recording, IsTheSameWhenItIsReadBack)
{
    const Recording recording =
        recordingOf({kOpen, kShow, kState, kReopened}, {"exit 2", "stderr a: b"});
    const Recording readBack = recordingOfText(textOf(recording));
    ASSERT_EQ(readBack.events.size(), recording.events.size());
    for (qsizetype index = 0; index < recording.events.size(); ++index) {
        EXPECT_EQ(readBack.events[index].line, recording.events[index].line);
        EXPECT_EQ(readBack.events[index].hash, recording.events[index].hash);
    }
    EXPECT_EQ(readBack.ending, recording.ending);
    EXPECT_FALSE(firstDifference(recording, readBack));
}

struct DifferenceCase
{
    const char *behaviour;
    QByteArrayList lines;
    QByteArrayList ending;
    qsizetype event;
    const char *place;
    const char *expected; ///< null: some hash
    const char *got;
};

void PrintTo(const DifferenceCase &row, std::ostream *out)
{
    *out << row.behaviour;
}

class RecordingDifference : public testing::TestWithParam<DifferenceCase>
{};

TEST_P(RecordingDifference, IsTheFirstThatAReaderMeets)
{
    const DifferenceCase &row = GetParam();
    const auto difference = firstDifference(recordingOf({kOpen, kShow}, {"exit 0", "stderr a"}),
                                            recordingOf(row.lines, row.ending));
    ASSERT_TRUE(difference);
    EXPECT_EQ(difference->event, row.event);
    EXPECT_EQ(difference->place.toStdString(), row.place);
    if (row.expected) {
        EXPECT_EQ(difference->expected.toStdString(), row.expected);
        EXPECT_EQ(difference->got.toStdString(), row.got);
    } else {
        EXPECT_NE(difference->expected, difference->got);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, RecordingDifference,
    testing::Values(DifferenceCase{"AValue",
                                   {kOpen, changed(kShow, "160", "170")},
                                   {"exit 0", "stderr a"},
                                   2,
                                   "/panels/print/height",
                                   "160",
                                   "170"},
                    DifferenceCase{"AnEarlierEvent",
                                   {changed(kOpen, R"("A":"1")", R"("A":"2")"), kState},
                                   {},
                                   1,
                                   "/marks/A",
                                   "\"1\"",
                                   "\"2\""},
                    DifferenceCase{"AMemberTooMany",
                                   {changed(kOpen, R"("do")", R"("more":1,"do")"), kShow},
                                   {"exit 0", "stderr a"},
                                   1,
                                   "/more",
                                   "nothing",
                                   "1"},
                    DifferenceCase{
                        "TheOrderOfMembers",
                        {changed(kOpen, R"("event":1,"do":"open")", R"("do":"open","event":1)"),
                         kShow},
                        {"exit 0", "stderr a"},
                        1,
                        "the order or form of the line",
                        nullptr,
                        nullptr},
                    DifferenceCase{"ANumberInAnotherForm",
                                   {changed(kOpen, R"("event":1)", R"("event":1.0)"), kShow},
                                   {"exit 0", "stderr a"},
                                   1,
                                   "the order or form of the line",
                                   nullptr,
                                   nullptr},
                    DifferenceCase{"AnEventThatIsMissing",
                                   {kOpen},
                                   {"exit 2", "stderr b"},
                                   2,
                                   "the event",
                                   "\"show\"",
                                   "no such event (exit 2; stderr b)"},
                    DifferenceCase{"AnEventTooMany",
                                   {kOpen, kShow, kState},
                                   {"exit 0"},
                                   3,
                                   "the event",
                                   "no such event",
                                   "\"state\" (exit 0)"},
                    DifferenceCase{"TheExitStatus",
                                   {kOpen, kShow},
                                   {"exit 1", "stderr a"},
                                   0,
                                   "the ending",
                                   "exit 0",
                                   "exit 1"},
                    DifferenceCase{"ALineOfTheEnding",
                                   {kOpen, kShow},
                                   {"exit 0", "stderr a", "stderr b"},
                                   0,
                                   "the ending",
                                   "",
                                   "stderr b"}),
    CaseName());
