#pragma once

#include "platform/Export.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <vector>

/// A dictionary of mixed values that tells its observers of every write.
///
/// Observers are told also when the value is the same as before: a control that is bound to a key
/// may have been set directly in between. Values keep their kind (integer, float, double, boolean).
class VELKARO_PLATFORM_EXPORT ObservableDictionary
{
public:
    using Observer = std::function<void()>;

    ObservableDictionary() = default;
    ObservableDictionary(const ObservableDictionary &) = delete;
    ObservableDictionary &operator=(const ObservableDictionary &) = delete;

    /// The value under the key; invalid when there is none.
    QVariant value(const QString &key) const { return m_values.value(key); }

    /// The boolean value under the key; false when there is none.
    bool boolValue(const QString &key) const { return value(key).toBool(); }

    /// Writes a value and tells the observers of the key. An invalid value removes the entry.
    void setValue(const QString &key, const QVariant &value);

    /// Calls `observer` after every write to the key, for as long as the dictionary lives.
    void observe(const QString &key, Observer observer);

    const QVariantMap &values() const { return m_values; }

private:
    QVariantMap m_values;
    QHash<QString, std::vector<Observer>> m_observers;
};
