#include "platform/toolkit/AlertObserver.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>

namespace {

AlertObserver *&registeredObserver()
{
    static AlertObserver *observer = nullptr;
    return observer;
}

} // namespace

void ShownAlert::press(int button) const
{
    QAbstractButton *pressed = buttons.value(button);
    if (pressed && pressed->isVisible())
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
