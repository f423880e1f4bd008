#pragma once

#include "dialog/advice/Scratch.h"

#include <optional>

/// A trial as the copy of a process that has made it tells of it, and back; none for a line that is
/// none of them.
QByteArray lineOfTrial(const Trial &trial);
std::optional<Trial> trialOfLine(const QByteArray &line);
