#include "dialog/job/PrintScaling.h"
#include "dialog/job/ScalingSentences.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kAll{PrintScaling::Automatic, PrintScaling::ActualSize, PrintScaling::Fit,
                          PrintScaling::Fill};

struct Said
{
    const char *behaviour;
    JobOption option;
    std::optional<PrintScaling> scaling;
};

class ScalingOption : public testing::TestWithParam<Said>
{};

TEST_P(ScalingOption, IsUnderstood)
{
    EXPECT_EQ(scalingOf(GetParam().option), GetParam().scaling);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ScalingOption,
    testing::Values(Said{"Automatic", {u"print-scaling"_s, u"auto"_s}, PrintScaling::Automatic},
                    Said{"ActualSize", {u"print-scaling"_s, u"none"_s}, PrintScaling::ActualSize},
                    Said{"Fit", {u"print-scaling"_s, u"fit"_s}, PrintScaling::Fit},
                    Said{"Fill", {u"print-scaling"_s, u"fill"_s}, PrintScaling::Fill},
                    Said{"FitOfLp", {u"fit-to-page"_s, u"true"_s}, PrintScaling::Fit},
                    Said{"NoFitOfLp", {u"fit-to-page"_s, u"false"_s}, PrintScaling::Automatic},
                    Said{"OldFitOfLp", {u"fitplot"_s, u"true"_s}, PrintScaling::Fit},
                    Said{"Unknown", {u"print-scaling"_s, u"large"_s}, std::nullopt},
                    Said{"UnknownFit", {u"fit-to-page"_s, u"maybe"_s}, std::nullopt},
                    Said{"APercentage", {u"scaling"_s, u"50"_s}, std::nullopt}),
    CaseName());

TEST(Scaling, IsSentByTheWordThatItIsUnderstoodBy)
{
    for (const PrintScaling scaling : kAll)
        EXPECT_EQ(scalingOf({u"print-scaling"_s, scalingKeyword(scaling)}), scaling);
}

TEST(ScalingTitles, AreOneForEachOnEveryPaper)
{
    for (const ScalingCase &on :
         {ScalingCase{false, false}, ScalingCase{false, true}, ScalingCase{true, false}}) {
        std::set<QString> titles;
        for (const PrintScaling scaling : kAll)
            titles.insert(scalingTitle(scaling, on));
        EXPECT_EQ(titles.size(), kAll.size());
    }
    EXPECT_EQ(scalingTitle(PrintScaling::Fill, {.hasMargins = false}), u"Fill the Sheet"_s);
    EXPECT_EQ(scalingTitle(PrintScaling::Fill, {.hasMargins = true}), u"Fill the Printable Area"_s);
}

TEST(ScalingSentences, TellWhatTheServerDoesOtherwise)
{
    EXPECT_TRUE(
        scalingSentence(PrintScaling::Automatic, {.hasMargins = false}).contains(u"cut off"_s));
    EXPECT_FALSE(
        scalingSentence(PrintScaling::Automatic, {.hasMargins = true}).contains(u"cut off"_s));
    for (const PrintScaling scaling : {PrintScaling::Fit, PrintScaling::Fill}) {
        EXPECT_TRUE(scalingSentence(scaling, {.hasMargins = true, .isPicture = true})
                        .contains(u"twice the paper's margins"_s));
        EXPECT_FALSE(scalingSentence(scaling, {.hasMargins = false, .isPicture = true})
                         .contains(u"margins around"_s));
    }
}

} // namespace
