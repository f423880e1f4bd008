#pragma once

#include "platform/Export.h"

#include <QtWidgets/QSlider>

/// A slider whose value is a number with fractions.
///
/// The ranges and steps that it has from QSlider count hundredths; setLimit() sets all of them.
class VELKARO_PLATFORM_EXPORT FractionSlider : public QSlider
{
    Q_OBJECT
    /// The slider runs from -limit to limit, which must be above 0.
    Q_PROPERTY(int limit READ limit WRITE setLimit)

public:
    explicit FractionSlider(QWidget *parent = nullptr);

    /// Where the slider ends on its right side, and negated on its left.
    int limit() const;

    /// Also makes keys move the slider by one, clicks beside the knob by five, and puts a tick at
    /// both ends and in the middle.
    void setLimit(int limit);

    /// The value, with its fraction.
    double doubleValue() const { return m_value; }

    /// Moves the slider without telling anybody; the value is kept as it is given, the knob stays
    /// within the range.
    void setDoubleValue(double value);

    /// Moves the slider as a user does.
    void moveByUser(double value);

protected:
    /// A wheel that passes over the slider by chance must not change a setting.
    void wheelEvent(QWheelEvent *event) override;

Q_SIGNALS:
    /// The user has moved the slider to the value, be it the same one.
    void movedByUser(double value);

private:
    double m_value = 0;
};
