#include "printsettings/rules/CustomSizes.h"

#include <gtest/gtest.h>

namespace {

constexpr CustomSizeLimits kLimits{{182, 254}, {936, 1368}};

TEST(CustomSizes, IncludeTheirLimits)
{
    EXPECT_TRUE(isWithinCustomSizes(kLimits, {182, 254}));
    EXPECT_TRUE(isWithinCustomSizes(kLimits, {936, 1368}));
    EXPECT_FALSE(isWithinCustomSizes(kLimits, {181, 254}));
    EXPECT_FALSE(isWithinCustomSizes(kLimits, {182, 253}));
    EXPECT_FALSE(isWithinCustomSizes(kLimits, {937, 1368}));
    EXPECT_FALSE(isWithinCustomSizes(kLimits, {936, 1369}));
}

TEST(CustomSizes, HoldNothingWhereThePrinterTakesNone)
{
    EXPECT_FALSE(isWithinCustomSizes({}, {595, 842}));
    EXPECT_TRUE(isWithinCustomSizes({}, {0, 0}));
}

TEST(CustomSizes, AreLandscapeBetweenFiveInchesAndLetterByLetterAndA4)
{
    for (const QSizeF size : {QSizeF(595, 842), QSizeF(612, 613), QSizeF(360, 613)})
        EXPECT_TRUE(isLandscapeSize(size)) << size.width() << " x " << size.height();
    for (const QSizeF size :
         {QSizeF(613, 842), QSizeF(595, 843), QSizeF(359, 700), QSizeF(400, 612)})
        EXPECT_FALSE(isLandscapeSize(size)) << size.width() << " x " << size.height();
}

} // namespace
