#pragma once

#include <cups/ppd.h>

/// Gives options and choices words that have none but their names in the PPD, as those of
/// driverless queues that a server without a language has made: what the PPD says in no language
/// ("C"), and for standard keywords the user's.
void nameWhatHasNoWords(ppd_file_t &ppd);
