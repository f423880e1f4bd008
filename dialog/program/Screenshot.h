#pragma once

#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"

/// Paints the dialog, or the part that CommandLine::panel names, into a PNG at
/// CommandLine::screenshot. Waits for the printer's PPD, nothing else. Needs a QApplication, no
/// display.
ExitStatus takeScreenshot(const CommandLine &line);
