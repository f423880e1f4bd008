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
    AlertStyle style = AlertStyle::Informational; ///< which sign stands beside the text
    /// Only for a window of its own; null for an alert.
    QString title;
    QString text;        ///< what happened, set off from the rest
    QString informative; ///< what it means; null: nothing
    /// The button titles. The last one answers Escape and closing.
    QStringList buttons;
    bool suppression = false; ///< whether the box that suppresses the alert from now on is shown
    QString suppressionTitle; ///< what that box says
    int defaultButton = 0;    ///< index into `buttons`: the one that answers Return
};

/// How an alert was answered.
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
