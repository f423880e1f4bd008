#pragma once

#include "platform/pde/PDEPPDCheck.h"
#include "platform/pde/PDEPlugIn.h"

/// The principal class of the plug-in: it hands out the panels of a print dialog. It keeps neither
/// the bundle that it is given (the panels find theirs by themselves) nor the panels that it makes.
class VKInkQuality14PDEPlugIn : public QObject, public PDEPlugIn, public PDEPPDCheck
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugIn_iid)
    Q_INTERFACES(PDEPlugIn PDEPPDCheck)

public:
    bool initWithBundle(Bundle *bundle) override;

    /// The Print Settings panel, then the Color Settings panel. A panel that cannot be created is
    /// missing, the other is still there.
    std::vector<std::unique_ptr<PDEPanel>>
    PDEPanelsForType(const QString &type,
                     const std::shared_ptr<PDEPluginCallback> &callback) override;

    /// What both panels find, in the bundle's words.
    QStringList findingsInPPD(ppd_file_t *ppd) override;
};
