#include "dialog/replay/ReplaySession.h"

#include "dialog/replay/JsonText.h"
#include "dialog/replay/StateReport.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/pde/PDEPanelInspection.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"

#include <QtGui/QImage>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool needsSession(const ReplayAction &action)
{
    return !std::holds_alternative<ReplayOpen>(action) &&
           !std::holds_alternative<ReplayState>(action);
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

ReplaySession::ReplaySession(const QString &bundlePath, const OutputTerms &terms, Likeness likeness)
    : m_likeness(likeness),
      m_bundlePath(bundlePath.isNull() && likeness == Likeness::Everywhere ? ownBundlePath()
                                                                           : bundlePath),
      m_pictures(terms)
{
    UserDefaults::standardUserDefaults().setFolder(QString());
}

ReplaySession::~ReplaySession()
{
    closeSession();
}

Result<QByteArray> ReplaySession::run(const ReplayEvent &event)
{
    m_answerer.setAnswers(event.answers);
    const ReplayWork work = this->work(event.action);
    if (!work.fatal.isNull())
        return Fault{FaultKind::PPD, work.fatal};
    m_answerer.answerSheets();

    OrderedMembers line{
        {u"event"_s, ++m_events}, {u"do"_s, event.kind}, {u"result"_s, work.result}};
    if (!work.error.isNull())
        line << std::pair(u"error"_s, QJsonValue(work.error));
    line << std::pair(u"calls"_s, QJsonValue(std::exchange(m_calls, {})));
    line << std::pair(u"notifications"_s, QJsonValue(m_notifications.take()));
    line << std::pair(u"alerts"_s, QJsonValue(m_answerer.takeReports()));
    line << stateReport(m_session.get());
    return jsonLine(line);
}

ReplayWork ReplaySession::work(const ReplayAction &action)
{
    if (needsSession(action) && !(m_session && m_session->isRunning()))
        return {QJsonValue(), u"no dialog is open"_s, QString()};
    return std::visit(
        [this](const auto &event) {
            if constexpr (requires { this->perform(event); })
                return this->perform(event);
            else
                return ::perform(*m_session, event);
        },
        action);
}

ReplayWork ReplaySession::perform(const ReplayOpen &event)
{
    SessionOptions options = event.options;
    options.bundlePath = m_bundlePath;
    if (m_likeness == Likeness::Everywhere) {
        options.ppdTexts = PPDTexts::AsWritten; // a script gives the same on every machine
        options.replayLanguagesOnly = true;     // and in every version
    }
    m_pictures.addInput(options.ppdPath);
    Result<std::unique_ptr<HostSession>> opened = HostSession::open(options);
    if (!opened)
        return {QJsonValue(), QString(), opened.sentence()};
    std::unique_ptr<HostSession> session = *std::move(opened);
    if (const auto &fault = session->plugInFault())
        return {QJsonValue(), fault->sentence, QString()};
    closeSession();
    openWindow(event.windowHeight);
    m_session = std::move(session);
    m_session->addObserver(this);
    m_session->start();
    QJsonArray classes;
    for (const HostPanel &panel : m_session->panels())
        classes << (panel.inspection ? panel.inspection->inspectedClassName() : panel.name);
    return {classes, QString(), QString()};
}

void ReplaySession::openWindow(std::optional<double> height)
{
    m_window = std::make_unique<QWidget>();
    setWindowHeight(height);
}

// The window itself is never shown: only its height is spoken of, and alerts take it as their own.
void ReplaySession::setWindowHeight(std::optional<double> height)
{
    setKeyWindow(height ? m_window.get() : nullptr, height);
}

ReplayWork ReplaySession::perform(const ReplayWindow &event)
{
    setWindowHeight(event.height);
    if (event.height)
        m_session->windowDidResize();
    return {};
}

ReplayWork ReplaySession::perform(const ReplayPicture &event)
{
    const QImage picture = shownPicture(*m_session);
    if (picture.isNull())
        return {QJsonValue(), u"no picture is shown"_s, QString()};
    return {QJsonValue(), m_pictures.write(picture, event.folder, event.file).sentence(),
            QString()};
}

ReplayWork ReplaySession::perform(const ReplayWhy &event)
{
    if (!m_explainer)
        return {QJsonValue(), u"nothing is explained here"_s, QString()};
    const Result<QJsonObject> answer = m_explainer(*m_session, event.keyword, event.choice);
    if (!answer)
        return {QJsonValue(), answer.sentence(), QString()};
    return {*answer, QString(), QString()};
}

ReplayWork ReplaySession::perform(const ReplayState &)
{
    return {};
}

ReplayWork ReplaySession::perform(const ReplayClose &)
{
    closeSession();
    return {};
}

// The session itself stays: the job's marks and ticket can still be looked at.
void ReplaySession::closeSession()
{
    if (!m_session || !m_session->isRunning())
        return;
    NotificationCenter::defaultCenter().post(QLatin1String(kWindowWillCloseNotification),
                                             m_window.get());
    m_session->close();
    setKeyWindow(nullptr);
    m_window.reset();
}

void ReplaySession::didAnswer(const HostCallback::Call &call)
{
    using Kind = HostCallback::Call::Kind;
    if (call.kind == Kind::PanelViewDidResize) {
        m_calls << QJsonObject{{u"call"_s, u"panelViewDidResize"_s}};
        return;
    }
    m_calls << QJsonObject{{u"call"_s, u"willChangePPDOptionKeyValue"_s},
                           {u"keyword"_s, textOrNull(call.keyword)},
                           {u"choice"_s, textOrNull(call.choice)},
                           {u"accepted"_s, call.accepted}};
}
