#include "platform/toolkit/AlertObserver.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>

#include <utility>

namespace {

AlertObserver *&registeredObserver()
{
    static AlertObserver *observer = nullptr;
    return observer;
}

QList<AlertObserver *> &registeredWitnesses()
{
    static QList<AlertObserver *> witnesses;
    return witnesses;
}

} // namespace

void ShownAlert::press(int button) const
{
    QAbstractButton *pressed = buttons.value(button);
    if (pressed && (pressed->isVisible() || isUnseen))
        pressed->click();
}

void ShownAlert::setSuppressed(bool suppressed) const
{
    if (suppressionBox)
        suppressionBox->setChecked(suppressed);
}

void AlertObserver::setAlertObserver(AlertObserver *observer)
{
    registeredObserver() = observer;
}

AlertObserver *AlertObserver::alertObserver()
{
    return registeredObserver();
}

void AlertObserver::addWitness(AlertObserver *witness)
{
    registeredWitnesses() += witness;
}

void AlertObserver::removeWitness(AlertObserver *witness)
{
    registeredWitnesses().removeOne(witness);
}

void AlertObserver::tell(const ShownAlert &alert)
{
    for (AlertObserver *witness : QList(registeredWitnesses()))
        witness->alertShown(alert);
    if (AlertObserver *observer = alertObserver())
        observer->alertShown(alert);
}

UnobservedAlerts::UnobservedAlerts()
    : m_observer(std::exchange(registeredObserver(), nullptr)),
      m_witnesses(std::exchange(registeredWitnesses(), {}))
{}

UnobservedAlerts::~UnobservedAlerts()
{
    registeredObserver() = m_observer;
    registeredWitnesses() = m_witnesses;
}
