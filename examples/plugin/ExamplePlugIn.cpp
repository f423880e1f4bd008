#include "ExamplePanel.h"

#include <platform/pde/PDEPlugIn.h>

/// The principal class: the library's one object that the dialog asks for panels.
class ExamplePlugIn : public QObject, public PDEPlugIn
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugIn_iid)
    Q_INTERFACES(PDEPlugIn)

public:
    bool initWithBundle(Bundle *bundle) override
    {
        m_bundle = bundle;
        return true;
    }

    std::vector<std::unique_ptr<PDEPanel>>
    PDEPanelsForType(const QString &type, const std::shared_ptr<PDEPluginCallback> &dialog) override
    {
        std::vector<std::unique_ptr<PDEPanel>> panels;
        if (type == QLatin1String(kPDEPrintDialogType) && ExamplePanel::canWorkWith(*dialog))
            panels.push_back(std::make_unique<ExamplePanel>(*m_bundle, dialog));
        return panels;
    }

private:
    Bundle *m_bundle = nullptr; // the dialog's, of the last dialog that was opened
};

#include "ExamplePlugIn.moc"
