#pragma once

#include "platform/Export.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

/// The result of a printing manager call: zero is success.
using OSStatus = int;
inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus kPMInvalidParameter = -50;
inline constexpr OSStatus kPMKeyNotFound = -9589;

/// The print settings ticket of a job: values under string keys. Strings, numbers and booleans keep
/// their kind.
class VELKARO_PLATFORM_EXPORT PMPrintSettings
{
public:
    /// All values by their keys.
    const QVariantMap &values() const { return m_values; }
    /// Replaces all values.
    void setValues(const QVariantMap &values) { m_values = values; }

private:
    friend VELKARO_PLATFORM_EXPORT OSStatus PMPrintSettingsSetValue(PMPrintSettings *,
                                                                    const QString &,
                                                                    const QVariant &, bool);
    QVariantMap m_values;
};

/// Reads the value under `key` into `value`. Without a ticket kPMInvalidParameter, without such a
/// key kPMKeyNotFound; `value` is then left alone.
VELKARO_PLATFORM_EXPORT OSStatus PMPrintSettingsGetValue(const PMPrintSettings *settings,
                                                         const QString &key, QVariant *value);

/// Writes the value; an invalid one removes the key. Without a ticket kPMInvalidParameter. The
/// ticket keeps no locks: `locked` is taken for its interface alone.
VELKARO_PLATFORM_EXPORT OSStatus PMPrintSettingsSetValue(PMPrintSettings *settings,
                                                         const QString &key, const QVariant &value,
                                                         bool locked);
