#include "dialog/printing/PageCounter.h"

#include "dialog/job/DocumentFile.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtTest/QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void writePDF(const QString &path, int pages)
{
    QPdfWriter writer(path);
    QPainter painter(&writer);
    for (int page = 1; page < pages; ++page)
        writer.newPage();
}

PageCount counted(const QStringList &paths)
{
    PageCounter counter;
    std::optional<PageCount> count;
    counter.count(*openDocuments(paths), [&](PageCount told) { count = told; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return count.has_value(); }, 30000));
    return count.value_or(PageCount());
}

TEST(PageCounter, CountsThePagesOfPDFs)
{
    const QTemporaryDir folder;
    const QString two = folder.filePath(u"two.pdf"_s);
    const QString five = folder.filePath(u"five.pdf"_s);
    const QString text = folder.filePath(u"text.txt"_s);
    writePDF(two, 2);
    writePDF(five, 5);
    writeFile(text, "no PDF");
    EXPECT_EQ(counted({five}), (PageCount{5, 5, {5}}));
    EXPECT_EQ(counted({five, two}), (PageCount{7, 2, {5, 2}}));
    EXPECT_EQ(counted({five, text}), (PageCount{std::nullopt, 5, {5, std::nullopt}}));
    EXPECT_EQ(counted({text}), (PageCount{{}, {}, {std::nullopt}}));
}

struct Hostile
{
    const char *behaviour;
    QByteArray bytes;
};

class HostilePDF : public testing::TestWithParam<Hostile>
{};

TEST_P(HostilePDF, HasPagesThatAreNotKnown)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"hostile.pdf"_s);
    writeFile(path, GetParam().bytes);
    EXPECT_EQ(counted({path}), (PageCount{{}, {}, {std::nullopt}}));
}

/// A PDF without a table of contents, which readers put together again.
QByteArray pdf(const QByteArray &objects)
{
    return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n" + objects +
           "trailer<</Root 1 0 R/Size 9>>\nstartxref\n0\n%%EOF\n";
}

INSTANTIATE_TEST_SUITE_P(
    Table, HostilePDF,
    testing::Values(Hostile{"CutShort", "%PDF-1.4\n1 0 obj<</Type/Cat"},
                    Hostile{"OfNothingElse", "%PDF-1.4\n"},
                    Hostile{"WithoutPages", pdf("2 0 obj null endobj\n")},
                    Hostile{"WithPagesWithinThemselves",
                            pdf("2 0 obj<</Type/Pages/Count 1/Kids[2 0 R]>>endobj\n")},
                    Hostile{"OfNestedArrays",
                            pdf("2 0 obj" + QByteArray(3'000'000, '[') + "endobj\n")}),
    CaseName());

TEST(PageCounter, TellsNobodyWhenItHasGoneOrCountsAnew)
{
    const QTemporaryDir folder;
    const QString five = folder.filePath(u"five.pdf"_s);
    writePDF(five, 5);
    int told = 0;
    {
        PageCounter counter;
        counter.count(*openDocuments({five}), [&](PageCount) { ++told; });
    }
    EXPECT_EQ(told, 0);
    PageCounter counter;
    counter.count(*openDocuments({five}), [&](PageCount) { told += 10; });
    counter.count(*openDocuments({five}), [&](PageCount) { ++told; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return told > 0; }, 30000));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 1);
}

} // namespace
