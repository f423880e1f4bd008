#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Runs the PDF through the print server's own filter for pages with the options of a job on the
/// printer of that PPD, and gives the words on each printed side, from left to right and down.
/// Fails the test, and gives none, when the filter fails.
QStringList printedWords(const QString &ppdPath, const QString &documentPath,
                         const QList<JobOption> &options);
