#include "dialog/job/Conflicts.h"
#include "dialog/window/DialogWindow.h"

#include <QtCore/QTimer>

#include <utility>

/// A panel has asked for a choice. A pick asks for the user's own first, and its rules for more:
/// what is told when all is over is the first refusal, or that there was none.
void DialogWindow::didAnswer(const HostCallback::Call &call)
{
    if (call.kind == HostCallback::Call::Kind::PanelViewDidResize) {
        QTimer::singleShot(0, this, &DialogWindow::followView);
        return;
    }
    if (!call.accepted && m_refusalToTell.isNull())
        m_refusalToTell = refusalSentence(job().ppd(), call.keyword, call.choice);
    if (!std::exchange(m_answersAreNoted, true))
        QTimer::singleShot(0, this, &DialogWindow::tellAnswers);
}

void DialogWindow::tellAnswers()
{
    m_answersAreNoted = false;
    const QString refusal = std::exchange(m_refusalToTell, QString());
    if (m_state != State::Ready)
        return;
    tellStanding();
    if (!refusal.isNull())
        tell(NoticeBar::Kind::Warning, refusal);
}

/// After what is going on: showing another part, or a printer, tells something by itself.
void DialogWindow::didFail(PanelOperation, const HostPanel &, const QString &sentence)
{
    if (sentence.isEmpty())
        return;
    QTimer::singleShot(0, this, [this, sentence] { tell(NoticeBar::Kind::Error, sentence); });
}
