#include "platform/toolkit/AccessibleName.h"

#include <QtWidgets/QComboBox>

void giveAccessibleName(QWidget *control, const QString &name)
{
    control->setAccessibleName(name);
    // Where the desktop is X11 or Wayland, Qt tells the choice of a pop-up in place of its name.
    if (qobject_cast<QComboBox *>(control))
        control->setAccessibleDescription(name);
}

void giveAccessibleText(QWidget *widget, const QString &text)
{
    widget->setAccessibleDescription(text);
}

void nameDisclosure(QWidget *button, const QString &pattern, const QString &title)
{
    giveAccessibleName(button, QString(pattern).replace(QStringLiteral("%1"), title));
}
