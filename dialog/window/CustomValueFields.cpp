#include "dialog/window/CustomValueFields.h"

#include "dialog/job/FeatureTexts.h"
#include "dialog/job/LengthUnit.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDecimals = 3;
constexpr int kLengthDigits = 6; // of points
constexpr int kCustomTextWidth = 240;

} // namespace

CustomValueFields::CustomValueFields(const QString &keyword, QWidget *parent)
    : QWidget(parent),
      m_keyword(keyword),
      m_form(new QFormLayout(this)),
      m_validation(newPlainLabel(QString(), this))
{
    m_form->setContentsMargins(0, 0, 0, 0);
    m_form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    m_validation->setObjectName(keyword + u"Validation"_s);
    m_validation->setWordWrap(true);
    hide();
}

void CustomValueFields::showValues(const QList<CustomParameter> &parameters)
{
    const QScopedValueRollback showing(m_isShowing, true);
    m_parameters = parameters;
    if (m_fields.empty())
        build();
    for (qsizetype index = 0; index < m_parameters.size(); ++index) {
        const Field &field = m_fields[static_cast<std::size_t>(index)];
        if (field.value() != m_parameters[index].value)
            field.show(m_parameters[index].value);
    }
    judge();
}

void CustomValueFields::build()
{
    for (const CustomParameter &parameter : m_parameters) {
        const Field field = newField(parameter);
        field.control->setObjectName(m_keyword + parameter.name);
        giveAccessibleName(field.control, parameter.text);
        addLabelledRow(m_form, tr("%1:").arg(withoutMnemonic(parameter.text)), field.control);
        m_fields.push_back(field);
    }
    m_form->setWidget(m_form->rowCount(), QFormLayout::SpanningRole, m_validation);
}

CustomValueFields::Field CustomValueFields::newField(const CustomParameter &parameter)
{
    using enum CustomParameter::Kind;
    switch (parameter.kind) {
    case Integer:
        return newInteger(parameter);
    case Number:
        return newNumber(parameter);
    case Points:
        return newLength(parameter);
    default:
        return newText(parameter);
    }
}

CustomValueFields::Field CustomValueFields::newInteger(const CustomParameter &parameter)
{
    auto *field = new NumberField(this);
    field->setRange(static_cast<int>(parameter.least), static_cast<int>(parameter.greatest));
    connect(field, &NumberField::editedByUser, this, &CustomValueFields::judge);
    return {field, [field] { return QString::number(field->value()); },
            [field](const QString &value) { field->setDoubleValue(value.toDouble()); }};
}

CustomValueFields::Field CustomValueFields::newNumber(const CustomParameter &parameter)
{
    auto *field = new QDoubleSpinBox(this);
    field->setDecimals(kDecimals);
    field->setRange(parameter.least, parameter.greatest);
    connect(field, &QDoubleSpinBox::valueChanged, this, &CustomValueFields::judge);
    return {
        field,
        [field] { return QString::number(field->value(), 'g', QLocale::FloatingPointShortest); },
        [field](const QString &value) { field->setValue(value.toDouble()); }};
}

/// Typed in the unit that the user's country uses, and kept in points. What nobody has changed
/// stays as exact as it was.
CustomValueFields::Field CustomValueFields::newLength(const CustomParameter &parameter)
{
    const LengthUnit &unit = kLengthUnits[static_cast<std::size_t>(usualLengthUnit())];
    auto *field = new QDoubleSpinBox(this);
    field->setDecimals(unit.decimals + 1);
    field->setSingleStep(unit.step);
    field->setRange(parameter.least / unit.points, parameter.greatest / unit.points);
    field->setSuffix(lengthSuffix());
    const auto shown = std::make_shared<QString>();
    connect(field, &QDoubleSpinBox::valueChanged, this, [this, shown] {
        shown->clear();
        judge();
    });
    return {field,
            [field, shown, &unit, parameter] {
                const double points =
                    std::clamp(field->value() * unit.points, parameter.least, parameter.greatest);
                return shown->isEmpty() ? QString::number(points, 'g', kLengthDigits) : *shown;
            },
            [field, shown, &unit](const QString &value) {
                field->setValue(value.toDouble() / unit.points);
                *shown = value;
            }};
}

CustomValueFields::Field CustomValueFields::newText(const CustomParameter &parameter)
{
    auto *field = new QLineEdit(this);
    field->setFixedWidth(kCustomTextWidth);
    if (isSecret(parameter))
        field->setEchoMode(QLineEdit::Password);
    connect(field, &QLineEdit::textEdited, this, &CustomValueFields::judge);
    return {field, [field] { return field->text(); },
            [field](const QString &value) {
                field->clear();
                field->insert(value);
            }};
}

QList<CustomParameter> CustomValueFields::values() const
{
    QList<CustomParameter> values = m_parameters;
    for (qsizetype index = 0; index < values.size(); ++index)
        values[index].value = m_fields[static_cast<std::size_t>(index)].value();
    return values;
}

bool CustomValueFields::isAcceptable() const
{
    return std::ranges::all_of(values(), [](const CustomParameter &parameter) {
        return faultOf(parameter) == ParameterFault::None;
    });
}

void CustomValueFields::judge()
{
    QString fault;
    for (const CustomParameter &parameter : values())
        if (fault.isNull())
            fault = faultText(parameter);
    setLabelText(m_validation, fault);
    m_validation->setVisible(!fault.isNull());
    if (!m_isShowing)
        Q_EMIT edited();
}
