#include "dialog/host/HiddenAlerts.h"

#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"

#include <algorithm>

QList<HiddenAlert> hiddenAlerts(const Bundle &bundle)
{
    const QVariantMap memory =
        UserDefaults::standardUserDefaults().persistentDomainForName(bundle.bundleIdentifier());
    QList<HiddenAlert> alerts;
    for (auto entry = memory.cbegin(); entry != memory.cend(); ++entry)
        if (!entry.value().toBool())
            alerts += HiddenAlert{entry.key(), bundle.localizedString(entry.key())};
    std::ranges::sort(alerts, {}, &HiddenAlert::sentence);
    return alerts;
}

bool showAgain(const Bundle &bundle, const QList<HiddenAlert> &alerts)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    QVariantMap memory = defaults.persistentDomainForName(bundle.bundleIdentifier());
    for (const HiddenAlert &alert : alerts)
        memory.remove(alert.key);
    defaults.setPersistentDomain(memory, bundle.bundleIdentifier());
    return defaults.synchronize();
}
