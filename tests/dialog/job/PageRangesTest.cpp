#include "dialog/job/PageRanges.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct TypedRanges
{
    const char *name;
    QString text;
    QString ranges; ///< null: refused
};

void PrintTo(const TypedRanges &row, std::ostream *out)
{
    *out << row.name;
}

class PageRanges : public testing::TestWithParam<TypedRanges>
{};

TEST_P(PageRanges, AreMadeAsTheServerWantsThem)
{
    const QString ranges = normalizedPageRanges(GetParam().text);
    EXPECT_EQ(ranges, GetParam().ranges);
    EXPECT_EQ(ranges.isNull(), GetParam().ranges.isNull());
}

INSTANTIATE_TEST_SUITE_P(
    Table, PageRanges,
    testing::Values(
        TypedRanges{"Nothing", u""_s, u""_s}, TypedRanges{"Blanks", u"  "_s, u""_s},
        TypedRanges{"OnePage", u"7"_s, u"7"_s}, TypedRanges{"OneRange", u"2-4"_s, u"2-4"_s},
        TypedRanges{"SpacesAnywhere", u" 2 - 4 , 9 "_s, u"2-4,9"_s},
        TypedRanges{"OutOfOrder", u"9,2-4"_s, u"2-4,9"_s},
        TypedRanges{"Touching", u"1-2,3"_s, u"1-3"_s},
        TypedRanges{"Overlapping", u"1-5,4-8,6"_s, u"1-8"_s},
        TypedRanges{"Twice", u"3,3"_s, u"3"_s}, TypedRanges{"OpenEnd", u"5-"_s, u"5-65535"_s},
        TypedRanges{"OnePageRange", u"4-4"_s, u"4"_s}, TypedRanges{"PageZero", u"0-3"_s, QString()},
        TypedRanges{"Backwards", u"4-2"_s, QString()}, TypedRanges{"OpenStart", u"-3"_s, QString()},
        TypedRanges{"Word", u"all"_s, QString()}, TypedRanges{"EmptyPart", u"1,,3"_s, QString()},
        TypedRanges{"TwoDashes", u"1-2-3"_s, QString()},
        TypedRanges{"Fraction", u"1.5"_s, QString()},
        TypedRanges{"Huge", u"99999999999"_s, QString()}),
    [](const auto &row) { return std::string(row.param.name); });

struct Beyond
{
    const char *behaviour;
    QString ranges;
    std::optional<int> page; ///< of a document of five pages
};

class PageBeyond : public testing::TestWithParam<Beyond>
{};

TEST_P(PageBeyond, IsTheFirstOfARangeWithoutAPage)
{
    EXPECT_EQ(pageBeyond(GetParam().ranges, 5), GetParam().page);
}

INSTANTIATE_TEST_SUITE_P(Table, PageBeyond,
                         testing::Values(Beyond{"All", u""_s, {}}, Beyond{"TheLast", u"5"_s, {}},
                                         Beyond{"ARangeThatGoesOn", u"1,4-65535"_s, {}},
                                         Beyond{"One", u"99"_s, 99},
                                         Beyond{"OneOfSeveral", u"1-3,6-7,99"_s, 6}),
                         CaseName());

} // namespace
