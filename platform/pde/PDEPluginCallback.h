#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QString>

class PMPrintSettings;
struct PMPageFormat;

/// What a print dialog may or may not offer to its panels.
enum class HostOperation {
    WillChangePPDOptionKeyValue,
    PrintSettings,
    PageFormat,
    PanelViewDidResize,
};

/// The dialog as its panels see it.
///
/// One object stands for one dialog. The dialog creates it and shares it with the panels, each of
/// which holds it strongly until it is destroyed. Every operation is called on the main thread.
///
/// Operations listed in HostOperation are optional: ask respondsTo() before using one.
class PDEPluginCallback
{
public:
    virtual ~PDEPluginCallback() = default;

    /// Whether this dialog has the operation. The answer never changes during a session.
    virtual bool respondsTo(HostOperation operation) const = 0;

    /// The opened PPD, owned by the dialog and valid until the last panel is destroyed.
    virtual ppd_file_t *ppdFile() const = 0;

    /// The job's print settings ticket, owned by the dialog; null when there is none at present.
    virtual PMPrintSettings *printSettings() const = 0;

    /// The page format, owned by the dialog; null when there is none at present.
    virtual PMPageFormat *pageFormat() const = 0;

    /// Offers the choice for the PPD keyword. True: the dialog has
    /// marked the choice in the PPD. False: it has refused, and the former mark stands.
    virtual bool willChangePPDOptionKeyValue(const QString &keyword, const QString &choice) = 0;

    /// Tells the dialog that the panel's view has another size now.
    virtual void panelViewDidResize() = 0;
};
