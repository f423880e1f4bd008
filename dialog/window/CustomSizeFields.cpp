#include "dialog/window/CustomSizeFields.h"

#include "dialog/job/LengthUnit.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainLabel.h"

#include <QtCore/QLocale>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include <cmath>

namespace {

// Lengths out of the printer's range can be typed, so that the validation text can tell the limit.
constexpr double kLongest = 9999;

} // namespace

CustomSizeFields::CustomSizeFields(QWidget *parent)
    : QWidget(parent),
      m_width(newField(QStringLiteral("customWidth"))),
      m_height(newField(QStringLiteral("customHeight"))),
      m_widthValidation(newValidationLabel(QStringLiteral("customWidthValidation"))),
      m_heightValidation(newValidationLabel(QStringLiteral("customHeightValidation"))),
      m_unit(new QComboBox(this))
{
    m_unit->setObjectName(QStringLiteral("customUnit"));
    m_unit->addItems({tr("mm"), tr("inches")});
    m_unit->setCurrentIndex(usualLengthUnit());
    giveAccessibleName(m_unit, tr("Unit"));
    QLabel *widthLabel = newPlainLabel(tr("&Width:"), this);
    widthLabel->setBuddy(m_width);
    QLabel *heightLabel = newPlainLabel(tr("H&eight:"), this);
    heightLabel->setBuddy(m_height);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(widthLabel, 0, 0);
    grid->addWidget(m_width, 0, 1);
    grid->addWidget(m_unit, 0, 2);
    grid->addWidget(m_widthValidation, 0, 3);
    grid->addWidget(heightLabel, 1, 0);
    grid->addWidget(m_height, 1, 1);
    grid->addWidget(m_heightValidation, 1, 3);
    grid->setColumnStretch(3, 1);
    connect(m_unit, &QComboBox::activated, this, &CustomSizeFields::changeUnit);
    changeUnit();
}

QDoubleSpinBox *CustomSizeFields::newField(const QString &name)
{
    auto *field = new QDoubleSpinBox(this);
    field->setObjectName(name);
    field->setRange(0, kLongest);
    field->setKeyboardTracking(true);
    connect(field, &QDoubleSpinBox::valueChanged, this, [this] {
        m_widthPoints = m_width->value() * pointsPerUnit();
        m_heightPoints = m_height->value() * pointsPerUnit();
        judge();
        Q_EMIT edited();
    });
    return field;
}

QLabel *CustomSizeFields::newValidationLabel(const QString &name)
{
    QLabel *label = newPlainLabel(QString(), this);
    label->setObjectName(name);
    return label;
}

double CustomSizeFields::pointsPerUnit() const
{
    return kLengthUnits[static_cast<std::size_t>(m_unit->currentIndex())].points;
}

void CustomSizeFields::setLimits(const CustomLimits &limits)
{
    m_limits = limits;
    judge();
}

void CustomSizeFields::setSize(double width, double height)
{
    m_widthPoints = width;
    m_heightPoints = height;
    changeUnit();
}

double CustomSizeFields::paperWidth() const
{
    return m_widthPoints;
}

double CustomSizeFields::paperHeight() const
{
    return m_heightPoints;
}

bool CustomSizeFields::isAcceptable() const
{
    return isWithin(m_limits, m_widthPoints, m_heightPoints);
}

/// Shows the size in the chosen unit; the size itself stays as exact as it is.
void CustomSizeFields::changeUnit()
{
    const LengthUnit &unit = kLengthUnits[static_cast<std::size_t>(m_unit->currentIndex())];
    for (QDoubleSpinBox *field : {m_width, m_height}) {
        const QSignalBlocker quiet(field);
        field->setDecimals(unit.decimals);
        field->setSingleStep(unit.step);
        field->setValue((field == m_width ? m_widthPoints : m_heightPoints) / unit.points);
    }
    judge();
}

void CustomSizeFields::judge()
{
    setLabelText(m_widthValidation,
                 validationText(m_widthPoints, m_limits.minWidth, m_limits.maxWidth));
    setLabelText(m_heightValidation,
                 validationText(m_heightPoints, m_limits.minHeight, m_limits.maxHeight));
}

QString CustomSizeFields::validationText(double length, double least, double most) const
{
    switch (faultOfLength(length, least, most)) {
    case LengthFault::TooSmall:
        return tr("Too small: at least %1.").arg(limitText(least, std::ceil));
    case LengthFault::TooLarge:
        return tr("Too large: at most %1.").arg(limitText(most, std::floor));
    case LengthFault::None:
        break;
    }
    return {};
}

/// The limit in the chosen unit, rounded to the side on which it can be typed.
QString CustomSizeFields::limitText(double points, double (*round)(double)) const
{
    const LengthUnit &unit = kLengthUnits[static_cast<std::size_t>(m_unit->currentIndex())];
    const double scale = std::pow(10, unit.decimals);
    const double limit = round(points / unit.points * scale) / scale;
    return QLocale().toString(limit, 'f', unit.decimals) + u' ' + m_unit->currentText();
}
