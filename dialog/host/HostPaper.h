#pragma once

#include "platform/ppd/CupsPPD.h"
#include "platform/printmanager/PMPageFormat.h"

#include <optional>

/// The paper of the PPD's marked `PageSize`; none when nothing is marked. A paper whose size the
/// PPD does not give has zero width and height; the choice "Custom" stands for a size of the
/// user's.
std::optional<PMPaper> markedPaper(ppd_file_t *ppd);
