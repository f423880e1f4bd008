#pragma once

#include "dialog/replay/SessionJournal.h"

#include <vector>

/// Those of the events, the first one first, that matter most for the state after all of them: the
/// latest ones, all of them, and of those before, what was done last in each control or to each
/// setting. Each panel is shown where it was first.
std::vector<const JournalEntry *> extractOf(const std::vector<const JournalEntry *> &events);
