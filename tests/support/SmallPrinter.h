#pragma once

#include "tests/support/PPDSource.h"

/// A printer with two papers (A4, A5), Duplex (None, DuplexNoTumble), two options that no panel
/// knows ("Finish": Matt, Shiny; "Weight": Light, Heavy) and a constraint: Shiny paper cannot be
/// Heavy.
PPDSource smallPrinter();
