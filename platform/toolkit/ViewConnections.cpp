#include "platform/toolkit/ViewConnections.h"

bool ViewConnections::connectOutlet(QWidget *widget) const
{
    const auto connect = m_outlets.value(widget->objectName());
    return connect && connect(widget);
}

QWidget *ViewConnections::create(const QString &className, QWidget *parent) const
{
    const Factory factory = m_factories.value(className);
    return factory ? factory(parent) : nullptr;
}
