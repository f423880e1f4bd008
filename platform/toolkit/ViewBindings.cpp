#include "platform/toolkit/ViewBindings.h"

#include "platform/foundation/ObservableDictionary.h"
#include "platform/foundation/ValueTransformer.h"
#include "platform/toolkit/ControlColor.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/NumberField.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace {

// Several keys, all of which must be true.
class Conjunction
{
public:
    Conjunction(ObservableDictionary &dictionary, const QStringList &keys)
    {
        for (const QString &key : keys)
            m_entries.push_back(&dictionary.entry(key));
    }

    bool holds() const
    {
        return std::all_of(m_entries.begin(), m_entries.end(),
                           [](const auto *entry) { return entry->isTrue(); });
    }

private:
    std::vector<const ObservableDictionary::Entry *> m_entries;
};

// The text colour that the named transformer gives for a condition. The rules write the same keys
// again at every pick: the transformer is asked once for each of the two answers.
class ConditionColor
{
public:
    explicit ConditionColor(const QString &name) : m_name(name) {}

    // None before the transformer is registered.
    std::optional<ControlColor> color(bool holds)
    {
        std::optional<ControlColor> &color = m_colors[holds ? 1 : 0];
        const auto transformer =
            color ? nullptr : ValueTransformer::valueTransformerForName(m_name);
        if (transformer)
            color = transformer->transformedValue(holds).value<ControlColor>();
        return color;
    }

private:
    QString m_name;
    std::array<std::optional<ControlColor>, 2> m_colors;
};

// Calls `apply` with the control now and after each write to one of the keys.
template <typename Apply>
void follow(QWidget *control, ObservableDictionary &dictionary, const QStringList &keys,
            Apply apply)
{
    const ObservableDictionary::Observer update = [guarded = QPointer<QWidget>(control),
                                                   apply]() mutable {
        if (guarded)
            apply(guarded.data());
    };
    for (const QString &key : keys)
        dictionary.observe(key, update);
    update();
}

void bindEnabled(QWidget *control, ObservableDictionary &dictionary, const QString &binding)
{
    const QStringList keys = binding.split(u',');
    follow(control, dictionary, keys, [condition = Conjunction(dictionary, keys)](QWidget *bound) {
        bound->setEnabled(condition.holds());
    });
}

void bindHidden(QWidget *control, ObservableDictionary &dictionary, const QString &binding)
{
    const bool negated = binding.startsWith(u'!');
    const QString key = negated ? binding.mid(1) : binding;
    follow(control, dictionary, {key}, [&entry = dictionary.entry(key), negated](QWidget *bound) {
        bound->setHidden(entry.isTrue() != negated);
    });
}

void bindTextColor(QWidget *control, ObservableDictionary &dictionary, const QString &binding)
{
    const QString name = binding.section(u':', 0, 0);
    const QStringList keys = binding.section(u':', 1).split(u',');
    follow(control, dictionary, keys,
           [condition = Conjunction(dictionary, keys),
            colors = ConditionColor(name)](QWidget *bound) mutable {
               if (const auto color = colors.color(condition.holds()))
                   setTextColor(bound, *color);
           });
}

void showValue(QWidget *control, const QVariant &value)
{
    if (auto *slider = qobject_cast<FractionSlider *>(control))
        slider->setDoubleValue(value.toDouble());
    else if (auto *field = qobject_cast<NumberField *>(control))
        field->setDoubleValue(value.toDouble());
    else if (auto *button = qobject_cast<QAbstractButton *>(control))
        button->setChecked(value.toBool());
}

void bindValue(QWidget *control, ObservableDictionary &dictionary, const QString &key)
{
    dictionary.observe(key, [guarded = QPointer<QWidget>(control), &dictionary, key] {
        if (guarded)
            showValue(guarded, dictionary.value(key));
    });
    if (auto *slider = qobject_cast<FractionSlider *>(control)) {
        QObject::connect(slider, &FractionSlider::movedByUser, slider, [slider, &dictionary, key] {
            dictionary.setValue(key, slider->doubleValue());
        });
    } else if (auto *field = qobject_cast<NumberField *>(control)) {
        QObject::connect(field, &NumberField::editedByUser, field,
                         [field, &dictionary, key] { dictionary.setValue(key, field->value()); });
    } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        QObject::connect(button, &QAbstractButton::clicked, button,
                         [&dictionary, key](bool checked) { dictionary.setValue(key, checked); });
    }
}

} // namespace

void bindView(QWidget *control, ObservableDictionary &dictionary)
{
    using Bind = void (*)(QWidget *, ObservableDictionary &, const QString &);
    static constexpr std::pair<const char *, Bind> kinds[] = {
        {"bind.value", bindValue},
        {"bind.enabled", bindEnabled},
        {"bind.hidden", bindHidden},
        {"bind.textColor", bindTextColor},
    };
    const QByteArrayList given = control->dynamicPropertyNames();
    for (const auto &[property, bind] : kinds) {
        if (given.contains(property))
            bind(control, dictionary, control->property(property).toString());
    }
}
