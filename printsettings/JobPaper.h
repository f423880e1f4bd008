#pragma once

#include "platform/ppd/CupsPPD.h"
#include "printsettings/rules/CustomSizes.h"

#include <QtCore/QSizeF>
#include <QtCore/QString>

#include <optional>

class PDEPluginCallback;
struct PMPaper;

/// The paper of the job: what the dialog's ticket and page setup say of it now, held against the
/// limits of the PPD. Reads only; made where it is asked, and keeps nothing of its own.
class JobPaper
{
public:
    /// Neither is owned; both may be null.
    JobPaper(const PDEPluginCallback *host, const ppd_file_t *ppd) : m_host(host), m_ppd(ppd) {}

    /// The name of the paper that the document is scaled to; null when it is not scaled.
    QString mappedName() const;

    /// The name of the page's own paper; null when it cannot be read.
    QString pageName() const;

    /// The name; "UnsupportedPaper" for a size that the user defined and named "Letter" and that is
    /// too large or too small for the printer.
    QString checkedName(const QString &name) const;

    /// In whole points; none when the page setup cannot be read. A dialog without a ticket has no
    /// page either: its size is 0, which no printer takes.
    std::optional<QSizeF> size() const;

    /// Whether the printer takes a custom paper of the size (points).
    bool isWithinLimits(const QSizeF &size) const;

private:
    const PMPaper *pagePaper() const;
    bool offersTicket() const;

    const PDEPluginCallback *m_host;
    const ppd_file_t *m_ppd;
};
