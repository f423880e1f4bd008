#include "dialog/host/HostOperationNames.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::pair<HostOperation, const char *> kNames[] = {
    {HostOperation::WillChangePPDOptionKeyValue, "willChangePPDOptionKeyValue"},
    {HostOperation::PrintSettings, "printSettings"},
    {HostOperation::PageFormat, "pageFormat"},
    {HostOperation::PanelViewDidResize, "panelViewDidResize"},
};

} // namespace

std::optional<HostOperation> hostOperationNamed(const QString &name)
{
    for (const auto &[operation, known] : kNames) {
        if (name == QLatin1String(known))
            return operation;
    }
    return std::nullopt;
}

QString nameOf(HostOperation operation)
{
    const auto *found =
        std::ranges::find(kNames, operation, &std::pair<HostOperation, const char *>::first);
    return QLatin1String(found->second);
}
