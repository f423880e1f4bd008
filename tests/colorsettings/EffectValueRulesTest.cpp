#include "colorsettings/EffectParameters.h"
#include "colorsettings/EffectRange.h"
#include "colorsettings/EffectVal.h"
#include "colorsettings/rules/EffectTable.h"
#include "tests/colorsettings/ColorPanelFixture.h"

#include <limits>

using namespace Qt::StringLiterals;

TEST(EffectTable, NamesTheFiveValuesInTheirOrderWithTagAndTicketKey)
{
    int tag = 0;
    for (const Effect &effect : kEffects) {
        const auto index = static_cast<std::size_t>(tag);
        EXPECT_EQ(effect.tag, tag);
        EXPECT_EQ(effect.keyword, QLatin1String(kEffectKeywords[index]));
        EXPECT_EQ(effect.ticketKey, QLatin1String(kEffectTicketKeys[index]));
        EXPECT_EQ(effectTicketKey(effect.keyword), QLatin1String(kEffectTicketKeys[index]));
        ++tag;
    }
    EXPECT_EQ(effectKeywords(), QStringList({u"VKBrightness"_s, u"VKContrast"_s, u"VKRed"_s,
                                             u"VKGreen"_s, u"VKBlue"_s}));
    EXPECT_TRUE(effectTicketKey(u"vkred"_s).isNull());
}

TEST(EffectRange, WritesWhatLiesWithinTheRangeAsDecimalText)
{
    struct Case
    {
        QVariant value;
        const char *text;
    };
    const Case cases[] = {
        {0LL, "0"},        {20LL, "20"}, {-20LL, "-20"},
        {21LL, "0"},       {-21LL, "0"}, {7.9, "7"},
        {QVariant(), "0"}, {5.0F, "5"},  {std::numeric_limits<qlonglong>::min(), "0"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(effectTextForTicket(c.value), QLatin1String(c.text)) << c.value.toDouble();
}

TEST(EffectParameters, BrightnessAndContrastAreSinglePrecisionNumbers)
{
    static_assert(std::is_same_v<decltype(brightnessParameter(0)), float>);
    static_assert(std::is_same_v<decltype(contrastParameter(0)), float>);
    EXPECT_EQ(brightnessParameter(20), 0.1F);
    EXPECT_EQ(brightnessParameter(-20), -0.1F);
    EXPECT_EQ(brightnessParameter(0), 0.0F);
    EXPECT_EQ(contrastParameter(-20), 0.875F);
    EXPECT_EQ(contrastParameter(20), 1.125F);
    EXPECT_EQ(contrastParameter(0), 1.0F);
}

TEST(EffectParameters, AGainIsOneRowOfTheMatrixWithNothingButItself)
{
    EXPECT_DOUBLE_EQ(gainVector(0, -20).x, 0.42857142857142857);
    EXPECT_EQ(gainVector(0, -20), (CIVector{gainVector(0, -20).x, 0, 0, 0}));
    EXPECT_DOUBLE_EQ(gainVector(1, 20).y, 1.5714285714285714);
    EXPECT_EQ(gainVector(1, 35), (CIVector{0, 2, 0, 0}));
    EXPECT_EQ(gainVector(2, -35), (CIVector{0, 0, 0, 0}));
    EXPECT_EQ(gainVector(2, 0), (CIVector{0, 0, 1, 0}));
}

TEST(EffectVal, KnowsTheLastChangeByTagAndSinglePrecisionValue)
{
    resetEffectVal();
    EXPECT_EQ(EffectVal.code, -1);
    EXPECT_EQ(EffectVal.value, 0);
    EXPECT_FALSE(isHandledChange(0, 0));

    recordChange(0, 7);
    EXPECT_TRUE(isHandledChange(0, 7.0));
    EXPECT_TRUE(isHandledChange(0, 7.00000001)); // no other single-precision number
    EXPECT_FALSE(isHandledChange(0, 7.4));
    EXPECT_FALSE(isHandledChange(1, 7.0));

    recordChange(3, -7.6);
    EXPECT_EQ(EffectVal.code, 3);
    EXPECT_EQ(EffectVal.value, -7);
    EXPECT_FALSE(isHandledChange(3, -7.6));
}
