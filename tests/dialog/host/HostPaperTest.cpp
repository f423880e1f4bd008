#include "dialog/host/HostPaper.h"
#include "dialog/host/PPDFile.h"
#include "dialog/host/PPDMarks.h"
#include "tests/dialog/support/SmallPPD.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

PPDHandle openText(const QByteArray &text)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, text);
    return openPPD(path).ppd;
}

} // namespace

TEST(HostPaper, IsTheMarkedPageSize)
{
    const PPDHandle ppd = openText(kSmallPPD);
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
    const PPDHandle ppd = openText(QByteArray(kSmallPPD)
                                       .replace("*PaperDimension A4/A4: \"595 842\"\n", "")
                                       .replace("*ImageableArea A4/A4: \"10 10 585 832\"\n", ""));
    const auto paper = markedPaper(ppd.get());
    ASSERT_TRUE(paper);
    EXPECT_EQ(paper->name, u"A4"_s);
    EXPECT_EQ(paper->width, 0);
    EXPECT_EQ(paper->height, 0);
}

TEST(HostPaper, IsNoneWithoutAMarkedPageSize)
{
    QByteArray text = kSmallPPD;
    text.replace("PageSize", "SheetSize");
    const PPDHandle ppd = openText(text);
    ASSERT_NE(ppd, nullptr);
    EXPECT_FALSE(markedPaper(ppd.get()));
}
