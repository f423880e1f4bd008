#pragma once

#include "platform/Export.h"

#include <QtWidgets/QSpinBox>

/// A field for a whole number within a range. It takes typing, arrow keys and, while it has the
/// focus, the wheel; text that is no number within the range does not enter it.
class VELKARO_PLATFORM_EXPORT NumberField : public QSpinBox
{
    Q_OBJECT
    /// The numbers run from -limit to limit, which must be above 0.
    Q_PROPERTY(int limit READ maximum WRITE setLimit)

public:
    explicit NumberField(QWidget *parent = nullptr);

    /// Numbers run from -limit to limit.
    void setLimit(int limit) { setRange(-limit, limit); }

    /// Shows the number, cut toward zero, without telling anybody.
    void setDoubleValue(double value);

Q_SIGNALS:
    /// The user has entered another number.
    void editedByUser();

protected:
    void wheelEvent(QWheelEvent *event) override;
};
