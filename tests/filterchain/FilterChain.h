#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Runs a program, with further environment variables, and writes what it says into a file. Fails
/// the test, and is false, when the program fails.
bool runTool(const QString &program, const QStringList &arguments, const QString &output,
             const QMap<QString, QString> &variables = {});

/// Runs the document through the print server's own filters for its type ("application/pdf" or
/// "image/png") with the options of a job on the printer of that PPD, and writes the pages as they
/// are printed into a PDF. Fails the test, and is false, when a filter fails.
bool printPages(const QString &ppdPath, const QString &documentPath, const QByteArray &type,
                const QList<JobOption> &options, const QString &output);
