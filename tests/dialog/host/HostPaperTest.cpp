#include "dialog/host/HostPaper.h"
#include "dialog/host/PPDMarks.h"
#include "tests/support/SmallPrinter.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(HostPaper, IsTheMarkedPageSize)
{
    const PPDHandle ppd = smallPrinter().open();
    ASSERT_TRUE(forceChoice(ppd.get(), u"PageSize"_s, u"A5"_s));
    const auto paper = markedPaper(ppd.get());
    ASSERT_TRUE(paper);
    EXPECT_EQ(paper->name, u"A5"_s);
    EXPECT_EQ(paper->ppdName, u"A5"_s);
    EXPECT_EQ(paper->width, 420);
    EXPECT_EQ(paper->height, 595);
}

TEST(HostPaper, WithoutADimensionHasNoSize)
{
    const PPDHandle ppd = PPDSource().option("PageSize", {"A4"}).open();
    const auto paper = markedPaper(ppd.get());
    ASSERT_TRUE(paper);
    EXPECT_EQ(paper->name, u"A4"_s);
    EXPECT_EQ(paper->width, 0);
    EXPECT_EQ(paper->height, 0);
}

TEST(HostPaper, IsNoneWithoutAMarkedPageSize)
{
    const PPDHandle ppd = PPDSource().option("SheetSize", {"A4"}).open();
    ASSERT_NE(ppd, nullptr);
    EXPECT_FALSE(markedPaper(ppd.get()));
}
