#include "dialog/host/HostSession.h"
#include "dialog/host/PPDMarks.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/printmanager/PMNotifications.h"
#include "platform/printmanager/PMTicketKeys.h"
#include "platform/toolkit/KeyWindow.h"

using namespace Qt::StringLiterals;

using PanelOperation = SessionObserver::PanelOperation;

QWidget *HostSession::show(const HostPanel &panel)
{
    QWidget *view = panel.panel->panelView();
    if (!view)
        return nullptr;
    m_views.insert(panel.panel.get(), view);
    panel.panel->willShow();
    tell([&](SessionObserver &observer) { observer.didShow(panel); });
    return view;
}

bool HostSession::hide(const HostPanel &panel)
{
    const bool hidden = panel.panel->shouldHide();
    tell([&](SessionObserver &observer) { observer.didPerform(PanelOperation::Hide, panel); });
    return hidden;
}

bool HostSession::restore(const HostPanel &panel)
{
    const bool restored = restoreValues(panel);
    tell([&](SessionObserver &observer) { observer.didPerform(PanelOperation::Restore, panel); });
    return restored;
}

bool HostSession::save(const HostPanel &panel)
{
    QString error;
    const bool saved = panel.panel->saveValuesAndReturnError(&error);
    tell([&](SessionObserver &observer) { observer.didPerform(PanelOperation::Save, panel); });
    if (!saved)
        tellFault(PanelOperation::Save, panel, error);
    return saved;
}

QVariantMap HostSession::summary(const HostPanel &panel)
{
    QVariantMap summary = panel.panel->summaryInfo();
    tell([&](SessionObserver &observer) { observer.didPerform(PanelOperation::Summary, panel); });
    return summary;
}

bool HostSession::help(const HostPanel &panel)
{
    const bool useOwn = panel.panel->shouldShowHelp();
    tell([&](SessionObserver &observer) { observer.didPerform(PanelOperation::Help, panel); });
    return useOwn;
}

void HostSession::restoreAll()
{
    for (const HostPanel &panel : m_panels)
        restore(panel);
}

bool HostSession::markElsewhere(const QString &keyword, const QString &choice)
{
    if (!forceChoice(m_ppd.get(), keyword, choice))
        return false;
    const PPDMark mark = spelled(keyword, choice);
    for (const HostPanel &panel : m_panels)
        panel.panel->PPDOptionKeyValueDidChange(mark.keyword, mark.choice);
    if (mark.keyword == "Duplex"_L1)
        post(kPMDuplexDidChangeNotification);
    tell([&](SessionObserver &observer) { observer.didMark(mark.keyword, mark.choice); });
    return true;
}

void HostSession::setPaper(const PMPaper &paper, const std::optional<QString> &mapped)
{
    pageFormat().paper = paper;
    forceChoice(m_ppd.get(), u"PageSize"_s, paper.ppdName);
    if (mapped)
        PMPrintSettingsSetValue(&ticket(), kPMMappedPaperKey,
                                mapped->isNull() ? QVariant() : QVariant(*mapped), false);
    post(kPMPaperDidChangeNotification);
    tell([&](SessionObserver &observer) { observer.didSetPaper(paper, mapped); });
}

void HostSession::writeTicket(const QString &key, const QVariant &value)
{
    PMPrintSettingsSetValue(&ticket(), key, value, false);
    tell([&](SessionObserver &observer) { observer.didWriteTicket(key, value); });
}

PrintAnswer HostSession::askShouldPrint()
{
    PrintAnswer answer;
    for (const HostPanel &panel : m_panels) {
        answer.asked << panel.name;
        answer.proceed = panel.panel->shouldPrint();
        if (!answer.proceed)
            break;
    }
    tell([&](SessionObserver &observer) { observer.didAskShouldPrint(); });
    return answer;
}

void HostSession::windowDidResize()
{
    for (const HostPanel &panel : m_panels) {
        if (const QWidget *view = loadedView(panel))
            NotificationCenter::defaultCenter().post(
                QLatin1String(kViewDidUpdateTrackingAreasNotification), view);
    }
    tell([&](SessionObserver &observer) { observer.didResizeWindow(); });
}
