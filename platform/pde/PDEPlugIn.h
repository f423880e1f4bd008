#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>
#include <vector>

class Bundle;
class PDEPanel;
class PDEPluginCallback;

/// The dialog type of a print dialog. Page-setup dialogs and others have types of their own.
inline constexpr auto kPDEPrintDialogType = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

/// The principal class of a plug-in library: a Qt plug-in whose interface identifier carries the
/// version of this interface. The dialog reads the identifier from the library's metadata and
/// refuses another version before any code of the library runs.
class PDEPlugIn
{
public:
    virtual ~PDEPlugIn() = default;

    /// Called before anything else, once for each dialog; its panels are asked for next. The bundle
    /// is the dialog's and valid until the last of them is destroyed. False: the plug-in cannot be
    /// used.
    virtual bool initWithBundle(Bundle *bundle) = 0;

    /// New panels for a dialog of the type, in display order; the caller owns them. A type that the
    /// plug-in does not know gives none, and a panel that cannot be created is missing or
    /// null.
    virtual std::vector<std::unique_ptr<PDEPanel>>
    PDEPanelsForType(const QString &type, const std::shared_ptr<PDEPluginCallback> &callback) = 0;
};

#define PDEPlugIn_iid "com.velkaro.print.PDEPlugIn/2"
Q_DECLARE_INTERFACE(PDEPlugIn, PDEPlugIn_iid)
