#pragma once

#include "dialog/files/OutputFile.h"
#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"

#include <QtCore/QString>

/// Writes one line on standard error, whatever characters the sentence has, and gives the status.
ExitStatus failWith(ExitStatus status, const QString &sentence);

/// Writes one line on standard error that is no failure.
void warn(const QString &sentence);

/// Writes one line on standard output.
void report(const QString &sentence);

/// On what terms the command writes: never over what it reads.
OutputTerms outputTerms(const CommandLine &line);

/// The same for the job's file, while the session is being recorded.
OutputTerms jobFileTerms(const CommandLine &line);
