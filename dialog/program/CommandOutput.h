#pragma once

#include "dialog/files/OutputFile.h"
#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/work/Fault.h"

#include <QtCore/QString>

/// What the program's exit status says of a fault of the kind.
ExitStatus statusOf(FaultKind kind);

/// Writes one line on standard error, whatever characters the sentence has, and gives the status.
ExitStatus failWith(ExitStatus status, const QString &sentence);
ExitStatus failWith(const Fault &fault);

/// Writes one line on standard error that is no failure.
void warn(const QString &sentence);

/// Writes one line on standard output; on standard error where the job itself goes to standard
/// output. False: it cannot be written.
bool report(const CommandLine &line, const QString &sentence);

/// On what terms the command writes pictures and scripts: never over what it reads.
OutputTerms outputTerms(const CommandLine &line);
