#pragma once

#include "dialog/program/CommandLine.h"

/// Has the alerts shown again that the user has asked not to be: those of all installed plug-ins,
/// or of the command line's. Needs no display.
///
/// The exit status: 0 when they are, 5 when that cannot be written, 7 for a plug-in of the command
/// line that is none.
int runForgetCommand(int &argc, char **argv, const CommandLine &line);
