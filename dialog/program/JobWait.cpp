#include "dialog/program/JobWait.h"

#include "dialog/program/CommandOutput.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <csignal>
#include <cstdio>
#include <unistd.h>
#include <utility>

namespace {

/// What the command comes to with a job that came to such an end.
ExitStatus statusAfter(JobPhase end, bool isCancelled)
{
    if (end == JobPhase::Finished)
        return ExitStatus::Done;
    return end == JobPhase::Cancelled && isCancelled ? ExitStatus::Cancelled : ExitStatus::Server;
}

} // namespace

JobWait::JobWait(const QString &server, JobName job, std::optional<std::chrono::seconds> timeout,
                 Then then)
    : m_job(std::move(job)),
      m_then(std::move(then)),
      m_hasTerminal(isatty(STDERR_FILENO) != 0),
      m_follower({server, m_job.queue, m_job.id},
                 {[this](const JobStatus &status) { take(status); },
                  [this](const QString &sentence) { tell(sentence); },
                  [this](const QString &sentence) { finish(ExitStatus::Server, sentence); }})
{
    m_timer.setSingleShot(true);
    if (timeout)
        m_timer.setInterval(*timeout);
    else
        m_timer.setInterval(-1); // never
    connect(&m_timer, &QTimer::timeout, this, &JobWait::giveUp);
}

void JobWait::take(const JobStatus &status)
{
    const QString sentence = sentenceOf(m_job, status);
    if (isEnd(status.phase)) {
        finish(statusAfter(status.phase, m_isCancelled), sentence);
        return;
    }
    tell(sentence, status.phase != JobPhase::Printing);
    if (status.phase == JobPhase::NeedsPassword && !std::exchange(m_hasAskedWhoPrints, true))
        m_follower.perform(JobAction::Authenticate);
    watchTheTime(status);
}

/// A reason that changes while the job is stuck does not begin the time anew.
void JobWait::watchTheTime(const JobStatus &status)
{
    if (!isStuck(status.phase))
        m_timer.stop();
    else if (!m_timer.isActive() && m_timer.interval() >= 0)
        m_timer.start();
}

void JobWait::giveUp()
{
    finish(ExitStatus::Waiting,
           QCoreApplication::translate("JobWait",
                                       "Job %1 on %2 was not waited for any longer; it stays where "
                                       "it is.")
               .arg(QString::number(m_job.id), m_job.queue));
}

void JobWait::end(int signal)
{
    if (signal == SIGINT) {
        m_isCancelled = true;
        m_follower.perform(JobAction::Cancel);
        return;
    }
    finish(ExitStatus::Cancelled,
           QCoreApplication::translate("JobWait", "Job %1 on %2 goes on without being waited for.")
               .arg(QString::number(m_job.id), m_job.queue));
}

/// A line that does not stay gives way to the next one.
void JobWait::tell(const QString &sentence, bool stays)
{
    if (sentence == m_told)
        return;
    m_told = sentence;
    if (m_hasTerminal)
        std::fputs("\r\033[K", stderr);
    if (stays || !m_hasTerminal) {
        warn(sentence);
        return;
    }
    std::fputs(displayText(sentence).toLocal8Bit().constData(), stderr);
    std::fflush(stderr);
}

void JobWait::finish(ExitStatus status, const QString &sentence)
{
    if (std::exchange(m_isOver, true))
        return;
    m_timer.stop();
    tell(sentence);
    m_then(status);
}
