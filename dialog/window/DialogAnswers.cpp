#include "dialog/advice/Advising.h"
#include "dialog/host/HostSession.h"
#include "dialog/job/Conflicts.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/window/DialogAdvice.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/SessionUndo.h"
#include "dialog/work/Sentences.h"

#include <QtCore/QThread>
#include <QtCore/QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds kAlertInterval{20};

} // namespace

/// A panel has asked for a choice. A pick asks for the user's own first, and its rules for more:
/// what is told when all is over is the first refusal, or that there was none.
void DialogWindow::didAnswer(const HostCallback::Call &call)
{
    if (call.kind == HostCallback::Call::Kind::PanelViewDidResize) {
        QTimer::singleShot(0, this, &DialogWindow::followView);
        return;
    }
    if (!call.accepted && m_refusalToTell.isNull() && m_pick.keyword.isNull())
        m_refused = {call.keyword, call.choice};
    if (!call.accepted && m_refusalToTell.isNull())
        m_refusalToTell = refusalSentence(job().ppd(), call.keyword, call.choice);
    if (m_pick.keyword.isNull())
        m_pick = {call.keyword, call.accepted ? call.choice : QString()};
    noteEvent();
}

/// The panels have heard of it before, and asked for what follows from it.
void DialogWindow::didMark(const QString &keyword, const QString &choice)
{
    m_pick = {keyword, choice};
    noteEvent();
}

void DialogWindow::didSetPaper(const PMPaper &, const std::optional<QString> &)
{
    m_pick = {u"PageSize"_s, QString()};
    noteEvent();
}

/// The panels hear of it afterwards.
void DialogWindow::didWriteTicket(const QString &key, const QVariant &)
{
    m_pick = {key, QString()};
    noteEvent();
}

/// What is going on is told of when it is over.
void DialogWindow::noteEvent()
{
    if (std::exchange(m_eventIsNoted, true))
        return;
    m_eventLevel = QThread::currentThread()->loopLevel();
    // Before anything is painted, so that what the event has changed is painted once.
    QMetaObject::invokeMethod(this, &DialogWindow::tellEvent, Qt::QueuedConnection);
}

/// What the dialog has done by itself, as when another part comes in front, is over.
void DialogWindow::noteOwnEvent()
{
    m_pick = {u""_s, QString()}; // nobody's
    noteEvent();
}

/// The dialog itself has refused the user's choice.
void DialogWindow::tellRefusal(const QString &sentence, const PPDMark &choice)
{
    tellEvent(); // what was before
    tell(NoticeBar::Kind::Warning, sentence);
    m_advice->offerRemedies(choice, NoticeBar::Kind::Warning, sentence, {leaveOffer()});
}

NoticeOffer DialogWindow::leaveOffer()
{
    return {u"leaveButton"_s, tr("Leave It"), [this] { tellStanding(); }};
}

void DialogWindow::connectAdvice()
{
    m_advice = new DialogAdvice(m_controller, *m_undo, *m_tabs, *this);
    connect(m_advice, &DialogAdvice::asked, this, &DialogWindow::tellEvent);
    connect(m_advice, &DialogAdvice::told, this, &DialogWindow::tell);
    connect(m_advice, &DialogAdvice::taken, this, &DialogWindow::take);
}

/// Makes the changes as a person would, and then picks what they are for: one step.
void DialogWindow::take(const Remedy &remedy, const PPDMark &wanted)
{
    tellEvent(); // what was before
    m_pick = wanted;
    prepareControls(*job().session());
    applyRemedy(job(), remedy, wanted);
    showSettled();
    noteEvent();
}

void DialogWindow::tellEvent()
{
    if (!m_eventIsNoted)
        return;
    // An alert in the midst of it waits for its answer.
    if (QThread::currentThread()->loopLevel() > m_eventLevel) {
        QTimer::singleShot(kAlertInterval, this, &DialogWindow::tellEvent);
        return;
    }
    m_eventIsNoted = false;
    const QString picked = m_pick.keyword;
    const bool isNobodys = picked.isEmpty() && !picked.isNull();
    News news{std::exchange(m_refusalToTell, QString()), takeChanges(), {}, !isNobodys};
    news.lost = takeLost(news.changes);
    if (m_state != State::Ready)
        return;
    if (isNobodys)
        m_undo->noteOwn(m_toldState);
    else
        m_undo->noteUser(picked, m_toldState);
    tellNews(news);
}

/// What somebody may want back: the choice that was refused, or the first one that was changed
/// where a plug-in's alert said so; null: nothing.
PPDMark DialogWindow::takeLost(const QList<SettingChange> &changes)
{
    const PPDMark refused = std::exchange(m_refused, PPDMark());
    if (!m_undo->takeAlerted() || !refused.keyword.isNull() || changes.isEmpty())
        return refused;
    return {changes.constFirst().keyword, changes.constFirst().from};
}

void DialogWindow::tellNews(const News &news)
{
    const Notice doubts = doubtsToTell(m_toldState);
    const QString changes = changeSentence(job().ppd(), news.changes);
    if (news.refusal.isNull() && changes.isNull()) {
        showStanding(doubts);
        return;
    }
    updateButtons();
    QStringList sentences{news.refusal, changes, doubts.sentence};
    sentences.removeAll(QString());
    QList<NoticeOffer> offers = doubts.offers;
    if (news.isUsers && !changes.isNull() && m_undo->canUndo())
        offers += undoOffer();
    const NoticeBar::Kind kind = news.refusal.isNull() ? doubts.kind : NoticeBar::Kind::Warning;
    tell(kind, joinedSentences(sentences), offers);
    if (!news.refusal.isNull())
        offers += leaveOffer();
    if (!news.lost.choice.isNull())
        m_advice->offerRemedies(news.lost, kind, joinedSentences(sentences), offers);
}

/// What is not as it is shown, or goes with nothing else, and what the plug-in advises.
DialogWindow::Notice DialogWindow::doubtsToTell(const SettingState &state)
{
    const QStringList doubts = doubtsOf(job(), state) + notesOnLayout(job()) + printerDoubts();
    Notice notice{doubts.isEmpty() ? NoticeBar::Kind::Information : NoticeBar::Kind::Warning, {}};
    QStringList sentences = doubts;
    for (const JobAdvice &advice : adviceFor(job())) {
        sentences += advice.sentence;
        notice.offers +=
            {u"adviceButton"_s, tr("Use It"), [this, choice = advice.choice] { choose(choice); }};
    }
    notice.sentence = joinedSentences(sentences);
    return notice;
}

/// As if the user had picked it in the part that has it, which need not be in front.
void DialogWindow::choose(const RequestedChoice &choice)
{
    m_pick = {choice.keyword, choice.choice};
    prepareControls(*job().session());
    makeSetting(job(), choice);
    noteEvent();
}

/// What the printer or the documents lack, and the doubts about the settings.
DialogWindow::Notice DialogWindow::standingNotice(Notice doubts) const
{
    if (doubts.sentence.isEmpty())
        return m_standing;
    if (m_standing.kind == NoticeBar::Kind::Information)
        return doubts;
    return {m_standing.kind, joinedSentences({m_standing.sentence, doubts.sentence}),
            m_standing.offers + doubts.offers};
}

/// What has changed since the last look, but for the user's pick.
QList<SettingChange> DialogWindow::takeChanges()
{
    const PPDMark pick = std::exchange(m_pick, PPDMark());
    if (!pick.keyword.isEmpty() && !pick.choice.isNull())
        job().noteChoice(pick);
    const SettingState now = ::settingState(job());
    const SettingState former = std::exchange(m_toldState, now);
    return job().session() ? changesBeside(pick, former, now, job().session()->choiceForms())
                           : QList<SettingChange>();
}

/// After what is going on: showing another part, or a printer, tells something by itself.
void DialogWindow::didFail(PanelOperation, const HostPanel &, const QString &sentence)
{
    if (sentence.isEmpty())
        return;
    QTimer::singleShot(0, this, [this, sentence] { tell(NoticeBar::Kind::Error, sentence); });
}
