#include "dialog/replay/ReplayWork.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/controls/UserActions.h"
#include "dialog/replay/JsonText.h"
#include "platform/foundation/NotificationCenter.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

using namespace Qt::StringLiterals;

namespace {

using PanelOperation = SessionObserver::PanelOperation;

QString noPanel(const QString &name)
{
    return u"there is no panel \"%1\""_s.arg(name);
}

QString untoldControls(const QString &name)
{
    return u"the panel \"%1\" tells nothing of its controls"_s.arg(name);
}

/// Why nothing can be done with the controls of the panel; null when it can.
QString reasonNotToPick(const HostPanel *panel, const QString &name)
{
    if (!panel)
        return noPanel(name);
    return panel->controls ? QString() : untoldControls(name);
}

} // namespace

ReplayWork perform(HostSession &session, const ReplayShow &event)
{
    const HostPanel *panel = session.panelNamed(event.panel);
    if (!panel)
        return {QJsonValue(), noPanel(event.panel), QString()};
    if (!session.show(*panel))
        return {QJsonValue(), u"the panel \"%1\" has no view"_s.arg(event.panel), QString()};
    return {};
}

ReplayWork perform(HostSession &session, const ReplayPanelCall &event)
{
    const HostPanel *panel = session.panelNamed(event.panel);
    if (!panel)
        return {QJsonValue(), noPanel(event.panel), QString()};
    switch (event.operation) {
    case PanelOperation::Hide:
        return {session.hide(*panel), QString(), QString()};
    case PanelOperation::Restore:
        return {session.restore(*panel), QString(), QString()};
    case PanelOperation::Save:
        return {session.save(*panel), QString(), QString()};
    case PanelOperation::Summary:
        return {jsonObject(session.summary(*panel)), QString(), QString()};
    case PanelOperation::Help:
        break;
    }
    return {session.help(*panel), QString(), QString()};
}

ReplayWork perform(HostSession &session, const ReplayPick &event)
{
    const HostPanel *panel = session.panelNamed(event.panel);
    QString error = reasonNotToPick(panel, event.panel);
    if (error.isNull())
        error = event.choice ? pickChoice(*panel->controls, event.control, *event.choice)
                             : pickChecked(*panel->controls, event.control, *event.checked);
    return {QJsonValue(), error, QString()};
}

ReplayWork perform(HostSession &session, const ReplaySlide &event)
{
    return {QJsonValue(), moveSlider(session, event.keyword, event.value), QString()};
}

ReplayWork perform(HostSession &session, const ReplayRevert &)
{
    return {QJsonValue(), pressRevert(session), QString()};
}

ReplayWork perform(HostSession &session, const ReplayFold &event)
{
    const HostPanel *panel = session.panelNamed(event.panel);
    QString error = reasonNotToPick(panel, event.panel);
    if (error.isNull())
        error = foldSection(*panel->controls, event.open);
    return {QJsonValue(), error, QString()};
}

ReplayWork perform(HostSession &session, const ReplayPaper &event)
{
    session.setPaper(event.paper, event.mapped);
    return {};
}

ReplayWork perform(HostSession &session, const ReplayMark &event)
{
    if (session.markElsewhere(event.keyword, event.choice))
        return {};
    return {QJsonValue(), u"the PPD has no choice \"%1=%2\""_s.arg(event.keyword, event.choice),
            QString()};
}

ReplayWork perform(HostSession &session, const ReplayTicket &event)
{
    session.writeTicket(event.key, event.value);
    return {};
}

ReplayWork perform(HostSession &session, const ReplayWatch &)
{
    return {QJsonValue(), fireSizeWatch(session), QString()};
}

ReplayWork perform(HostSession &session, const ReplayPost &event)
{
    NotificationCenter::defaultCenter().post(event.name, session.notificationObject(),
                                             event.userInfo);
    return {};
}

ReplayWork perform(HostSession &session, const ReplayPrint &)
{
    const PrintAnswer answer = session.askShouldPrint();
    return {QJsonObject{{u"proceed"_s, answer.proceed},
                        {u"asked"_s, QJsonArray::fromStringList(answer.asked)}},
            QString(), QString()};
}
