#include "plugin/VKInkQuality14PDEPlugIn.h"

#include "colorsettings/VKInkColorSettingPDE.h"
#include "printsettings/VKInkPrintSetting14PDE.h"

namespace {

template <typename Panel>
void appendPanel(std::vector<std::unique_ptr<PDEPanel>> &panels,
                 const std::shared_ptr<PDEPluginCallback> &callback)
{
    auto panel = std::make_unique<Panel>();
    if (panel->initWithCallback(callback))
        panels.push_back(std::move(panel));
}

} // namespace

bool VKInkQuality14PDEPlugIn::initWithBundle(Bundle *)
{
    return true;
}

std::vector<std::unique_ptr<PDEPanel>>
VKInkQuality14PDEPlugIn::PDEPanelsForType(const QString &type,
                                          const std::shared_ptr<PDEPluginCallback> &callback)
{
    std::vector<std::unique_ptr<PDEPanel>> panels;
    if (type != QLatin1String(kPDEPrintDialogType))
        return panels;
    appendPanel<VKInkPrintSetting14PDE>(panels, callback);
    appendPanel<VKInkColorSettingPDE>(panels, callback);
    return panels;
}
