#pragma once

#include "dialog/program/CommandLine.h"

#include <QtCore/QString>

/// Runs the script (a path, or "-": standard input) line by line: each event's line is on standard
/// output before the next line of the script is read. Standard error gets one line when the script
/// cannot go on. Needs a QApplication. With `force` its pictures may replace files.
///
/// The exit status: 0, or 2 when the script cannot be read or is faulty, or a PPD cannot be opened.
int runReplay(const QString &script, const QString &bundlePath = QString(), bool force = false);

/// The same with the program's own QApplication, which needs no display.
int runReplayCommand(int &argc, char **argv, const CommandLine &line);
