#pragma once

#include "tests/golden/Random.h"

#include <QtCore/QByteArray>

/// The PPD of a printer without panels, as text: a handful of settings, and constraints among them
/// in both spellings, of two choices and of three.
QByteArray constrainedPrinter(Random &random);
