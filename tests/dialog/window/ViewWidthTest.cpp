#include "dialog/window/ViewWidth.h"

#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

namespace {

struct EdgeCase
{
    const char *behaviour;
    std::vector<WidthNeed> needs;
    std::map<int, int> fitted;
};

class FittedEdges : public testing::TestWithParam<EdgeCase>
{};

TEST_P(FittedEdges, GiveEveryPartWhatItNeeds)
{
    EXPECT_EQ(fittedEdges(GetParam().needs), GetParam().fitted);
}

const EdgeCase kEdges[] = {
    {"Nothing", {}, {}},
    {"PartsThatHaveRoomStay",
     {{0, 560, 0}, {16, 146, 90}, {152, 544, 300}},
     {{0, 0}, {16, 16}, {146, 146}, {152, 152}, {544, 544}, {560, 560}}},
    {"OneThatNeedsMoreMovesWhatIsToTheRight",
     {{0, 560, 0}, {16, 146, 150}, {152, 544, 300}},
     {{0, 0}, {16, 16}, {146, 166}, {152, 172}, {544, 564}, {560, 580}}},
    {"AColumnStaysOne",
     {{0, 300, 0}, {16, 146, 150}, {16, 146, 80}, {152, 290, 0}},
     {{0, 0}, {16, 16}, {146, 166}, {152, 172}, {290, 310}, {300, 320}}},
    {"APartAboveTwoOthersGrowsWithThem",
     {{0, 100, 0}, {10, 90, 20}, {10, 40, 50}, {50, 90, 60}},
     {{0, 0}, {10, 10}, {40, 60}, {50, 70}, {90, 130}, {100, 140}}},
    {"APartAboveTwoOthersNeedsMoreThanBoth",
     {{0, 100, 0}, {10, 90, 200}, {10, 40, 50}, {50, 90, 60}},
     {{0, 0}, {10, 10}, {40, 60}, {50, 70}, {90, 210}, {100, 220}}},
};

INSTANTIATE_TEST_SUITE_P(Cases, FittedEdges, testing::ValuesIn(kEdges), CaseName());

} // namespace
