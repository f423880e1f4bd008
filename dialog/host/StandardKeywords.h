#pragma once

#include <cups/ppd.h>

/// Gives options and choices words that have none but their names in the PPD, as those of
/// driverless queues that a server without a language has made: for standard keywords the user's,
/// else what the PPD says in no language ("C"). The English that servers write into such a PPD for
/// everybody becomes the user's words, too, where he reads another language.
void nameWhatHasNoWords(ppd_file_t &ppd);
