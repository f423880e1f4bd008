#include "platform/toolkit/AccessibleSlider.h"

#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtWidgets/QLabel>

namespace {

QAccessibleInterface *newSliderInterface(const QString &className, QObject *object)
{
    auto *slider = className == QLatin1String("FractionSlider")
                       ? qobject_cast<FractionSlider *>(object)
                       : nullptr;
    return slider ? new AccessibleSlider(slider) : nullptr;
}

} // namespace

AccessibleSlider::AccessibleSlider(FractionSlider *slider)
    : QAccessibleWidget(slider, QAccessible::Slider)
{}

void AccessibleSlider::install()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(newSliderInterface);
        return true;
    }();
    Q_UNUSED(isInstalled);
}

FractionSlider *AccessibleSlider::slider() const
{
    return static_cast<FractionSlider *>(widget());
}

void *AccessibleSlider::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString AccessibleSlider::text(QAccessible::Text text) const
{
    return text == QAccessible::Value ? QString::number(slider()->doubleValue())
                                      : QAccessibleWidget::text(text);
}

/// A label has one control; a slider and its field, which are bound to the same value, share one.
QList<AccessibleSlider::Relation> AccessibleSlider::relations(QAccessible::Relation match) const
{
    QList<Relation> relations = QAccessibleWidget::relations(match);
    const QString key = boundKeyOf(slider());
    if (key.isEmpty() || !match.testFlag(QAccessible::Label) || !slider()->parentWidget())
        return relations;
    for (auto *label : slider()->parentWidget()->findChildren<QLabel *>())
        if (label->buddy() && label->buddy() != slider() && boundKeyOf(label->buddy()) == key)
            relations.append({QAccessible::queryAccessibleInterface(label), QAccessible::Label});
    return relations;
}

QVariant AccessibleSlider::currentValue() const
{
    return slider()->doubleValue();
}

QVariant AccessibleSlider::minimumValue() const
{
    return -slider()->limit();
}

QVariant AccessibleSlider::maximumValue() const
{
    return slider()->limit();
}

QVariant AccessibleSlider::minimumStepSize() const
{
    return 1;
}

// As a user moves it: the panel hears of it.
void AccessibleSlider::setCurrentValue(const QVariant &value)
{
    slider()->moveByUser(value.toDouble());
}
