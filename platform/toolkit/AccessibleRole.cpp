#include "platform/toolkit/AccessibleRole.h"

#include <QtCore/QHash>
#include <QtWidgets/QAccessibleWidget>

namespace {

QHash<QString, QAccessible::Role> &roles()
{
    static QHash<QString, QAccessible::Role> roles;
    return roles;
}

// Asked for each class of a widget, the most derived one first.
QAccessibleInterface *newRoleInterface(const QString &className, QObject *object)
{
    const auto role = roles().constFind(className);
    auto *widget = qobject_cast<QWidget *>(object);
    return widget && role != roles().cend() ? new QAccessibleWidget(widget, *role) : nullptr;
}

} // namespace

void giveAccessibleRole(const char *className, QAccessible::Role role)
{
    if (roles().isEmpty())
        QAccessible::installFactory(newRoleInterface);
    roles().insert(QString::fromLatin1(className), role);
}

void announce(QWidget *widget)
{
    QAccessibleEvent alert(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
