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
    enum class Kind { Modal, Sheet, Window };

    Kind kind = Kind::Modal;
    AlertContent content;
    QPointer<QWidget> window;
    QList<QPointer<QAbstractButton>> buttons;
    QPointer<QCheckBox> suppressionBox;

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
    virtual void alertShown(const ShownAlert &alert) = 0;

    /// Registers the observer of the process, not owned; null: alerts wait for a person.
    static void setAlertObserver(AlertObserver *observer);
    static AlertObserver *alertObserver();
};
