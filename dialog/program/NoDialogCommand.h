#pragma once

#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"

/// Prints the documents without a dialog: the queue's saved settings, then those of the command
/// line in their order, then the panels' checks. What a check asks is answered no unless
/// CommandLine::yes. One sentence on standard error for what went wrong, one line on standard
/// output for what was done. Needs a QApplication.
ExitStatus runNoDialogCommand(const CommandLine &line);
