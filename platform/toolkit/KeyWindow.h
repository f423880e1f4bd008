#pragma once

#include "platform/Export.h"

#include <optional>

class QWidget;

/// The window that takes the user's keys: the print dialog's while it is open. Null: none.
VELKARO_PLATFORM_EXPORT QWidget *keyWindow();

/// Says which window it is; the dialog does so when it opens. Null: none from now on. A window that
/// is destroyed is none.
/// `height` (points) stands for the height of the frame of a window that is never on screen.
VELKARO_PLATFORM_EXPORT void setKeyWindow(QWidget *window,
                                          std::optional<double> height = std::nullopt);

/// The height of the key window's frame in points (PanelPoint.h); none without a key window.
VELKARO_PLATFORM_EXPORT std::optional<double> keyWindowHeight();

/// Posted by the toolkit when a window is about to close; its object is the window (a QWidget).
inline constexpr auto kWindowWillCloseNotification = "NSWindowWillCloseNotification";
/// Posted by the toolkit when a view has come to a new size on screen; its object is the view.
inline constexpr auto kViewDidUpdateTrackingAreasNotification =
    "NSViewDidUpdateTrackingAreasNotification";
/// Posted by the dialog when an item of its pop-up of papers has been chosen and has done its work.
/// Its object is the pop-up (a QWidget), which may have gone by then, and its user information has
/// the item's title under "MenuItem".
inline constexpr auto kMenuDidSendActionNotification = "NSMenuDidSendActionNotification";
