#include "dialog/host/controls/PanelParts.h"
#include "dialog/host/controls/UserActions.h"
#include "dialog/replay/JsonText.h"
#include "dialog/replay/ReplaySession.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/ImageView.h"

#include <QtGui/QImage>

using namespace Qt::StringLiterals;

namespace {

using PanelOperation = SessionObserver::PanelOperation;

QString noPanel(const QString &name)
{
    return u"there is no panel \"%1\""_s.arg(name);
}

const PDEPanelInspection *inspectionOf(const HostSession &session, const QString &name)
{
    const HostPanel *panel = session.panelNamed(name);
    return panel ? panel->inspection : nullptr;
}

QImage shownPicture(const HostSession &session)
{
    for (const HostPanel &panel : session.panels()) {
        const ImageView *view = panel.inspection ? panel.inspection->inspectedPicture() : nullptr;
        if (view)
            return view->image();
    }
    return {};
}

} // namespace

ReplaySession::Work ReplaySession::perform(const ReplayShow &event)
{
    const HostPanel *panel = m_session->panelNamed(event.panel);
    if (!panel)
        return {QJsonValue(), noPanel(event.panel), QString()};
    if (!m_session->show(*panel))
        return {QJsonValue(), u"the panel \"%1\" has no view"_s.arg(event.panel), QString()};
    return {};
}

ReplaySession::Work ReplaySession::perform(const ReplayPanelCall &event)
{
    const HostPanel *panel = m_session->panelNamed(event.panel);
    if (!panel)
        return {QJsonValue(), noPanel(event.panel), QString()};
    switch (event.operation) {
    case PanelOperation::Hide:
        return {m_session->hide(*panel), QString(), QString()};
    case PanelOperation::Restore:
        return {m_session->restore(*panel), QString(), QString()};
    case PanelOperation::Save:
        return {m_session->save(*panel), QString(), QString()};
    case PanelOperation::Summary:
        return {jsonObject(m_session->summary(*panel)), QString(), QString()};
    case PanelOperation::Help:
        break;
    }
    return {m_session->help(*panel), QString(), QString()};
}

ReplaySession::Work ReplaySession::perform(const ReplayPick &event)
{
    const PDEPanelInspection *panel = inspectionOf(*m_session, event.panel);
    if (!panel)
        return {QJsonValue(), noPanel(event.panel), QString()};
    const QString error = event.choice ? pickChoice(*panel, event.control, *event.choice)
                                       : pickChecked(*panel, event.control, *event.checked);
    return {QJsonValue(), error, QString()};
}

ReplaySession::Work ReplaySession::perform(const ReplaySlide &event)
{
    return {QJsonValue(), moveSlider(*m_session, event.keyword, event.value), QString()};
}

ReplaySession::Work ReplaySession::perform(const ReplayRevert &)
{
    return {QJsonValue(), pressRevert(*m_session), QString()};
}

ReplaySession::Work ReplaySession::perform(const ReplayFold &event)
{
    const PDEPanelInspection *panel = inspectionOf(*m_session, event.panel);
    return {QJsonValue(), panel ? foldSection(*panel, event.open) : noPanel(event.panel),
            QString()};
}

ReplaySession::Work ReplaySession::perform(const ReplayPaper &event)
{
    m_session->setPaper(event.paper, event.mapped);
    return {};
}

ReplaySession::Work ReplaySession::perform(const ReplayMark &event)
{
    if (m_session->markElsewhere(event.keyword, event.choice))
        return {};
    return {QJsonValue(), u"the PPD has no choice \"%1=%2\""_s.arg(event.keyword, event.choice),
            QString()};
}

ReplaySession::Work ReplaySession::perform(const ReplayTicket &event)
{
    m_session->writeTicket(event.key, event.value);
    return {};
}

ReplaySession::Work ReplaySession::perform(const ReplayWatch &)
{
    return {QJsonValue(), fireSizeWatch(*m_session), QString()};
}

ReplaySession::Work ReplaySession::perform(const ReplayPicture &event)
{
    const QImage picture = shownPicture(*m_session);
    if (picture.isNull())
        return {QJsonValue(), u"no picture is shown"_s, QString()};
    return {QJsonValue(), m_pictures.write(picture, event.folder, event.file).sentence(),
            QString()};
}

ReplaySession::Work ReplaySession::perform(const ReplayPost &event)
{
    NotificationCenter::defaultCenter().post(event.name, m_session->notificationObject(),
                                             event.userInfo);
    return {};
}

ReplaySession::Work ReplaySession::perform(const ReplayPrint &)
{
    const PrintAnswer answer = m_session->askShouldPrint();
    return {QJsonObject{{u"proceed"_s, answer.proceed},
                        {u"asked"_s, QJsonArray::fromStringList(answer.asked)}},
            QString(), QString()};
}

ReplaySession::Work ReplaySession::perform(const ReplayState &)
{
    return {};
}
