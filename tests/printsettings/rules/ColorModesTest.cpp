#include "printsettings/rules/ColorModes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(ColorModes, AreColourAndMono)
{
    EXPECT_EQ(colorModes(), (QStringList{u"Color"_s, u"Mono"_s}));
}

TEST(ColorModes, AreColourButForMono)
{
    EXPECT_TRUE(isMonoMode(u"Mono"_s));
    for (const QString &choice : {u"Color"_s, u"mono"_s, u"Sepia"_s, u""_s, QString()})
        EXPECT_FALSE(isMonoMode(choice)) << qPrintable(choice);
}

} // namespace
