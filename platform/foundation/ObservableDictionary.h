#pragma once

#include "platform/Export.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <memory>
#include <vector>

/// A dictionary of mixed values that tells its observers of every write.
///
/// Observers are told also when the value is the same as before: a control that is bound to a key
/// may have been set directly in between. Values keep their kind (integer, float, double, boolean).
class VELKARO_PLATFORM_EXPORT ObservableDictionary
{
public:
    /// What is called after a write.
    using Observer = std::function<void()>;

    /// What stands under one key.
    class Entry
    {
    public:
        /// Invalid when nothing does.
        const QVariant &value() const { return m_value; }
        /// The boolean value; false when nothing does.
        bool isTrue() const { return m_value.toBool(); }

    private:
        friend class ObservableDictionary;
        QVariant m_value;
        std::vector<Observer> m_observers;
    };

    ObservableDictionary() = default;
    ObservableDictionary(const ObservableDictionary &) = delete;
    ObservableDictionary &operator=(const ObservableDictionary &) = delete;

    /// The entry of the key, for whoever reads it often: it can be had before the first write to
    /// the key, and stays valid for as long as the dictionary lives.
    const Entry &entry(const QString &key) { return entryOf(key); }

    /// The value under the key; invalid when there is none.
    QVariant value(const QString &key) const;

    /// The boolean value under the key; false when there is none.
    bool boolValue(const QString &key) const;

    /// Writes a value and tells the observers of the key. An invalid value removes the entry.
    void setValue(const QString &key, const QVariant &value);

    /// Calls `observer` after every write to the key, for as long as the dictionary lives.
    void observe(const QString &key, Observer observer);

    /// All values.
    QVariantMap values() const;

private:
    Entry &entryOf(const QString &key);

    QHash<QString, std::shared_ptr<Entry>> m_entries;
};
