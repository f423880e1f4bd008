#pragma once

#include "dialog/program/CommandLine.h"

#include <QtCore/QString>

/// The sentence on the first of the options that do not go together, or need another one; null
/// where all is well.
QString contradiction(const CommandLine &line);
