#pragma once

#include "dialog/commandline/ExitStatus.h"

#include <QtCore/QString>

/// Writes one line on standard error, whatever characters the sentence has, and gives the status.
ExitStatus failWith(ExitStatus status, const QString &sentence);

/// Writes one line on standard error that is no failure.
void warn(const QString &sentence);

/// Writes one line on standard output.
void report(const QString &sentence);
