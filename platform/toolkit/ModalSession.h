#pragma once

#include "platform/Export.h"

class QWidget;

/// The result of a modal session that the user ended by closing the window or with Escape.
inline constexpr int kModalCancel = 0;
inline constexpr int kModalOK = 1;

/// Shows the window, blocks the rest of the application, and waits until stopModal() ends the
/// session or the window is closed or destroyed. The window stays on screen where stopModal() ended
/// it.
VELKARO_PLATFORM_EXPORT int runModalForWindow(QWidget *window);

/// Ends the innermost modal session with the code; nothing when there is none.
VELKARO_PLATFORM_EXPORT void stopModalWithCode(int code);
