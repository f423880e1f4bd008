#include "dialog/window/CustomValueFields.h"

#include "dialog/job/FeatureTexts.h"
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

using namespace Qt::StringLiterals;

namespace {

constexpr int kDecimals = 3;
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
    case Points:
        return newNumber(parameter);
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
    if (parameter.kind == CustomParameter::Kind::Points)
        field->setSuffix(tr(" pt"));
    connect(field, &QDoubleSpinBox::valueChanged, this, &CustomValueFields::judge);
    return {
        field,
        [field] { return QString::number(field->value(), 'g', QLocale::FloatingPointShortest); },
        [field](const QString &value) { field->setValue(value.toDouble()); }};
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
