#include "printsettings/rules/PaperOrientation.h"

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

TEST(Orientation, IsCheckedByTheName)
{
    const std::pair<QString, OrientationCheck> rows[] = {
        {u"EnvChou3"_s, OrientationCheck::ConfirmEnvelope},
        {u"A4.Fullbleed"_s, OrientationCheck::Landscape},
        {u"Letter"_s, OrientationCheck::Landscape},
        {u"A3"_s, OrientationCheck::Portrait},
        {u"EnvDL"_s, OrientationCheck::Portrait},
        {u"UnsupportedPaper"_s, OrientationCheck::Refuse},
        {u"Custom.300x400"_s, OrientationCheck::BySize},
        {u"A3.ShortGrain"_s, OrientationCheck::BySize},
        {QString(), OrientationCheck::BySize},
    };
    for (const auto &[name, check] : rows)
        EXPECT_EQ(orientationCheck(name), check) << qPrintable(name);
}

} // namespace
