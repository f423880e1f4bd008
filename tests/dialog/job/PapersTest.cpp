#include "dialog/job/Papers.h"
#include "dialog/host/PPDFile.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/JobPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct TypedPaper
{
    const char *name;
    QString text;
    double width; ///< points; 0: refused
    double height;
};

void PrintTo(const TypedPaper &row, std::ostream *out)
{
    *out << row.name;
}

class CustomPaperText : public testing::TestWithParam<TypedPaper>
{};

TEST_P(CustomPaperText, IsReadInItsUnit)
{
    const std::optional<PMPaper> paper = parseCustomPaper(GetParam().text);
    ASSERT_EQ(paper.has_value(), GetParam().width > 0);
    if (!paper)
        return;
    EXPECT_NEAR(paper->width, GetParam().width, 0.001);
    EXPECT_NEAR(paper->height, GetParam().height, 0.001);
    EXPECT_TRUE(paper->ppdName.isNull());
    EXPECT_TRUE(paper->name.startsWith(u"Custom."_s));
}

INSTANTIATE_TEST_SUITE_P(
    Table, CustomPaperText,
    testing::Values(TypedPaper{"Points", u"Custom.300x400"_s, 300, 400},
                    TypedPaper{"PointsByName", u"Custom.300.5x400pt"_s, 300.5, 400},
                    TypedPaper{"Millimetres", u"Custom.254x127mm"_s, 720, 360},
                    TypedPaper{"Centimetres", u"Custom.25.4x12.7cm"_s, 720, 360},
                    TypedPaper{"Inches", u"Custom.8.5x11in"_s, 612, 792},
                    TypedPaper{"OtherUnit", u"Custom.8x11ft"_s, 0, 0},
                    TypedPaper{"OneLength", u"Custom.300"_s, 0, 0},
                    TypedPaper{"NoLength", u"Custom.x"_s, 0, 0},
                    TypedPaper{"Zero", u"Custom.0x400"_s, 0, 0},
                    TypedPaper{"TwoPoints", u"Custom.1.2.3x400"_s, 0, 0},
                    TypedPaper{"Negative", u"Custom.-3x400"_s, 0, 0},
                    TypedPaper{"AListedPaper", u"A4"_s, 0, 0}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(Papers, OfAPPDHaveItsTextsAndSizes)
{
    const auto opened = openPPD(samplePPD(u"velkaro-px-t900"_s));
    ASSERT_TRUE(opened);
    const std::optional<PMPaper> paper = paperOfChoice(opened->ppd.get(), u"A4.Fullbleed"_s);
    ASSERT_TRUE(paper.has_value());
    EXPECT_EQ(paper->ppdName, u"A4.Fullbleed"_s);
    EXPECT_EQ(paper->width, 595);
    EXPECT_EQ(paper->height, 842);
    EXPECT_EQ(paperText(opened->ppd.get(), *paper), u"A4 (Borderless)"_s);
    EXPECT_EQ(paperText(opened->ppd.get(), customPaper(283.4646, 425.1969)), u"100 × 150 mm"_s);
    EXPECT_EQ(paperOfChoice(opened->ppd.get(), u"a4.fullbleed"_s).value_or(PMPaper()).name,
              u"A4.Fullbleed"_s);
    EXPECT_EQ(paperOfChoice(opened->ppd.get(), u"A44"_s), std::nullopt);
    EXPECT_EQ(customLimits(nullptr), std::nullopt);
}

TEST(Papers, PassUpToTheLimits)
{
    const CustomLimits limits{182, 936, 298, 1369};
    EXPECT_TRUE(isWithin(limits, 182, 1369));
    EXPECT_TRUE(isWithin(limits, 936, 298));
    EXPECT_FALSE(isWithin(limits, 181.9, 400));
    EXPECT_FALSE(isWithin(limits, 400, 1369.1));
}

} // namespace
