#include "platform/toolkit/ControlColor.h"

#include <QtWidgets/QWidget>

void setTextColor(QWidget *widget, ControlColor color)
{
    const bool dimmed = color == ControlColor::DisabledControlText;
    const QPalette::ColorRole role = dimmed ? QPalette::PlaceholderText : QPalette::WindowText;
    if (widget->foregroundRole() != role)
        widget->setForegroundRole(role);
}

ControlColor textColor(const QWidget *widget)
{
    return widget->foregroundRole() == QPalette::PlaceholderText ? ControlColor::DisabledControlText
                                                                 : ControlColor::ControlText;
}
