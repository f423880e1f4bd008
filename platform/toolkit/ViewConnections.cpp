#include "platform/toolkit/ViewConnections.h"

bool ViewConnections::connectOutlet(QWidget *widget) const
{
    bool connected = false;
    for (const auto &connect : m_outlets.value(widget->objectName()))
        connected = connect(widget) || connected;
    return connected;
}

QWidget *ViewConnections::create(const QString &className, QWidget *parent) const
{
    const Factory factory = m_factories.value(className);
    return factory ? factory(parent) : nullptr;
}
