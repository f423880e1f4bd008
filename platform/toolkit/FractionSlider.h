#pragma once

#include "platform/Export.h"

#include <QtWidgets/QSlider>

/// A slider whose value is a number with fractions.
///
/// setRange(), setSingleStep() and the like of QSlider count hundredths: a range of -20 to 20 is
/// -2000 to 2000 in the view resource.
class VELKARO_PLATFORM_EXPORT FractionSlider : public QSlider
{
    Q_OBJECT

public:
    explicit FractionSlider(QWidget *parent = nullptr);

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
