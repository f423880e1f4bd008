#include "platform/foundation/ObservableDictionary.h"

#include <utility>

QVariant ObservableDictionary::value(const QString &key) const
{
    const auto entry = m_entries.find(key);
    return entry == m_entries.end() ? QVariant() : entry->second.value();
}

bool ObservableDictionary::boolValue(const QString &key) const
{
    const auto entry = m_entries.find(key);
    return entry != m_entries.end() && entry->second.isTrue();
}

void ObservableDictionary::setValue(const QString &key, const QVariant &value)
{
    Entry &entry = m_entries[key];
    entry.m_value = value;
    entry.m_isTrue = value.toBool();
    for (const Observer &observer : entry.m_observers)
        observer();
}

void ObservableDictionary::observe(const QString &key, Observer observer)
{
    m_entries[key].m_observers.push_back(std::move(observer));
}

QVariantMap ObservableDictionary::values() const
{
    QVariantMap values;
    for (const auto &[key, entry] : m_entries) {
        if (entry.value().isValid())
            values.insert(key, entry.value());
    }
    return values;
}
