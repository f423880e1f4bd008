#pragma once

#include "platform/toolkit/Alert.h"

/// Asks something that is the dialog's own, and waits for the answer: the number of the button. It
/// is no alert of a panel, and a recording has nothing to do with it.
int askOwn(const AlertContent &question);
