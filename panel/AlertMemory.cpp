#include "panel/VKPrintQualityPDE.h"

#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"

bool VKPrintQualityPDE::shouldShowAlert(const QString &alertKey) const
{
    const QString identifier = pluginBundle ? pluginBundle->bundleIdentifier() : QString();
    if (identifier.isNull())
        return true;
    const QVariantMap domain =
        UserDefaults::standardUserDefaults().persistentDomainForName(identifier);
    return !domain.contains(alertKey) || domain.value(alertKey).toBool();
}

void VKPrintQualityPDE::alertDidEnd(const AlertResult &result, int, const QString &alertKey)
{
    const QString identifier = pluginBundle ? pluginBundle->bundleIdentifier() : QString();
    if (alertKey.isNull() || identifier.isNull())
        return;
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    QVariantMap domain = defaults.persistentDomainForName(identifier);
    domain.insert(alertKey, !result.suppressed);
    defaults.setPersistentDomain(domain, identifier);
    defaults.synchronize();
}
