#pragma once

#include "dialog/program/CommandLine.h"

/// Runs the command line, which is not one for replay: the dialog, a picture of it, or printing
/// without it. Gives the program's exit status. Makes the QApplication; what shows no window needs
/// no display.
int runDialogCommand(int &argc, char **argv, const CommandLine &line);
