#include "dialog/printing/PanelVeto.h"

#include "dialog/host/HostSession.h"
#include "platform/toolkit/AlertObserver.h"

#include <QtCore/QCoreApplication>

namespace {

/// Notices whether there was an alert, and hands it on to the former observer.
class AlertWatch : public AlertObserver
{
public:
    AlertWatch() : m_former(AlertObserver::alertObserver())
    {
        AlertObserver::setAlertObserver(this);
    }
    ~AlertWatch() override { AlertObserver::setAlertObserver(m_former); }
    AlertWatch(const AlertWatch &) = delete;
    AlertWatch &operator=(const AlertWatch &) = delete;

    void alertShown(const ShownAlert &alert) override
    {
        m_hasAlerted = true;
        if (m_former)
            m_former->alertShown(alert);
    }

    bool hasAlerted() const { return m_hasAlerted; }

private:
    AlertObserver *m_former;
    bool m_hasAlerted = false;
};

QString vetoSentence()
{
    return QCoreApplication::translate("PanelVeto",
                                       "The printer's settings do not allow this job.");
}

} // namespace

Result<> askPanels(HostSession &session)
{
    const AlertWatch watch;
    if (session.askShouldPrint().proceed)
        return {};
    return Fault{FaultKind::Vetoed, watch.hasAlerted() ? QString() : vetoSentence()};
}

Result<> UnsavedPanels::saveAgain(HostSession &session) const
{
    for (const QString &name : m_sentences.keys()) {
        const HostPanel *panel = session.panelNamed(name);
        if (!panel || session.save(*panel))
            continue;
        const QString sentence = m_sentences.value(name);
        return Fault{FaultKind::Vetoed, sentence.isEmpty() ? vetoSentence() : sentence};
    }
    return {};
}

void UnsavedPanels::didPerform(PanelOperation operation, const HostPanel &panel)
{
    if (operation == PanelOperation::Save)
        m_sentences.remove(panel.name);
}

void UnsavedPanels::didFail(PanelOperation operation, const HostPanel &panel,
                            const QString &sentence)
{
    if (operation == PanelOperation::Save)
        m_sentences.insert(panel.name, sentence);
}
