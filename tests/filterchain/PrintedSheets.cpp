#include "tests/filterchain/PrintedSheets.h"

#include "tests/filterchain/FilterChain.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

using namespace Qt::StringLiterals;

namespace {

constexpr double kMark = 16;          // points, a side
constexpr double kPixelsPerPoint = 2; // 144 dpi

QByteArray square(QPointF middle, const char *color)
{
    return color + QByteArray(" rg ") + QByteArray::number(middle.x() - kMark / 2) + ' ' +
           QByteArray::number(middle.y() - kMark / 2) + ' ' + QByteArray::number(kMark) + ' ' +
           QByteArray::number(kMark) + " re f\n";
}

/// The objects, numbered from 1, as a file with its table of contents.
QByteArray pdfOf(const QByteArrayList &objects)
{
    QByteArray file = "%PDF-1.4\n";
    QByteArray table = "0000000000 65535 f \n";
    for (qsizetype index = 0; index < objects.size(); ++index) {
        table += QByteArray::number(file.size()).rightJustified(10, '0') + " 00000 n \n";
        file += QByteArray::number(index + 1) + " 0 obj\n" + objects[index] + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    return file + "xref\n0 " + count + '\n' + table + "trailer<</Size " + count +
           "/Root 1 0 R>>\nstartxref\n" + QByteArray::number(file.size()) + "\n%%EOF\n";
}

/// The box of the pixels that `counts`, and their middle; in points.
template <typename Counts>
std::pair<QRectF, QPointF> measure(const QImage &sheet, const Counts &counts)
{
    QRect box;
    for (int y = 0; y < sheet.height(); ++y)
        for (int x = 0; x < sheet.width(); ++x)
            if (counts(sheet.pixel(x, y)))
                box |= QRect(x, y, 1, 1);
    const QRectF upwards(box.x() / kPixelsPerPoint,
                         (sheet.height() - box.y() - box.height()) / kPixelsPerPoint,
                         box.width() / kPixelsPerPoint, box.height() / kPixelsPerPoint);
    return {upwards, upwards.center()};
}

PrintedSheet measured(const QImage &sheet)
{
    const auto markOf = [&](QRgb color) -> std::optional<QPointF> {
        const auto [box, middle] = measure(sheet, [&](QRgb pixel) { return pixel == color; });
        return box.isEmpty() ? std::nullopt : std::optional(middle);
    };
    const QRgb white = qRgb(255, 255, 255);
    return {QSizeF(sheet.size()) / kPixelsPerPoint,
            measure(sheet, [&](QRgb pixel) { return pixel != white; }).first,
            markOf(qRgb(255, 0, 0)), markOf(qRgb(0, 0, 255))};
}

} // namespace

QByteArray markedPage(QSizeF page, const TestMarks &marks)
{
    const QPointF middle(page.width() / 2, page.height() / 2);
    const QByteArray size =
        QByteArray::number(page.width()) + ' ' + QByteArray::number(page.height());
    const QByteArray content = "0.8 g 0 0 " + size + " re f\n" +
                               square(middle + marks.red, "1 0 0") +
                               square(middle + marks.blue, "0 0 1");
    return pdfOf(
        {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 " + size + "]/Contents 4 0 R/Resources<<>>>>",
         "<</Length " + QByteArray::number(content.size()) + ">>stream\n" + content + "endstream"});
}

QList<PrintedSheet> printedSheets(const QString &ppdPath, const QString &documentPath,
                                  const QByteArray &type, const QList<JobOption> &options)
{
    const QTemporaryDir folder;
    const QString printed = folder.filePath(u"printed.pdf"_s);
    if (!printPages(ppdPath, documentPath, type, options, printed) ||
        !runTool(QStringLiteral(PDFTOPPM),
                 {u"-r"_s, u"144"_s, printed, folder.filePath(u"sheet"_s)}, QProcess::nullDevice()))
        return {};
    QList<PrintedSheet> sheets;
    for (const QString &name : QDir(folder.path()).entryList({u"sheet-*.ppm"_s}, QDir::Files))
        sheets += measured(QImage(folder.filePath(name)));
    return sheets;
}
