#include "dialog/host/PPDFile.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "tests/built/BuiltFiles.h"
#include "tests/filterchain/PrintedWords.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A document of so many pages, each with its number on it.
void writeNumberedPages(const QString &path, int pages)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    for (int page = 1; page <= pages; ++page) {
        if (page > 1)
            writer.newPage();
        painter.drawText(writer.width() / 2, writer.height() / 2, u"page%1"_s.arg(page));
    }
}

struct LaidOut
{
    const char *behaviour;
    QList<RequestedChoice> wanted;
    QStringList sides; ///< the pages on each printed side, from left to right and down
};

class LaidOutJob : public testing::TestWithParam<LaidOut>
{};

TEST_P(LaidOutJob, IsPrintedAsItWasAskedFor)
{
    const QTemporaryDir folder;
    const QString document = folder.filePath(u"five.pdf"_s);
    writeNumberedPages(document, 5);
    const QString ppd = samplePPD(u"velkaro-px-t900"_s);
    SessionOptions options;
    options.ppdPath = ppd;
    options.bundlePath = builtBundle();
    PrintJob job;
    job.setPrinter({}, openPrinter(options, *openPPD(ppd), {}));
    job.setDocuments(*openDocuments({document}));
    const Result<> made = makeSettings(job, GetParam().wanted);
    ASSERT_TRUE(made) << made.sentence().toStdString();
    EXPECT_EQ(printedWords(ppd, document, job.options().options), GetParam().sides);
}

INSTANTIATE_TEST_SUITE_P(
    Table, LaidOutJob,
    testing::Values(
        LaidOut{"AsItIs", {}, {u"page1"_s, u"page2"_s, u"page3"_s, u"page4"_s, u"page5"_s}},
        LaidOut{"TwoPagesASheet",
                {{u"number-up"_s, u"2"_s}},
                {u"page1 page2"_s, u"page3 page4"_s, u"page5"_s}},
        LaidOut{"FourPagesASheet",
                {{u"number-up"_s, u"4"_s}},
                {u"page1 page2 page3 page4"_s, u"page5"_s}},
        LaidOut{"FourPagesASheetFromTheRight",
                {{u"number-up"_s, u"4"_s}, {u"number-up-layout"_s, u"rltb"_s}},
                {u"page2 page1 page4 page3"_s, u"page5"_s}},
        LaidOut{"FourPagesASheetDownwards",
                {{u"number-up"_s, u"4"_s}, {u"number-up-layout"_s, u"tblr"_s}},
                {u"page1 page3 page2 page4"_s, u"page5"_s}},
        LaidOut{"EvenPages", {{u"page-set"_s, u"even"_s}}, {u"page2"_s, u"page4"_s}},
        LaidOut{"OddPages", {{u"page-set"_s, u"odd"_s}}, {u"page1"_s, u"page3"_s, u"page5"_s}},
        LaidOut{"Reversed",
                {{u"outputorder"_s, u"reverse"_s}},
                {u"page5"_s, u"page4"_s, u"page3"_s, u"page2"_s, u"page1"_s}},
        LaidOut{"OddPagesReversed",
                {{u"page-set"_s, u"odd"_s}, {u"outputorder"_s, u"reverse"_s}},
                {u"page5"_s, u"page3"_s, u"page1"_s}},
        LaidOut{"ABooklet",
                {{u"booklet"_s, u"on"_s}},
                {u"page1"_s, u"page2"_s, u"page3"_s, u"page4 page5"_s}},
        // Sides are chosen, not pages: 1 2, 3 4, 5, and of a booklet _ 1, 2 _, _ 3, 4 5.
        LaidOut{"SomePagesOfTwoASheet",
                {{u"number-up"_s, u"2"_s}, {u"page-ranges"_s, u"2-3"_s}},
                {u"page3 page4"_s, u"page5"_s}},
        LaidOut{"EvenPagesOfTwoASheet",
                {{u"number-up"_s, u"2"_s}, {u"page-set"_s, u"even"_s}},
                {u"page3 page4"_s}},
        LaidOut{"SomePagesOfABooklet",
                {{u"booklet"_s, u"on"_s}, {u"page-ranges"_s, u"4"_s}},
                {u"page4 page5"_s}},
        LaidOut{"SomePages", {{u"page-ranges"_s, u"2-3"_s}}, {u"page2"_s, u"page3"_s}},
        LaidOut{"CopiesPageByPage",
                {{u"copies"_s, u"2"_s},
                 {u"page-ranges"_s, u"1-2"_s},
                 {u"multiple-document-handling"_s, u"separate-documents-uncollated-copies"_s}},
                {u"page1"_s, u"page2"_s}}, // the next filter makes two of each
        LaidOut{"CopiesOfWhichNothingIsSaid",
                {{u"copies"_s, u"2"_s}, {u"page-ranges"_s, u"1-2"_s}},
                {u"page1"_s, u"page2"_s, u"page1"_s, u"page2"_s}},
        LaidOut{"CopiesCopyByCopy",
                {{u"copies"_s, u"2"_s},
                 {u"page-ranges"_s, u"1-2"_s},
                 {u"multiple-document-handling"_s, u"separate-documents-collated-copies"_s}},
                {u"page1"_s, u"page2"_s, u"page1"_s, u"page2"_s}}),
    CaseName());

} // namespace
