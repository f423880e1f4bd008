#pragma once

#include "tests/support/PPDSource.h"

/// A printer of no maker that a plug-in knows, with a feature of every kind: groups, a switch, one
/// of several, many at once, values of the user's own of every type, constraints, what is
/// installed, and texts in German and Japanese.
QByteArray featurePrinter();
