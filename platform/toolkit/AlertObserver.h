#pragma once

#include "platform/Export.h"
#include "platform/toolkit/Alert.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class QAbstractButton;
class QCheckBox;

/// An alert that is on screen, for whoever answers in a person's place.
class VELKARO_PLATFORM_EXPORT ShownAlert
{
public:
    /// How it is shown: blocking the application, on a window, or as a window of a panel's own.
    enum class Kind { Modal, Sheet, Window };

    Kind kind = Kind::Modal;                  ///< how it is shown
    AlertContent content;                     ///< what it says
    QPointer<QWidget> window;                 ///< null once the alert has gone
    QList<QPointer<QAbstractButton>> buttons; ///< in the order of the content's titles
    QPointer<QCheckBox> suppressionBox;       ///< null without one

    /// Presses the real button; the alert closes. Nothing when the alert has gone, or has no such
    /// button.
    void press(int button) const;

    /// Ticks or clears the suppression box, if there is one.
    void setSuppressed(bool suppressed) const;
};

/// Is told of every alert once it is on screen, in the alert's own event loop where it has one.
class VELKARO_PLATFORM_EXPORT AlertObserver
{
public:
    virtual ~AlertObserver() = default;

    /// The alert is on screen, and waits for an answer.
    virtual void alertShown(const ShownAlert &alert) = 0;

    /// Registers the observer of the process, not owned; null: alerts wait for a person.
    static void setAlertObserver(AlertObserver *observer);
    /// The observer that is registered; null without one.
    static AlertObserver *alertObserver();
};
