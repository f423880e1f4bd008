#include "panel/VKPrintQualityPDE.h"

#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"

bool VKPrintQualityPDE::shouldShowAlert(const QString &shouldShowAlert) const
{
    const QString identifier = pluginBundle ? pluginBundle->bundleIdentifier() : QString();
    if (identifier.isNull())
        return true;
    const QVariantMap domain =
        UserDefaults::standardUserDefaults().persistentDomainForName(identifier);
    return !domain.contains(shouldShowAlert) || domain.value(shouldShowAlert).toBool();
}

void VKPrintQualityPDE::alertDidEnd(const AlertResult &alertDidEnd, int, const QString &contextInfo)
{
    const QString identifier = pluginBundle ? pluginBundle->bundleIdentifier() : QString();
    if (contextInfo.isNull() || identifier.isNull())
        return;
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    QVariantMap domain = defaults.persistentDomainForName(identifier);
    domain.insert(contextInfo, !alertDidEnd.suppressed);
    defaults.setPersistentDomain(domain, identifier);
    defaults.synchronize();
}
