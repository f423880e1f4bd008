#include "platform/foundation/ObservableDictionary.h"

#include <utility>

void ObservableDictionary::setValue(const QString &key, const QVariant &value)
{
    if (value.isValid())
        m_values.insert(key, value);
    else
        m_values.remove(key);
    const auto observers = m_observers.constFind(key);
    if (observers == m_observers.constEnd())
        return;
    for (const Observer &observer : *observers)
        observer();
}

void ObservableDictionary::observe(const QString &key, Observer observer)
{
    m_observers[key].push_back(std::move(observer));
}
