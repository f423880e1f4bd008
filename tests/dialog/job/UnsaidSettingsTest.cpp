#include "dialog/job/UnsaidSettings.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Influence
{
    const char *behaviour;
    QList<JobOption> queue;
    QList<JobOption> options;
    QList<JobOption> settled;
    QList<JobOption> unsettled;
};

void PrintTo(const Influence &row, std::ostream *out)
{
    *out << row.behaviour;
}

class AQueueWith : public testing::TestWithParam<Influence>
{};

TEST_P(AQueueWith, IsSpokenAgainstWhereItCanBe)
{
    const QueueInfluence influence = influenceOf(GetParam().queue, GetParam().options);
    EXPECT_EQ(influence.settled, GetParam().settled);
    EXPECT_EQ(influence.unsettled, GetParam().unsettled);
}

const JobOption kA4{u"PageSize"_s, u"A4"_s};
const JobOption kBorderless{u"PageSize"_s, u"A4.Fullbleed"_s};
const JobOption kMediaA4{u"media"_s, u"iso_a4_210x297mm"_s};
const JobOption kMediaA5{u"media"_s, u"A5"_s};

INSTANTIATE_TEST_SUITE_P(
    Table, AQueueWith,
    testing::Values(
        Influence{"UsualValues",
                  {{u"copies"_s, u"1"_s}, {u"number-up"_s, u"1"_s}, {u"finishings"_s, u"3"_s}},
                  {},
                  {},
                  {}},
        Influence{"MoreCopies", {{u"copies"_s, u"2"_s}}, {}, {{u"copies"_s, u"1"_s}}, {}},
        Influence{
            "MoreCopiesThanTheJobs", {{u"copies"_s, u"2"_s}}, {{u"copies"_s, u"3"_s}}, {}, {}},
        Influence{"PagesOfItsOwn",
                  {{u"page-ranges"_s, u"1-2"_s}},
                  {},
                  {},
                  {{u"page-ranges"_s, u"1-2"_s}}},
        Influence{"OtherPagesThanTheJobs",
                  {{u"page-ranges"_s, u"1-2"_s}},
                  {{u"page-ranges"_s, u"3"_s}},
                  {},
                  {}},
        Influence{"AScalingOfPictures",
                  {{u"scaling"_s, u"50"_s}},
                  {{u"print-scaling"_s, u"fit"_s}},
                  {},
                  {{u"scaling"_s, u"50"_s}}},
        Influence{"AnotherPaper", {kMediaA5}, {kA4}, {}, {kMediaA5}},
        Influence{"TheSamePaperByItsOtherName", {kMediaA4}, {kA4}, {}, {}},
        Influence{"ThePaperWithItsMargins", {kMediaA4}, {kBorderless}, {}, {kMediaA4}},
        Influence{"APaperForAJobWithout", {kMediaA5}, {}, {}, {}},
        Influence{"AChoiceThatTheJobHas",
                  {{u"exquality"_s, u"Draft"_s}},
                  {{u"ExQuality"_s, u"Best"_s}},
                  {},
                  {}},
        Influence{"AValueForThePlugIn",
                  {{u"com.example.Darkness"_s, u"3"_s}},
                  {},
                  {},
                  {{u"com.example.Darkness"_s, u"3"_s}}},
        Influence{"WhatIsItsOwnMatter",
                  {{u"job-sheets"_s, u"standard,none"_s},
                   {u"job-priority"_s, u"80"_s},
                   {u"job-hold-until"_s, u"night"_s},
                   {u"document-format"_s, u"text/plain"_s},
                   {u"foo"_s, u"bar"_s}},
                  {},
                  {},
                  {}}),
    CaseName());

} // namespace
