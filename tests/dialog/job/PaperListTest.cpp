#include "dialog/job/PaperList.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QList<PaperSize> kSizes{
    {u"A4"_s, u"A4.FB"_s, u"A4"_s, 595, 842, PaperKind::Standard},
    {u"4x6"_s, {}, u"4 x 6 in (102 x 152 mm)"_s, 288, 432, PaperKind::Photo},
    {u"A3"_s, {}, u"A3"_s, 842, 1191, PaperKind::Standard}};

/// "[Heading]" and "title|paper|detail".
QStringList linesOf(const QList<PaperListRow> &rows)
{
    QStringList lines;
    for (const PaperListRow &row : rows)
        lines += row.paper.isNull() ? u"[%1]"_s.arg(row.title)
                                    : u"%1|%2|%3"_s.arg(row.title, row.paper, row.detail);
    return lines;
}

class ListOfPapers : public testing::Test
{
protected:
    ListOfPapers() { QLocale::setDefault(QLocale(QLocale::German)); }
    ~ListOfPapers() override { QLocale::setDefault(m_former); }

    const QLocale m_former;
};

TEST_F(ListOfPapers, StandsUnderHeadingsOfWhichNoneIsEmpty)
{
    EXPECT_EQ(linesOf(paperList(kSizes, {}, {}, false)),
              (QStringList{u"[Standard]"_s, u"A4|A4|210 × 297 mm"_s, u"A3|A3|297 × 420 mm"_s,
                           u"[Photo]"_s, u"4 x 6 in (102 x 152 mm)|4x6|"_s}));
}

TEST_F(ListOfPapers, BeginsWithTheSizesThatWereUsedLastEachOnce)
{
    const QStringList recent{u"A3"_s, u"A4.FB"_s, u"Gone"_s, u"A4"_s};
    EXPECT_EQ(linesOf(paperList(kSizes, recent, {}, false)).mid(0, 4),
              (QStringList{u"[Used Recently]"_s, u"A3|A3|297 × 420 mm"_s, u"A4|A4|210 × 297 mm"_s,
                           u"[Standard]"_s}));
}

TEST_F(ListOfPapers, EndsWithTheUsersOwnSizesWhereThePrinterTakesAny)
{
    const QList<OwnSize> own{{u"Bookmark"_s, 141.7, 425.2}, {u"70 x 100 mm"_s, 198.4, 283.5}};
    EXPECT_EQ(linesOf(paperList({}, {}, own, true)),
              (QStringList{u"[Own Sizes]"_s, u"Bookmark|Custom.141.7x425.2|50 × 150 mm"_s,
                           u"70 x 100 mm|Custom.198.4x283.5|"_s, u"Custom Size|Custom|"_s}));
    EXPECT_EQ(linesOf(paperList({}, {}, own, false)), QStringList());
}

TEST_F(ListOfPapers, OfTheSamplePrinterHasAllKinds)
{
    const PPDHandle ppd = openSample(u"velkaro-px-t900"_s);
    QStringList headings;
    for (const PaperListRow &row : paperList(paperSizes(ppd.get()), {}, {}, true))
        if (row.paper.isNull())
            headings += row.title;
    EXPECT_EQ(headings, (QStringList{u"Standard"_s, u"Photo"_s, u"Envelopes and Cards"_s,
                                     u"Discs"_s, u"Own Sizes"_s}));
}

} // namespace
