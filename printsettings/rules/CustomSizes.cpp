#include "printsettings/rules/CustomSizes.h"

namespace {

bool isWithin(double value, double lowest, double highest)
{
    return lowest <= value && value <= highest;
}

} // namespace

bool isWithinCustomSizes(const CustomSizeLimits &limits, const QSizeF &size)
{
    return isWithin(size.width(), limits.smallest.width(), limits.largest.width()) &&
           isWithin(size.height(), limits.smallest.height(), limits.largest.height());
}

bool isLandscapeSize(const QSizeF &size)
{
    // From 5 inches to the width of Letter, and from one point above it to the height of A4.
    return isWithin(size.width(), 360, 612) && isWithin(size.height(), 613, 842);
}
