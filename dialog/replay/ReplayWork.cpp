#include "dialog/host/controls/PanelParts.h"
#include "dialog/host/controls/UserActions.h"
#include "dialog/replay/JsonText.h"
#include "dialog/replay/ReplaySession.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/pde/PDEPanelInspection.h"
#include "platform/toolkit/ImageView.h"

#include <QtGui/QImage>

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
    const HostPanel *panel = m_session->panelNamed(event.panel);
    QString error = reasonNotToPick(panel, event.panel);
    if (error.isNull())
        error = event.choice ? pickChoice(*panel->controls, event.control, *event.choice)
                             : pickChecked(*panel->controls, event.control, *event.checked);
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
    const HostPanel *panel = m_session->panelNamed(event.panel);
    QString error = reasonNotToPick(panel, event.panel);
    if (error.isNull())
        error = foldSection(*panel->controls, event.open);
    return {QJsonValue(), error, QString()};
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

ReplaySession::Work ReplaySession::perform(const ReplayWhy &event)
{
    if (!m_explainer)
        return {QJsonValue(), u"nothing is explained here"_s, QString()};
    const Result<QJsonObject> answer = m_explainer(*m_session, event.keyword, event.choice);
    if (!answer)
        return {QJsonValue(), answer.sentence(), QString()};
    return {*answer, QString(), QString()};
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
