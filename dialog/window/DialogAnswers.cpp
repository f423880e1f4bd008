#include "dialog/advice/Advising.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/window/DialogAdvice.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/SessionUndo.h"
#include "dialog/work/Sentences.h"

using namespace Qt::StringLiterals;

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
    m_events.note(wanted);
    prepareControls(*job().session());
    applyRemedy(job(), remedy, wanted);
    showSettled();
}

void DialogWindow::tellEvent()
{
    const std::optional<EventOutcome> event = m_events.take();
    if (!event)
        return;
    const PPDMark lost = takeLost(*event);
    if (m_state != State::Ready)
        return;
    if (event->isNobodys())
        m_undo->noteOwn(m_events.state());
    else
        m_undo->noteUser(event->pick.keyword, m_events.state());
    tellOutcome(*event, lost);
}

/// What somebody may want back: the choice that was refused, or the first one that was changed
/// where a plug-in's alert said so; null: nothing.
PPDMark DialogWindow::takeLost(const EventOutcome &event)
{
    if (!m_undo->takeAlerted() || !event.refused.keyword.isNull() || event.changes.isEmpty())
        return event.refused;
    return {event.changes.constFirst().keyword, event.changes.constFirst().from};
}

void DialogWindow::tellOutcome(const EventOutcome &event, const PPDMark &lost)
{
    const Notice doubts = doubtsToTell(m_events.state());
    const QString changes = changeSentence(job().ppd(), event.changes);
    if (event.refusal.isNull() && changes.isNull()) {
        showStanding(doubts);
        return;
    }
    updateButtons();
    QStringList sentences{event.refusal, changes, doubts.sentence};
    sentences.removeAll(QString());
    QList<NoticeOffer> offers = doubts.offers;
    if (!event.isNobodys() && !changes.isNull() && m_undo->canUndo())
        offers += undoOffer();
    const NoticeBar::Kind kind = event.refusal.isNull() ? doubts.kind : NoticeBar::Kind::Warning;
    tell(kind, joinedSentences(sentences), offers);
    if (!event.refusal.isNull())
        offers += leaveOffer();
    if (!lost.choice.isNull())
        m_advice->offerRemedies(lost, kind, joinedSentences(sentences), offers);
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
    m_events.note({choice.keyword, choice.choice});
    prepareControls(*job().session());
    makeSetting(job(), choice);
}

/// What the printer or the documents lack, and the doubts about the settings.
DialogWindow::Notice DialogWindow::standingNotice(Notice doubts) const
{
    if (doubts.sentence.isEmpty())
        return m_standing;
    if (m_standing.kind == NoticeBar::Kind::Information) {
        if (m_choice)
            doubts.sentence = joinedSentences({choiceSentence(*m_choice), doubts.sentence});
        return doubts;
    }
    return {m_standing.kind, joinedSentences({m_standing.sentence, doubts.sentence}),
            m_standing.offers + doubts.offers};
}
