#pragma once

#include "dialog/job/Papers.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QDoubleSpinBox;
class QLabel;

/// The fields for a paper of the user's own size, in millimetres or inches, with a text beside them
/// that says what is wrong with a length. Sizes go in and out in points.
class CustomSizeFields : public QWidget
{
    Q_OBJECT

public:
    explicit CustomSizeFields(QWidget *parent = nullptr);

    void setLimits(const CustomLimits &limits);

    /// Shows the size without telling anybody.
    void setSize(double width, double height);
    double paperWidth() const;
    double paperHeight() const;

    /// Whether both lengths are within the limits.
    bool isAcceptable() const;

Q_SIGNALS:
    /// The user has entered another size, acceptable or not.
    void edited();

private:
    double pointsPerUnit() const;
    QDoubleSpinBox *newField(const QString &name);
    QLabel *newValidationLabel(const QString &name);
    void changeUnit();
    void judge();
    QString validationText(double length, double least, double most) const;
    QString limitText(double points, double (*round)(double)) const;

    QDoubleSpinBox *m_width;
    QDoubleSpinBox *m_height;
    QLabel *m_widthValidation;
    QLabel *m_heightValidation;
    QComboBox *m_unit;
    CustomLimits m_limits;
    double m_widthPoints = 0;
    double m_heightPoints = 0;
};
