#include "platform/foundation/ObservableDictionary.h"

#include <utility>

ObservableDictionary::Entry &ObservableDictionary::entryOf(const QString &key)
{
    std::shared_ptr<Entry> &entry = m_entries[key];
    if (!entry)
        entry = std::make_shared<Entry>();
    return *entry;
}

QVariant ObservableDictionary::value(const QString &key) const
{
    const auto entry = m_entries.constFind(key);
    return entry == m_entries.constEnd() ? QVariant() : (*entry)->value();
}

bool ObservableDictionary::boolValue(const QString &key) const
{
    const auto entry = m_entries.constFind(key);
    return entry != m_entries.constEnd() && (*entry)->isTrue();
}

void ObservableDictionary::setValue(const QString &key, const QVariant &value)
{
    Entry &entry = entryOf(key);
    entry.m_value = value;
    for (const Observer &observer : entry.m_observers)
        observer();
}

void ObservableDictionary::observe(const QString &key, Observer observer)
{
    entryOf(key).m_observers.push_back(std::move(observer));
}

QVariantMap ObservableDictionary::values() const
{
    QVariantMap values;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
        if (entry.value()->value().isValid())
            values.insert(entry.key(), entry.value()->value());
    }
    return values;
}
