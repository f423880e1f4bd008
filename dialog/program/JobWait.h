#pragma once

#include "dialog/cups/JobSentence.h"
#include "dialog/printing/JobFollower.h"
#include "dialog/program/ExitStatus.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <chrono>
#include <functional>
#include <optional>

/// Follows an accepted job for a command without a window, and tells on standard error where it
/// stands, a line a change. On a terminal the pages go by in one line.
class JobWait : public QObject
{
public:
    /// Is told once how it ended. A job that was stopped or held for longer than `timeout` at a
    /// stretch ends the wait; none: it may take as long as it likes.
    using Then = std::function<void(ExitStatus)>;

    JobWait(const QString &server, JobName job, std::optional<std::chrono::seconds> timeout,
            Then then);

    void start() { m_follower.start(); }

    /// A signal has come. INT cancels the job; the others end the wait and leave the job alone.
    void end(int signal);

private:
    void take(const JobStatus &status);
    void watchTheTime(const JobStatus &status);
    void giveUp();
    void tell(const QString &sentence, bool stays = true);
    void finish(ExitStatus status, const QString &sentence);

    const JobName m_job;
    const Then m_then;
    const bool m_hasTerminal;
    bool m_isCancelled = false; ///< by the user
    bool m_isOver = false;
    bool m_hasAskedWhoPrints = false;
    QString m_told;
    QTimer m_timer; ///< of a job that is stuck
    JobFollower m_follower;
};
