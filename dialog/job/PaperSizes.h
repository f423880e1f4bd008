#pragma once

#include "dialog/job/PaperKind.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QSizeF>
#include <QtCore/QString>

/// The papers of a printer as people think of them: first how large, then whether to its edges.

/// A size of paper. Sizes are in points.
struct PaperSize
{
    QString choice;     ///< of `PageSize`; the one with margins where there are both
    QString borderless; ///< the choice for the same sheet without margins; null: none
    QString text;       ///< the PPD's
    double width = 0;
    double height = 0;
    PaperKind kind = PaperKind::Standard;
};

/// The sizes of the PPD (null: none) in its order. Two choices are one size when the name of one is
/// the other's with a word for borderless behind a point ("A4" and "A4.Fullbleed"), and the printer
/// leaves no margins on that one. Texts and measures tell nothing: there are papers of equal texts
/// or measures that are different papers.
QList<PaperSize> paperSizes(ppd_file_t *ppd);

/// The index of the size that has the choice, in either form; -1 without one.
qsizetype indexOfSize(const QList<PaperSize> &sizes, const QString &choice);

/// The measures that are meant by a PPD's, which are whole points as a rule: eighths of an inch,
/// else whole millimetres where both lengths are less than a point from one, else the same (595 ×
/// 842: 210 × 297 mm, which are 595.28 × 841.89). In points.
QSizeF meantSize(const QSizeF &size);

/// Width and height as people of that country measure, such as "210 × 297 mm" or "8.5 × 11 in".
QString measureText(double width, double height,
                    QLocale::MeasurementSystem system = QLocale().measurementSystem());
