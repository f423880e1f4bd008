#pragma once

#include "dialog/program/CommandLine.h"

/// Prints what the plug-in's panels will not understand in the PPD of the command line, a sentence
/// a line. Needs no display.
///
/// The exit status: 0 when there was a look, whatever was found; 2 for a PPD that cannot be opened,
/// 5 when the output cannot be written, 7 for a plug-in that cannot be loaded or cannot check.
int runCheckCommand(int &argc, char **argv, const CommandLine &line);
