#include "platform/printmanager/PMPrintSettings.h"

OSStatus PMPrintSettingsGetValue(const PMPrintSettings *settings, const QString &key,
                                 QVariant *value)
{
    if (!settings || !value)
        return kPMInvalidParameter;
    const auto found = settings->values().constFind(key);
    if (found == settings->values().constEnd())
        return kPMKeyNotFound;
    *value = *found;
    return noErr;
}

OSStatus PMPrintSettingsSetValue(PMPrintSettings *settings, const QString &key,
                                 const QVariant &value, [[maybe_unused]] bool locked)
{
    if (!settings || key.isNull())
        return kPMInvalidParameter;
    if (value.isValid())
        settings->m_values.insert(key, value);
    else
        settings->m_values.remove(key);
    return noErr;
}
