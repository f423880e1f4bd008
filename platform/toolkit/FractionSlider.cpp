#include "platform/toolkit/FractionSlider.h"

#include "platform/toolkit/AccessibleSlider.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {
constexpr int kUnit = 100; // steps of the underlying slider for a whole number
}

FractionSlider::FractionSlider(QWidget *parent) : QSlider(Qt::Horizontal, parent)
{
    AccessibleSlider::install();
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSlider::actionTriggered, this, [this] {
        m_value = double(sliderPosition()) / kUnit;
        Q_EMIT movedByUser(m_value);
    });
}

int FractionSlider::limit() const
{
    return maximum() / kUnit;
}

void FractionSlider::setLimit(int limit)
{
    setRange(-limit * kUnit, limit * kUnit);
    setSingleStep(kUnit);
    setPageStep(5 * kUnit);
    setTickPosition(QSlider::TicksBelow);
    setTickInterval(limit * kUnit);
}

void FractionSlider::setDoubleValue(double value)
{
    const QSignalBlocker quiet(this);
    m_value = value;
    const double steps = std::isnan(value) ? 0.0 : value * kUnit;
    setValue(qRound(std::clamp(steps, double(minimum()), double(maximum()))));
}

void FractionSlider::moveByUser(double value)
{
    setDoubleValue(value);
    Q_EMIT movedByUser(m_value);
}

void FractionSlider::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QSlider::wheelEvent(event);
    else
        event->ignore();
}
