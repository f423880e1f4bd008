#include "dialog/job/PageRanges.h"
#include "tests/endtoend/JobPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Typed
{
    const char *name;
    QString text;
    QString ranges; ///< null: refused
};

void PrintTo(const Typed &row, std::ostream *out)
{
    *out << row.name;
}

class PageRanges : public testing::TestWithParam<Typed>
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
        Typed{"Nothing", u""_s, u""_s}, Typed{"Blanks", u"  "_s, u""_s},
        Typed{"OnePage", u"7"_s, u"7"_s}, Typed{"OneRange", u"2-4"_s, u"2-4"_s},
        Typed{"SpacesAnywhere", u" 2 - 4 , 9 "_s, u"2-4,9"_s},
        Typed{"OutOfOrder", u"9,2-4"_s, u"2-4,9"_s}, Typed{"Touching", u"1-2,3"_s, u"1-3"_s},
        Typed{"Overlapping", u"1-5,4-8,6"_s, u"1-8"_s}, Typed{"Twice", u"3,3"_s, u"3"_s},
        Typed{"OpenEnd", u"5-"_s, u"5-65535"_s}, Typed{"OnePageRange", u"4-4"_s, u"4"_s},
        Typed{"PageZero", u"0-3"_s, QString()}, Typed{"Backwards", u"4-2"_s, QString()},
        Typed{"OpenStart", u"-3"_s, QString()}, Typed{"Word", u"all"_s, QString()},
        Typed{"EmptyPart", u"1,,3"_s, QString()}, Typed{"TwoDashes", u"1-2-3"_s, QString()},
        Typed{"Fraction", u"1.5"_s, QString()}, Typed{"Huge", u"99999999999"_s, QString()}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace
