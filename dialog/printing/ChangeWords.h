#pragma once

#include "dialog/printing/SettingState.h"
#include "platform/ppd/CupsPPD.h"

/// Changes of settings in the printer's words, plain text.

/// One sentence on what became what; null without a change.
QString changeSentence(ppd_file_t *ppd, const QList<SettingChange> &changes);

/// That what the change leads to would be printed, in place of what it comes from.
QString replacementSentence(ppd_file_t *ppd, const SettingChange &change);
