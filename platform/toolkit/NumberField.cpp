#include "platform/toolkit/NumberField.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QWheelEvent>

#include <algorithm>
#include <cmath>

NumberField::NumberField(QWidget *parent) : QSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    // A number that is typed counts when it is complete, not after each digit.
    setKeyboardTracking(false);
    connect(this, &QSpinBox::valueChanged, this, &NumberField::editedByUser);
}

void NumberField::setDoubleValue(double value)
{
    const QSignalBlocker quiet(this);
    const double whole = std::isnan(value) ? 0.0 : std::trunc(value);
    setValue(static_cast<int>(std::clamp(whole, double(minimum()), double(maximum()))));
}

void NumberField::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}
