#pragma once

#include "platform/Export.h"
#include "platform/toolkit/Alert.h"

#include <QtCore/QList>
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

    bool isUnseen = false; ///< it was kept from the screen

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

    /// Whether alerts are kept from the screen and from assistive technology: alertShown() then
    /// answers at once the ones that block, and the others whenever it likes.
    virtual bool keepsAlertsUnseen() const { return false; }

    /// Registers the observer of the process, which may answer alerts, not owned; null: they wait
    /// for a person.
    static void setAlertObserver(AlertObserver *observer);
    /// The observer that is registered; null without one.
    static AlertObserver *alertObserver();

    /// From now on the witness is told of every alert, before the observer is, and answers none.
    /// Not owned: it is removed before it is destroyed.
    static void addWitness(AlertObserver *witness);
    static void removeWitness(AlertObserver *witness);

    /// Tells witnesses and observer of the alert, for those who show one.
    static void tell(const ShownAlert &alert);
};

/// While it lives, nobody is told of alerts, and people answer them.
class VELKARO_PLATFORM_EXPORT UnobservedAlerts
{
public:
    UnobservedAlerts();
    ~UnobservedAlerts();
    UnobservedAlerts(const UnobservedAlerts &) = delete;
    UnobservedAlerts &operator=(const UnobservedAlerts &) = delete;

private:
    AlertObserver *m_observer;
    QList<AlertObserver *> m_witnesses;
};
