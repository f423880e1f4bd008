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

TEST(HostPaper, OfTheUsersOwnSizeHasNoNameInThePPD)
{
    const PPDHandle ppd =
        openText(smallPrinter().text() + "*VariablePaperSize: True\n*MaxMediaWidth: \"900\"\n"
                                         "*MaxMediaHeight: \"1300\"\n*HWMargins: 0 0 0 0\n"
                                         "*CustomPageSize True: \"pop pop pop pop pop\"\n"
                                         "*ParamCustomPageSize Width: 1 points 100 900\n"
                                         "*ParamCustomPageSize Height: 2 points 150 1300\n");
    ASSERT_TRUE(forceChoice(ppd.get(), u"PageSize"_s, u"Custom"_s));
    const auto paper = markedPaper(ppd.get());
    ASSERT_TRUE(paper);
    EXPECT_EQ(paper->name, u"Custom"_s);
    EXPECT_TRUE(paper->ppdName.isNull());
}

TEST(HostPaper, IsNoneWithoutAMarkedPageSize)
{
    const PPDHandle ppd = PPDSource().option("SheetSize", {"A4"}).open();
    ASSERT_NE(ppd, nullptr);
    EXPECT_FALSE(markedPaper(ppd.get()));
}
