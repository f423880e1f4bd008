#include "plugin/VKInkQuality14PDEPlugIn.h"

#include "colorsettings/ColorPPDCheck.h"
#include "colorsettings/VKInkColorSettingPDE.h"
#include "panel/PPDCheck.h"
#include "platform/foundation/Bundle.h"
#include "printsettings/PrintPPDCheck.h"
#include "printsettings/VKInkPrintSetting14PDE.h"

namespace {

const char kCodeOfThePlugIn = 0; // an address in the bundle's library

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

QStringList VKInkQuality14PDEPlugIn::findingsInPPD(ppd_file_t *ppd)
{
    const std::shared_ptr<Bundle> bundle = Bundle::bundleContaining(&kCodeOfThePlugIn);
    PPDCheck check(ppd);
    checkPrintSettings(check);
    checkColorSettings(check, *bundle);
    QStringList sentences;
    for (const PPDFinding &finding : check.findings()) {
        const QString sentence = bundle->localizedString(finding.sentence);
        const QStringList &names = finding.names;
        sentences << (names.size() == 3 ? sentence.arg(names[0], names[1], names[2])
                                        : sentence.arg(names[0], names[1]));
    }
    return sentences;
}
