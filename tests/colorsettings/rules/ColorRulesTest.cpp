#include "colorsettings/rules/ColorRules.h"

#include "colorsettings/rules/EffectTable.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ColorRules, WhatMayBeChosenFollowsMatchingModeAndSwitch)
{
    struct Case
    {
        ColorJob job;       // the printer's own colours, mono, enhancement on
        ColorStates states; // matching, brightness and contrast, gains
    };
    const Case cases[] = {
        {{false, false, false}, {false, false, false}},
        {{false, false, true}, {false, false, false}},
        {{false, true, true}, {false, false, false}},
        {{true, false, false}, {true, false, false}},
        {{true, false, true}, {true, true, true}},
        {{true, true, false}, {false, false, false}},
        {{true, true, true}, {false, true, false}},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(colorStates(c.job), c.states)
            << c.job.vendorMatching << c.job.mono << c.job.enhancementOn;
    }
}

TEST(ColorRules, TheSummaryLeavesOutWhatTheJobMakesVoid)
{
    const QStringList all{u"VKColorMatching"_s,    u"VKHalfTonePattern"_s, u"VKRed"_s,
                          u"VKColorEnhancement"_s, u"VKSlowDrying"_s,      u"VKBrightness"_s,
                          u"VKMediaType"_s};
    EXPECT_EQ(colorSummaryKeywords(all, {false, false, false}), QStringList{u"VKMediaType"_s});
    EXPECT_EQ(colorSummaryKeywords(all, {false, true, true}), QStringList{u"VKMediaType"_s});
    EXPECT_EQ(colorSummaryKeywords(all, {true, true, true}),
              QStringList({u"VKHalfTonePattern"_s, u"VKColorEnhancement"_s, u"VKSlowDrying"_s,
                           u"VKMediaType"_s}));
    EXPECT_EQ(colorSummaryKeywords(all, {true, false, false}),
              QStringList({u"VKColorMatching"_s, u"VKHalfTonePattern"_s, u"VKColorEnhancement"_s,
                           u"VKSlowDrying"_s, u"VKMediaType"_s}));
}

TEST(ColorRules, TheSummaryListsEnhancementValuesOnlyWhereTheyApply)
{
    const QStringList five{u"VKBrightness"_s, u"VKContrast"_s, u"VKRed"_s, u"VKGreen"_s,
                           u"VKBlue"_s};
    EXPECT_EQ(effectSummaryKeywords({true, false, true}), five);
    EXPECT_EQ(effectSummaryKeywords({true, true, true}), five.mid(0, 2));
    EXPECT_EQ(effectSummaryKeywords({true, false, false}), QStringList());
    EXPECT_EQ(effectSummaryKeywords({false, false, true}), QStringList());
}
