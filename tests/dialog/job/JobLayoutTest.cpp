#include "dialog/job/JobLayout.h"

#include "dialog/job/PrintedSides.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/CaseName.h"

#include <QtCore/QScopeGuard>

#include <gtest/gtest.h>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

struct LayoutValue
{
    const char *behaviour;
    QString option;
    QString value;
    QString normalized; ///< null: it is no value
    QString text;       ///< for people
};

class LayoutValueOf : public testing::TestWithParam<LayoutValue>
{};

TEST_P(LayoutValueOf, IsJudgedAndPutIntoWords)
{
    const LayoutSetting *setting = layoutSetting(GetParam().option);
    ASSERT_NE(setting, nullptr);
    const QString value = normalizedLayoutValue(*setting, GetParam().value);
    EXPECT_EQ(value, GetParam().normalized);
    if (!value.isNull()) {
        EXPECT_EQ(layoutText(*setting, value), GetParam().text);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, LayoutValueOf,
    testing::Values(
        LayoutValue{"SixteenPages", u"number-up"_s, u"16"_s, u"16"_s, u"16"_s},
        LayoutValue{"ThreePages", u"number-up"_s, u"3"_s, {}, {}},
        LayoutValue{"AnOrder", u"number-up-layout"_s, u"btrl"_s, u"btrl"_s,
                    u"Up, from the bottom right"_s},
        LayoutValue{"NoOrder", u"number-up-layout"_s, u"zigzag"_s, {}, {}},
        LayoutValue{"ABorder", u"page-border"_s, u"double-thick"_s, u"double-thick"_s,
                    u"Two thick lines"_s},
        LayoutValue{"EvenPages", u"page-set"_s, u"even"_s, u"even"_s, u"Even pages only"_s},
        LayoutValue{"PagesInCapitals", u"page-set"_s, u"EVEN"_s, {}, {}},
        LayoutValue{"Reverse", u"outputorder"_s, u"reverse"_s, u"reverse"_s, u"Last page first"_s},
        LayoutValue{"Uncollated", u"multiple-document-handling"_s,
                    u"separate-documents-uncollated-copies"_s,
                    u"separate-documents-uncollated-copies"_s, u"Page by page"_s},
        LayoutValue{"ABooklet", u"booklet"_s, u"on"_s, u"on"_s, u"Yes"_s},
        LayoutValue{"APeriod", u"job-hold-until"_s, u"night"_s, u"night"_s,
                    u"At night (18:00 to 6:00)"_s},
        LayoutValue{"NoPeriod", u"job-hold-until"_s, u"someday"_s, {}, {}},
        LayoutValue{"NoTime", u"job-hold-until"_s, u"25:00"_s, {}, {}},
        LayoutValue{"APriority", u"job-priority"_s, u"100"_s, u"100"_s, u"100"_s},
        LayoutValue{"TooHighAPriority", u"job-priority"_s, u"101"_s, {}, {}},
        LayoutValue{"NoPriority", u"job-priority"_s, u"high"_s, {}, {}},
        LayoutValue{"ACover", u"job-sheets"_s, u"confidential"_s, u"confidential,none"_s,
                    u"Confidential before the job"_s},
        LayoutValue{"TwoCovers", u"job-sheets"_s, u"standard,form.pdf"_s, u"standard,form.pdf"_s,
                    u"Standard before the job, form.pdf after it"_s},
        LayoutValue{"OneCoverAfter", u"job-sheets"_s, u"none,standard"_s, u"none,standard"_s,
                    u"Standard after the job"_s},
        LayoutValue{"NoCovers", u"job-sheets"_s, u"none"_s, u"none,none"_s, u"None"_s},
        LayoutValue{"ThreeCovers", u"job-sheets"_s, u"a,b,c"_s, {}, {}},
        LayoutValue{"ACoverWithASpace", u"job-sheets"_s, u"a b"_s, {}, {}},
        LayoutValue{"AnAddress", u"notify-recipient-uri"_s, u"me@example.com"_s,
                    u"mailto:me@example.com"_s, u"me@example.com"_s},
        LayoutValue{"AnAddressWithItsScheme", u"notify-recipient-uri"_s, u"mailto:me@example.com"_s,
                    u"mailto:me@example.com"_s, u"me@example.com"_s},
        LayoutValue{"AnotherScheme", u"notify-recipient-uri"_s, u"rss://example"_s, {}, {}},
        LayoutValue{"TwoAddresses", u"notify-recipient-uri"_s, u"a@b,c@d"_s, {}, {}}),
    CaseName());

struct Sides
{
    const char *behaviour;
    QString pagesPerSheet;
    QString booklet;
    int pages;
    int sides;
};

class PrintedSides : public testing::TestWithParam<Sides>
{};

TEST_P(PrintedSides, HaveRoomForAllPages)
{
    JobLayout layout;
    layout.pagesPerSheet = GetParam().pagesPerSheet;
    layout.booklet = GetParam().booklet;
    EXPECT_EQ(printedSides(layout, GetParam().pages), GetParam().sides);
    EXPECT_EQ(hasSeveralPagesOnASide(layout), GetParam().sides != GetParam().pages);
}

INSTANTIATE_TEST_SUITE_P(Table, PrintedSides,
                         testing::Values(Sides{"OneEach", {}, {}, 5, 5},
                                         Sides{"OneEachAsIsSaid", u"1"_s, u"off"_s, 5, 5},
                                         Sides{"TwoOnEach", u"2"_s, {}, 5, 3},
                                         Sides{"TwoOnEachWithoutARest", u"2"_s, {}, 6, 3},
                                         Sides{"SixteenOnEach", u"16"_s, {}, 5, 1},
                                         Sides{"ABookletOfOneSheet", {}, u"on"_s, 4, 2},
                                         Sides{"ABookletOfTwoSheets", {}, u"on"_s, 5, 4},
                                         Sides{"ABookletWhateverElseIsSaid", u"9"_s, u"on"_s, 9,
                                               6}),
                         CaseName());

TEST(JobLayout, KnowsNoOtherOption)
{
    for (const char *name : {"copies", "Number-Up", "page-ranges", ""})
        EXPECT_EQ(layoutSetting(QLatin1String(name)), nullptr) << name;
}

TEST(JobLayout, SendsWhatWasSaidAndNothingElse)
{
    EXPECT_EQ(layoutOptions({}), QList<JobOption>());
    JobLayout layout;
    layout.outputOrder = u"reverse"_s;
    layout.pagesPerSheet = u"1"_s;
    EXPECT_EQ(layoutOptions(layout),
              (QList<JobOption>{{u"number-up"_s, u"1"_s}, {u"outputorder"_s, u"reverse"_s}}));
}

TEST(JobLayout, TellsTimesOfTheServerInThoseOfThisMachine)
{
    const QByteArray zone = qgetenv("TZ");
    const auto restore = qScopeGuard([&] {
        zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
        tzset();
    });
    qputenv("TZ", "JST-9");
    tzset();
    EXPECT_EQ(utcTime(u"08:30"_s), u"23:30"_s);
    EXPECT_EQ(localTime(u"23:30"_s), u"08:30"_s);
    EXPECT_EQ(localTime(u"1:02:03"_s), u"10:02:03"_s);
    EXPECT_EQ(localTime(u"night"_s), QString());
    const LayoutSetting &hold = *layoutSetting(u"job-hold-until"_s);
    EXPECT_EQ(normalizedLayoutValue(hold, u"9:05"_s), u"09:05"_s);
    EXPECT_EQ(layoutText(hold, u"09:05"_s), u"At 18:05"_s);
}

} // namespace
