#pragma once

#include "platform/Export.h"

class QWidget;

/// The result of a modal session that the user ended by closing the window or with Escape.
inline constexpr int kModalCancel = 0;
inline constexpr int kModalOK = 1;

/// Shows the window, blocks the rest of the application, and waits until stopModalWithCode() ends
/// the session, or the window is closed or destroyed. The answer is the code, and kModalCancel for
/// a window that was closed or destroyed. Where a code ended the session, the window is still on
/// screen. KeyWindowChild puts it in front of the dialog.
VELKARO_PLATFORM_EXPORT int runModalForWindow(QWidget *window);

/// Ends the innermost modal session with the code; nothing when there is none.
VELKARO_PLATFORM_EXPORT void stopModalWithCode(int code);
