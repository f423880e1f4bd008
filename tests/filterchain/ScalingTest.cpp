#include "dialog/host/PPDFile.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/job/Papers.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/filterchain/PrintedSheets.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"

#include <QtCore/QBuffer>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double kExact = 1; // points: marks are measured in halves of one

/// The sample printer, which has a borderless A5 as well.
QByteArray printer()
{
    QByteArray text = sampleText(u"velkaro-px-t900"_s);
    for (const auto &[keyword, value] :
         {std::pair("PageSize", "<</PageSize[420 595]/ImagingBBox null>>setpagedevice"),
          std::pair("PageRegion", "<</PageSize[420 595]/ImagingBBox null>>setpagedevice"),
          std::pair("ImageableArea", "0 0 420 595"), std::pair("PaperDimension", "420 595")}) {
        const QByteArray next = '*' + QByteArray(keyword) + " A6/";
        text.replace(next, '*' + QByteArray(keyword) + " A5.Fullbleed/A5 (Borderless): \"" + value +
                               "\"\n" + next);
    }
    return text;
}

/// Jobs of the dialog, as the server's filters print them.
class ScaledJob : public testing::Test
{
protected:
    ScaledJob() : m_ppd(m_folder.filePath(u"printer.ppd"_s))
    {
        writeFile(m_ppd, printer());
        SessionOptions options;
        options.ppdPath = m_ppd;
        options.bundlePath = builtBundle();
        m_job.setPrinter({}, openPrinter(options, *openPPD(m_ppd), {}));
    }

    void openDocument(const QString &name, const QByteArray &bytes)
    {
        m_document = m_folder.filePath(name);
        writeFile(m_document, bytes);
        m_job.setDocuments(*openDocuments({m_document}));
    }

    void set(const QString &name, const QString &value)
    {
        const Result<> made = makeSettings(m_job, {{name, value}});
        ASSERT_TRUE(made) << made.sentence().toStdString();
    }

    /// The one sheet of the job.
    PrintedSheet print(const QByteArray &type = "application/pdf")
    {
        const QList<PrintedSheet> sheets =
            printedSheets(m_ppd, m_document, type, m_job.options().options);
        EXPECT_EQ(sheets.size(), 1);
        return sheets.value(0);
    }

    QTemporaryDir m_folder;
    QString m_ppd;
    QString m_document;
    PrintJob m_job;
};

void expectAt(const std::optional<QPointF> &mark, QPointF expected)
{
    ASSERT_TRUE(mark.has_value());
    EXPECT_NEAR(mark->x(), expected.x(), kExact);
    EXPECT_NEAR(mark->y(), expected.y(), kExact);
}

void expectBox(const QRectF &box, const QRectF &expected)
{
    EXPECT_NEAR(box.left(), expected.left(), kExact);
    EXPECT_NEAR(box.top(), expected.top(), kExact);
    EXPECT_NEAR(box.width(), expected.width(), kExact);
    EXPECT_NEAR(box.height(), expected.height(), kExact);
}

/// An A4 page, 595 x 842 points, on a sheet. Its red mark lies 60 to the left and 100 below the
/// page's middle, the blue one 40 to the right and 80 above; both scaled. The page is always in the
/// middle of the sheet, whose margins, where it has any, are 9 on all sides.
struct Case
{
    const char *paper;
    const char *scaling;
    QSizeF sheet;
    QRectF ground; ///< left, bottom, width, height
    QPointF red;
    QPointF blue;
};

std::string nameOf(const Case &row)
{
    return QString(QLatin1String(row.paper) + u'_' + QLatin1String(row.scaling))
        .remove(u'.')
        .toStdString();
}

class ScaledPage : public ScaledJob, public testing::WithParamInterface<Case>
{
protected:
    void expectSheet(const PrintedSheet &sheet)
    {
        EXPECT_EQ(sheet.size, GetParam().sheet);
        expectBox(sheet.ground, GetParam().ground);
        expectAt(sheet.red, GetParam().red);
        expectAt(sheet.blue, GetParam().blue);
    }
};

TEST_P(ScaledPage, StandsOnAnUprightSheet)
{
    openDocument(u"page.pdf"_s, markedPage({595, 842}, {{-60, -100}, {40, 80}}));
    set(u"PageSize"_s, QLatin1String(GetParam().paper));
    set(u"print-scaling"_s, QLatin1String(GetParam().scaling));
    expectSheet(print());
}

// A page that is wider than high lies on the upright sheet turned by a quarter, its lower edge to
// the right: what is right on the page is above on the sheet, and what is above is left.
TEST_P(ScaledPage, LiesOnASheetThatLies)
{
    openDocument(u"page.pdf"_s, markedPage({842, 595}, {{-100, 60}, {80, -40}}));
    set(u"PageSize"_s, QLatin1String(GetParam().paper));
    set(u"print-scaling"_s, QLatin1String(GetParam().scaling));
    set(u"orientation-requested"_s, u"landscape"_s);
    expectSheet(print());
}

INSTANTIATE_TEST_SUITE_P(
    Table, ScaledPage,
    testing::Values(
        // A4: 595 x 842, of which 577 x 824 can be printed on; fit 0.9697, fill 0.9786
        Case{"A4", "auto", {595, 842}, {0, 0, 595, 842}, {237.5, 321}, {337.5, 501}},
        Case{"A4", "none", {595, 842}, {0, 0, 595, 842}, {237.5, 321}, {337.5, 501}},
        Case{"A4", "fit", {595, 842}, {9, 12.7, 577, 816.5}, {239.3, 324}, {336.3, 498.6}},
        Case{"A4", "fill", {595, 842}, {9, 9, 577, 824}, {238.8, 323.1}, {336.6, 499.3}},
        // A4, borderless: 595 x 842, of which 595 x 842 can be printed on; fit 1.0000, fill 1.0000
        Case{"A4.Fullbleed", "auto", {595, 842}, {0, 0, 595, 842}, {237.5, 321}, {337.5, 501}},
        Case{"A4.Fullbleed", "none", {595, 842}, {0, 0, 595, 842}, {237.5, 321}, {337.5, 501}},
        Case{"A4.Fullbleed", "fit", {595, 842}, {0, 0, 595, 842}, {237.5, 321}, {337.5, 501}},
        Case{"A4.Fullbleed", "fill", {595, 842}, {0, 0, 595, 842}, {237.5, 321}, {337.5, 501}},
        // A5: 420 x 595, of which 402 x 577 can be printed on; fit 0.6756, fill 0.6853
        Case{"A5", "auto", {420, 595}, {9, 13.1, 402, 568.9}, {169.5, 229.9}, {237, 351.6}},
        Case{"A5", "none", {420, 595}, {0, 0, 420, 595}, {150, 197.5}, {250, 377.5}},
        Case{"A5", "fit", {420, 595}, {9, 13.1, 402, 568.9}, {169.5, 229.9}, {237, 351.6}},
        Case{"A5", "fill", {420, 595}, {9, 9, 402, 577}, {168.9, 229}, {237.4, 352.3}},
        // A5, borderless: 420 x 595, of which 420 x 595 can be printed on; fit 0.7059, fill 0.7067
        Case{"A5.Fullbleed", "auto", {420, 595}, {0, 0, 420, 595}, {167.6, 226.8}, {238.3, 354}},
        Case{"A5.Fullbleed", "none", {420, 595}, {0, 0, 420, 595}, {150, 197.5}, {250, 377.5}},
        Case{"A5.Fullbleed", "fit", {420, 595}, {0, 0.3, 420, 594.4}, {167.6, 226.9}, {238.2, 354}},
        Case{"A5.Fullbleed", "fill", {420, 595}, {0, 0, 420, 595}, {167.6, 226.8}, {238.3, 354}},
        // 4x6: 288 x 432, of which 270 x 414 can be printed on; fit 0.4538, fill 0.4917
        Case{"4x6", "auto", {288, 432}, {9, 25, 270, 382.1}, {116.8, 170.6}, {162.2, 252.3}},
        Case{"4x6", "none", {288, 432}, {0, 0, 288, 432}, {84, 116}, {184, 296}},
        Case{"4x6", "fit", {288, 432}, {9, 25, 270, 382.1}, {116.8, 170.6}, {162.2, 252.3}},
        Case{"4x6", "fill", {288, 432}, {9, 9, 270, 414}, {114.5, 166.8}, {163.7, 255.3}},
        // 4x6, borderless: 288 x 432, of which 288 x 432 can be printed on; fit 0.4840, fill
        // 0.5131;
        // larger pages fill borderless paper by themselves
        Case{"4x6.Fullbleed", "auto", {288, 432}, {0, 0, 288, 432}, {113.2, 164.7}, {164.5, 257}},
        Case{"4x6.Fullbleed", "none", {288, 432}, {0, 0, 288, 432}, {84, 116}, {184, 296}},
        Case{"4x6.Fullbleed",
             "fit",
             {288, 432},
             {0, 12.2, 288, 407.6},
             {115, 167.6},
             {163.4, 254.7}},
        Case{"4x6.Fullbleed", "fill", {288, 432}, {0, 0, 288, 432}, {113.2, 164.7}, {164.5, 257}}),
    [](const auto &row) { return nameOf(row.param); });

/// A page in a way that the sheet does not lie, or of another size; on A4, where the marks are
/// then.
struct OtherPage
{
    const char *behaviour;
    QSizeF page;
    const char *orientation;
    const char *paper;
    const char *scaling;
    QPointF red;  ///< of a mark 60 to the left and 100 below the page's middle
    QPointF blue; ///< of one 40 to the right and 80 above
};

class PageOfAnotherKind : public ScaledJob, public testing::WithParamInterface<OtherPage>
{};

TEST_P(PageOfAnotherKind, LiesAsTheSettingsSay)
{
    openDocument(u"page.pdf"_s, markedPage(GetParam().page, {{-60, -100}, {40, 80}}));
    set(u"PageSize"_s, QLatin1String(GetParam().paper));
    set(u"print-scaling"_s, QLatin1String(GetParam().scaling));
    set(u"orientation-requested"_s, QLatin1String(GetParam().orientation));
    const PrintedSheet sheet = print();
    expectAt(sheet.red, GetParam().red);
    expectAt(sheet.blue, GetParam().blue);
}

INSTANTIATE_TEST_SUITE_P(
    Table, PageOfAnotherKind,
    testing::Values(
        // Upright pages on a sheet that lies, 842 x 595: turned by a quarter on the upright sheet,
        // not upside down. Fit: 577 of 842.
        OtherPage{"UprightOnALyingSheet",
                  {595, 842},
                  "landscape",
                  "A4",
                  "fit",
                  {366, 379.9},
                  {242.7, 448.4}},
        OtherPage{"UprightOnALyingSheetInItsSize",
                  {595, 842},
                  "landscape",
                  "A4",
                  "none",
                  {397.5, 361},
                  {217.5, 461}},
        // Lying pages on an upright sheet are turned, and fill it.
        OtherPage{"LyingOnAnUprightSheet",
                  {842, 595},
                  "portrait",
                  "A4",
                  "none",
                  {397.5, 361},
                  {217.5, 461}},
        // Small pages, 288 x 432. Only fit and fill make them larger: by 824 of 432 and 577 of 288.
        OtherPage{
            "SmallAutomatic", {288, 432}, "portrait", "A4", "auto", {237.5, 321}, {337.5, 501}},
        OtherPage{
            "SmallActualSize", {288, 432}, "portrait", "A4", "none", {237.5, 321}, {337.5, 501}},
        OtherPage{"SmallFit", {288, 432}, "portrait", "A4", "fit", {183.1, 230.3}, {373.8, 573.6}},
        OtherPage{
            "SmallFill", {288, 432}, "portrait", "A4", "fill", {177.3, 220.7}, {377.6, 581.3}},
        // Borderless: by 842 of 432 and 595 of 288.
        OtherPage{"SmallFitBorderless",
                  {288, 432},
                  "portrait",
                  "A4.Fullbleed",
                  "fit",
                  {180.6, 226.1},
                  {375.5, 576.9}},
        OtherPage{"SmallFillBorderless",
                  {288, 432},
                  "portrait",
                  "A4.Fullbleed",
                  "fill",
                  {173.5, 214.4},
                  {380.1, 586.3}},
        // A size of the user's own, 300 x 400; the sample printer prints it without margins.
        OtherPage{"OwnSizeFit",
                  {595, 842},
                  "portrait",
                  "Custom.300x400",
                  "fit",
                  {121.5, 152.5},
                  {169, 238}}),
    CaseName());

// What the ticket maps the page to is the sheet; how the page comes to its size is the scaling's.
TEST_F(ScaledJob, IsPrintedOnTheSheetThatThePageIsMappedTo)
{
    openDocument(u"page.pdf"_s, markedPage({595, 842}, {{-60, -100}, {40, 80}}));
    m_job.session()->setPaper(*paperOfChoice(m_job.ppd(), u"A4"_s), u"A5"_s);
    set(u"print-scaling"_s, u"none"_s);
    const PrintedSheet sheet = print();
    EXPECT_EQ(sheet.size, QSizeF(420, 595));
    expectAt(sheet.red, {150, 197.5});
}

/// A picture of 288 x 432 points, as large as the paper, on 4x6.
struct Picture
{
    const char *behaviour;
    const char *paper;
    const char *scaling;
    QRectF ground; ///< left, bottom, width, height
};

class ScaledPicture : public ScaledJob, public testing::WithParamInterface<Picture>
{};

QByteArray picture()
{
    QImage image(288, 432, QImage::Format_RGB32);
    image.fill(qRgb(204, 204, 204));
    image.setDotsPerMeterX(2835); // 72 dpi
    image.setDotsPerMeterY(2835);
    QByteArray png;
    QBuffer buffer(&png);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"));
    return png;
}

TEST_P(ScaledPicture, LiesAsTheDialogSays)
{
    openDocument(u"picture.png"_s, picture());
    set(u"PageSize"_s, QLatin1String(GetParam().paper));
    set(u"print-scaling"_s, QLatin1String(GetParam().scaling));
    expectBox(print("image/png").ground, GetParam().ground);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ScaledPicture,
    testing::Values(
        Picture{"Borderless", "4x6.Fullbleed", "auto", {0, 0, 288, 432}},
        Picture{"BorderlessActualSize", "4x6.Fullbleed", "none", {0, 0, 288, 432}},
        Picture{"BorderlessFit", "4x6.Fullbleed", "fit", {0, 0, 288, 432}},
        Picture{"BorderlessFill", "4x6.Fullbleed", "fill", {0, 0, 288, 432}},
        // 270 of 288 points can be printed on: smaller, since it is not within the margins.
        Picture{"Automatic", "4x6", "auto", {9, 13.5, 270, 405}},
        Picture{"ActualSize", "4x6", "none", {0, 0, 288, 432}},
        // And once more, by the filter for pages: 270 of 288 twice.
        Picture{"Fit", "4x6", "fit", {17.4, 26.2, 253.1, 379.7}},
        // Cut to 270 x 414 on a page of 288 x 432, and that is made 414 of 432 as large.
        Picture{"Fill", "4x6", "fill", {14.6, 17.6, 258.8, 396.8}}),
    CaseName());

} // namespace
