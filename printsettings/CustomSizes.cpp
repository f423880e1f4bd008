#include "printsettings/CustomSizes.h"

namespace {

bool isWithin(double value, double lowest, double highest)
{
    return lowest <= value && value <= highest;
}

} // namespace

bool isWithinCustomSizes(const ppd_file_t &ppd, const QSizeF &size)
{
    return isWithin(size.width(), ppd.custom_min[0], ppd.custom_max[0]) &&
           isWithin(size.height(), ppd.custom_min[1], ppd.custom_max[1]);
}

bool isLandscapeSize(const QSizeF &size)
{
    // From 5 inches to the width of Letter, and from one point above it to the height of A4.
    return isWithin(size.width(), 360, 612) && isWithin(size.height(), 613, 842);
}
