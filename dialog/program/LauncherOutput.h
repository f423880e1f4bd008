#pragma once

// Without Qt: the launcher answers before it loads anything.

#include "dialog/program/ExitStatus.h"

/// Opens what of standard input, output and error is closed, so that no file takes its place: using
/// it still fails. For the beginning of the program.
void holdStandardStreams();

/// Writes one line on standard error in the user's language: a sentence of LauncherTexts, and the
/// reason that stands in it.
void complain(const char *sentence, const char *reason);

/// Writes the text on standard output; where that fails, one line on standard error.
ExitStatus printText(const char *text);

/// Says that standard output cannot be written, with the system's reason (`errno`).
ExitStatus failWithoutOutput();
