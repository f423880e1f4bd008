#include "printsettings/TextHeight.h"

#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(TextHeight, OfAnEmptyTextIsThatOfOneLine)
{
    const QFont font;
    const double line = heightForSpecifiedFont(u"Paper"_s, font, 1000);
    EXPECT_GT(line, 0.0);
    EXPECT_DOUBLE_EQ(heightForSpecifiedFont(u""_s, font, 100), line);
}

TEST(TextHeight, GrowsByOneLineWhereTheWidthIsTooSmall)
{
    const QFont font;
    const double line = heightForSpecifiedFont(u"Paper"_s, font, 1000);
    const double width = QFontMetricsF(font).horizontalAdvance(u"Paper paper"_s) - 1;
    EXPECT_NEAR(heightForSpecifiedFont(u"Paper paper"_s, font, width), 2 * line, 1.0);
    EXPECT_NEAR(heightForSpecifiedFont(u"Paper\npaper"_s, font, 1000), 2 * line, 1.0);
}

TEST(TextHeight, OfAMissingTextIsZero)
{
    EXPECT_EQ(heightForSpecifiedFont(QString(), QFont(), 100), 0.0);
}

} // namespace
