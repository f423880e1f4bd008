#include "platform/printmanager/PMPageFormat.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(PMPageFormatTest, GivesThePaperAndWhatIsKnownOfIt)
{
    PMPageFormat format;
    format.paper = PMPaper{u"A4"_s, u"A4.Fullbleed"_s, 595.28, 841.89};
    const PMPaper *paper = nullptr;
    ASSERT_EQ(PMGetPageFormatPaper(&format, &paper), noErr);
    EXPECT_EQ(paper, &*format.paper);
    QString name;
    QString ppdName;
    double width = 0;
    double height = 0;
    EXPECT_EQ(PMPaperGetName(paper, &name), noErr);
    EXPECT_EQ(PMPaperGetPPDPaperName(paper, &ppdName), noErr);
    EXPECT_EQ(PMPaperGetWidth(paper, &width), noErr);
    EXPECT_EQ(PMPaperGetHeight(paper, &height), noErr);
    EXPECT_EQ(name, u"A4"_s);
    EXPECT_EQ(ppdName, u"A4.Fullbleed"_s);
    EXPECT_EQ(width, 595.28);
    EXPECT_EQ(height, 841.89);
}

TEST(PMPageFormatTest, HasNoPaperWithoutAFormatOrAPaper)
{
    const PMPaper none;
    const PMPaper *paper = &none;
    EXPECT_EQ(PMGetPageFormatPaper(nullptr, &paper), kPMInvalidParameter);
    EXPECT_EQ(paper, nullptr);
    const PMPageFormat format;
    paper = &none;
    EXPECT_EQ(PMGetPageFormatPaper(&format, &paper), kPMInvalidParameter);
    EXPECT_EQ(paper, nullptr);
    EXPECT_EQ(PMGetPageFormatPaper(&format, nullptr), kPMInvalidParameter);
}

TEST(PMPageFormatTest, HasNoNamesForASizeThatTheUserDefined)
{
    const PMPaper paper{QString(), QString(), 300, 400};
    QString name = u"before"_s;
    EXPECT_EQ(PMPaperGetName(&paper, &name), kPMKeyNotFound);
    EXPECT_EQ(PMPaperGetPPDPaperName(&paper, &name), kPMKeyNotFound);
    EXPECT_EQ(name, u"before"_s);
}

TEST(PMPageFormatTest, TellsAnEmptyNameFromNone)
{
    const PMPaper paper{u""_s, u""_s, 300, 400};
    QString name = u"before"_s;
    EXPECT_EQ(PMPaperGetName(&paper, &name), noErr);
    EXPECT_EQ(name, u""_s);
}

TEST(PMPageFormatTest, FailsWithoutAPaperOrAPlaceForTheResult)
{
    const PMPaper paper{u"A4"_s, u"A4"_s, 595, 842};
    QString name;
    double size = 7;
    EXPECT_EQ(PMPaperGetName(nullptr, &name), kPMInvalidParameter);
    EXPECT_EQ(PMPaperGetName(&paper, nullptr), kPMInvalidParameter);
    EXPECT_EQ(PMPaperGetPPDPaperName(nullptr, &name), kPMInvalidParameter);
    EXPECT_EQ(PMPaperGetWidth(nullptr, &size), kPMInvalidParameter);
    EXPECT_EQ(PMPaperGetHeight(nullptr, &size), kPMInvalidParameter);
    EXPECT_EQ(PMPaperGetHeight(&paper, nullptr), kPMInvalidParameter);
    EXPECT_EQ(size, 7);
}

} // namespace
