#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>

#include <optional>

/// What the print server's own filters make of a job, measured on the paper. All lengths are in
/// points, from the lower left corner of the upright sheet, upwards.

/// Two marks on a grey ground that covers the page: where they lie from the page's middle.
struct TestMarks
{
    QPointF red;
    QPointF blue;
};

/// A PDF of one such page.
QByteArray markedPage(QSizeF page, const TestMarks &marks);

/// What is on a sheet.
struct PrintedSheet
{
    QSizeF size;
    QRectF ground;               ///< all that is not white; upwards as said above
    std::optional<QPointF> red;  ///< the middle of what is to be seen of the mark
    std::optional<QPointF> blue; ///< likewise
};

/// Runs the document through the server's filters for its type ("application/pdf" or "image/png")
/// with the options of a job on the printer of that PPD, and gives its sheets. Fails the test, and
/// gives none, when a filter fails.
QList<PrintedSheet> printedSheets(const QString &ppdPath, const QString &documentPath,
                                  const QByteArray &type, const QList<JobOption> &options);
