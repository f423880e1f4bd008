#pragma once

#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"

/// Tells why the command line's choice is not to be had with its other settings, and how it is.
/// Needs a QApplication. Prints, sends and writes nothing.
ExitStatus runWhyCommand(const CommandLine &line);
