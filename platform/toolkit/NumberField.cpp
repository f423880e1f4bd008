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
    const double number = std::isnan(value) ? 0.0 : value;
    setValue(static_cast<int>(std::clamp(number, double(minimum()), double(maximum()))));
}

void NumberField::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}
