#pragma once

#include "dialog/commandline/CommandLine.h"
#include "dialog/commandline/ExitStatus.h"

/// Paints the dialog, or the part that CommandLine::panel names, into a PNG at
/// CommandLine::screenshot. Waits for the printer's PPD, nothing else. Needs a QApplication, no
/// display.
ExitStatus takeScreenshot(const CommandLine &line);
