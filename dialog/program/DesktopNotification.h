#pragma once

#include <QtCore/QString>

/// A notification of the desktop (org.freedesktop.Notifications). Asks the session's bus, and waits
/// for its answers for a few seconds at most: for a program that has no window.
class DesktopNotification
{
public:
    enum class Urgency : unsigned char { Low = 0, Normal = 1, Critical = 2 };

    /// Whether there is a session with somebody in it who shows notifications.
    bool canBeShown();

    /// Shows it, in the place of the former one. Both texts are plain text.
    void show(const QString &title, const QString &text, Urgency urgency);

    /// Takes it away, where it is still shown.
    void close();

private:
    unsigned m_id = 0;        ///< that the desktop gave it; 0: none is shown
    bool m_hasMarkup = false; ///< the desktop takes texts for rich text
};
