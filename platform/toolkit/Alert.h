#pragma once

#include "platform/Export.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

class QObject;

enum class AlertStyle {
    None,
    Informational,
    Warning,
    Critical,
};

/// What an alert says. All of it is plain text.
struct AlertContent
{
    AlertStyle style = AlertStyle::Informational;
    /// Only for a window of its own; null for an alert.
    QString title;
    QString text;
    QString informative;
    /// The button titles. The last one answers Escape and closing.
    QStringList buttons;
    /// Whether the box that suppresses the alert from now on is shown, and what it says.
    bool suppression = false;
    QString suppressionTitle;
    int defaultButton = 0; ///< index into `buttons`: the one that answers Return
};

struct AlertResult
{
    int button = 0;          ///< index into AlertContent::buttons
    bool suppressed = false; ///< whether the suppression box was ticked
};

/// Shows an alert that blocks the application, and waits for its answer.
VELKARO_PLATFORM_EXPORT AlertResult runAlert(const AlertContent &content);

/// Shows an alert as a sheet on the key window (by itself without one) and returns at once.
/// `didEnd` gets the answer later, unless `context` has been destroyed by then.
VELKARO_PLATFORM_EXPORT void beginAlertSheet(const AlertContent &content, QObject *context,
                                             std::function<void(const AlertResult &)> didEnd);
