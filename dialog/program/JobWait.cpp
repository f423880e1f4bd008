#include "dialog/program/JobWait.h"

#include "dialog/program/CommandOutput.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

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

JobGroup groupOf(const QString &server, const QList<JobName> &jobs)
{
    JobGroup group{server, jobs.constFirst().queue, {}};
    for (const JobName &job : jobs)
        group.ids += job.id;
    return group;
}

} // namespace

JobWait::JobWait(const QString &server, const QList<JobName> &jobs,
                 std::optional<std::chrono::seconds> timeout, Then then)
    : m_then(std::move(then)),
      m_timeout(timeout),
      m_hasTerminal(isatty(STDERR_FILENO) != 0),
      m_follower(
          groupOf(server, jobs),
          {[this](int id, const JobStatus &status) { take(id, status); },
           [this](const QString &sentence) { tell(sentence); },
           [this](int id, const QString &sentence) { finish(id, ExitStatus::Server, sentence); }})
{
    for (const JobName &job : jobs)
        m_jobs.emplace(job.id, Job{job});
}

JobWait::~JobWait() = default;

void JobWait::take(int id, const JobStatus &status)
{
    const auto found = m_jobs.find(id);
    if (found == m_jobs.end())
        return;
    Job &job = found->second;
    const QString sentence = sentenceOf(job.name, status);
    if (isEnd(status.phase)) {
        finish(id, statusAfter(status.phase, m_isCancelled), sentence);
        return;
    }
    if (std::exchange(job.told, sentence) != sentence)
        tell(sentence, status.phase != JobPhase::Printing);
    if (status.phase == JobPhase::NeedsPassword && !std::exchange(job.hasAskedWhoPrints, true))
        m_follower.perform(JobAction::Authenticate, id);
    watchTheTime(job, status);
}

/// A reason that changes while the job is stuck does not begin the time anew.
void JobWait::watchTheTime(Job &job, const JobStatus &status)
{
    if (!m_timeout || !isStuck(status.phase)) {
        job.stuck.reset();
    } else if (!job.stuck) {
        job.stuck = std::make_unique<QTimer>();
        job.stuck->setSingleShot(true);
        connect(job.stuck.get(), &QTimer::timeout, this, [this, name = job.name] { giveUp(name); });
        job.stuck->start(*m_timeout);
    }
}

void JobWait::giveUp(const JobName &job)
{
    finish(job.id, ExitStatus::Waiting,
           QCoreApplication::translate("JobWait",
                                       "Job %1 on %2 was not waited for any longer; it stays where "
                                       "it is.")
               .arg(QString::number(job.id), job.queue));
}

void JobWait::end(int signal)
{
    const QList<int> ids = m_follower.jobs().ids;
    m_isCancelled = signal == SIGINT;
    for (const int id : ids) {
        if (m_isCancelled)
            m_follower.perform(JobAction::Cancel, id);
        else
            finish(id, ExitStatus::Cancelled,
                   QCoreApplication::translate("JobWait",
                                               "Job %1 on %2 goes on without being waited for.")
                       .arg(QString::number(id), m_follower.jobs().queue));
    }
}

/// A line that does not stay gives way to the next one.
void JobWait::tell(const QString &sentence, bool stays)
{
    if (m_hasTerminal)
        std::fputs("\r\033[K", stderr);
    if (stays || !m_hasTerminal) {
        warn(sentence);
        return;
    }
    std::fputs(displayText(sentence).toLocal8Bit().constData(), stderr);
    std::fflush(stderr);
}

void JobWait::finish(int id, ExitStatus status, const QString &sentence)
{
    const auto found = m_jobs.find(id);
    if (found == m_jobs.end())
        return;
    if (found->second.told != sentence)
        tell(sentence);
    if (found->second.stuck)
        found->second.stuck.release()->deleteLater(); // it may be the one that tells
    m_jobs.erase(found);
    m_ended.insert(id, status);
    m_follower.leave(id);
    if (m_jobs.empty())
        m_then(m_ended);
}
