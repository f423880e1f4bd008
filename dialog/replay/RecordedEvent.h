#pragma once

#include "dialog/replay/JsonText.h"
#include "dialog/replay/ReplayEvent.h"
#include "platform/ppd/CupsPPD.h"

/// The event as it stands in a script, without its answers; secrets among the PPD's values are left
/// out. Of the events that a session can be followed by.
OrderedMembers recordedEvent(const ReplayAction &action, ppd_file_t *ppd);
