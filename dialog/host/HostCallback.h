#pragma once

#include "platform/pde/PDEPluginCallback.h"
#include "platform/printmanager/PMPageFormat.h"
#include "platform/printmanager/PMPrintSettings.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <functional>
#include <set>

/// The dialog as its panels see it: the PPD whose choices it marks, the ticket, the page format.
class HostCallback : public PDEPluginCallback
{
public:
    /// What a panel asked of the host.
    struct Call
    {
        enum class Kind { WillChangePPDOptionKeyValue, PanelViewDidResize };
        Kind kind;
        QString keyword;
        QString choice;
        bool accepted = false;
    };

    /// The PPD is the dialog's and must live as long as this object.
    explicit HostCallback(ppd_file_t *ppd);

    /// Makes the host refuse choices, "KEYWORD=CHOICE" or all of a "KEYWORD".
    void setRefused(const QStringList &refused) { m_refused = refused; }

    /// Makes the host lack optional operations. Set it before the panels are created.
    void setLacking(const std::set<HostOperation> &lacking) { m_lacking = lacking; }

    /// Is told of every call of the panels, after it was answered.
    void setCallObserver(std::function<void(const Call &)> observer);

    PMPrintSettings &ticket() { return m_ticket; }
    PMPageFormat &format() { return m_pageFormat; }

    bool respondsTo(HostOperation operation) const override;
    ppd_file_t *ppdFile() const override { return m_ppd; }
    PMPrintSettings *printSettings() const override;
    PMPageFormat *pageFormat() const override;
    bool willChangePPDOptionKeyValue(const QString &keyword, const QString &choice) override;
    void panelViewDidResize() override;

private:
    ppd_file_t *m_ppd;
    mutable PMPrintSettings m_ticket;
    mutable PMPageFormat m_pageFormat;
    QStringList m_refused;
    std::set<HostOperation> m_lacking;
    std::function<void(const Call &)> m_observer;
};
