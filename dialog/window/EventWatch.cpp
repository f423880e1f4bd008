#include "dialog/window/EventWatch.h"

#include "dialog/host/HostSession.h"
#include "dialog/job/Conflicts.h"
#include "dialog/printing/PrintController.h"

#include <QtCore/QThread>
#include <QtCore/QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds kAlertInterval{20};

} // namespace

EventWatch::EventWatch(PrintController &controller, QObject *parent)
    : QObject(parent), m_controller(controller)
{
    controller.addSessionHook([this](HostSession &session) {
        session.addObserver(this);
        return Result<>();
    });
}

/// A panel has asked for a choice. A pick asks for the user's own first, and its rules for more:
/// what is told when all is over is the first refusal, or that there was none.
void EventWatch::didAnswer(const HostCallback::Call &call)
{
    if (call.kind == HostCallback::Call::Kind::PanelViewDidResize) {
        Q_EMIT viewResized();
        return;
    }
    if (!call.accepted && m_refusal.isNull() && m_pick.keyword.isNull())
        m_refused = {call.keyword, call.choice};
    if (!call.accepted && m_refusal.isNull())
        m_refusal = refusalSentence(m_controller.job().ppd(), call.keyword, call.choice);
    if (m_pick.keyword.isNull())
        m_pick = {call.keyword, call.accepted ? call.choice : QString()};
    note();
}

/// The panels have heard of it before, and asked for what follows from it.
void EventWatch::didMark(const QString &keyword, const QString &choice)
{
    note({keyword, choice});
}

void EventWatch::didSetPaper(const PMPaper &, const std::optional<QString> &)
{
    note({u"PageSize"_s, QString()});
}

/// The panels hear of it afterwards.
void EventWatch::didWriteTicket(const QString &key, const QVariant &)
{
    note({key, QString()});
}

/// After what is going on: showing another part, or a printer, tells something by itself.
void EventWatch::didFail(PanelOperation, const HostPanel &, const QString &sentence)
{
    if (!sentence.isEmpty())
        QTimer::singleShot(0, this, [this, sentence] { Q_EMIT failed(sentence); });
}

void EventWatch::note(const PPDMark &pick)
{
    m_pick = pick;
    note();
}

void EventWatch::noteOwn()
{
    note({u""_s, QString()}); // nobody's
}

void EventWatch::note()
{
    if (std::exchange(m_isNoted, true))
        return;
    m_level = QThread::currentThread()->loopLevel();
    QMetaObject::invokeMethod(this, &EventWatch::over, Qt::QueuedConnection);
}

std::optional<EventOutcome> EventWatch::take()
{
    if (!m_isNoted)
        return std::nullopt;
    if (QThread::currentThread()->loopLevel() > m_level) {
        QTimer::singleShot(kAlertInterval, this, &EventWatch::over);
        return std::nullopt;
    }
    m_isNoted = false;
    EventOutcome outcome{
        m_pick, std::exchange(m_refused, PPDMark()), std::exchange(m_refusal, QString()), {}};
    outcome.changes = takeChanges();
    return outcome;
}

void EventWatch::forget()
{
    m_isNoted = false;
    m_refusal = QString();
    m_refused = PPDMark();
    m_pick = PPDMark();
    m_state = settingState(m_controller.job());
}

/// What has changed since the last look, but for the user's pick.
QList<SettingChange> EventWatch::takeChanges()
{
    PrintJob &job = m_controller.job();
    const PPDMark pick = std::exchange(m_pick, PPDMark());
    if (!pick.keyword.isEmpty() && !pick.choice.isNull())
        job.noteChoice(pick);
    const SettingState former = std::exchange(m_state, settingState(job));
    return job.session() ? changesBeside(pick, former, m_state, job.session()->choiceForms())
                         : QList<SettingChange>();
}
