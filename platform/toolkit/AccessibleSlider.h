#pragma once

#include <QtWidgets/QAccessibleWidget>

class FractionSlider;

/// A slider as assistive technology knows it: in the numbers that people read, not in hundredths.
class AccessibleSlider : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSlider(FractionSlider *slider);

    /// Has every FractionSlider known so from now on.
    static void install();

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text text) const override;

    using Relation = std::pair<QAccessibleInterface *, QAccessible::Relation>;
    QList<Relation> relations(QAccessible::Relation match) const override;

    QVariant currentValue() const override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;
    void setCurrentValue(const QVariant &value) override;

private:
    FractionSlider *slider() const;
};
