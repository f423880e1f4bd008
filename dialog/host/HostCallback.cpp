#include "dialog/host/HostCallback.h"

#include "dialog/host/PPDMarks.h"

#include <utility>

HostCallback::HostCallback(ppd_file_t *ppd) : m_ppd(ppd) {}

void HostCallback::setCallObserver(std::function<void(const Call &)> observer)
{
    m_observer = std::move(observer);
}

bool HostCallback::respondsTo(HostOperation operation) const
{
    return !m_lacking.contains(operation);
}

PMPrintSettings *HostCallback::printSettings() const
{
    return respondsTo(HostOperation::PrintSettings) ? &m_ticket : nullptr;
}

PMPageFormat *HostCallback::pageFormat() const
{
    return respondsTo(HostOperation::PageFormat) ? &m_pageFormat : nullptr;
}

bool HostCallback::willChangePPDOptionKeyValue(const QString &keyword, const QString &choice)
{
    const bool refused = m_refused.contains(keyword) || m_refused.contains(keyword + u'=' + choice);
    const bool accepted = !refused && markChoice(m_ppd, keyword, choice);
    if (m_observer)
        m_observer({Call::Kind::WillChangePPDOptionKeyValue, keyword, choice, accepted});
    return accepted;
}

void HostCallback::panelViewDidResize()
{
    if (m_observer)
        m_observer({Call::Kind::PanelViewDidResize, {}, {}, false});
}
