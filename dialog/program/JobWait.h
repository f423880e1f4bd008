#pragma once

#include "dialog/cups/JobSentence.h"
#include "dialog/printing/GroupFollower.h"
#include "dialog/program/ExitStatus.h"

#include <QtCore/QMap>
#include <QtCore/QObject>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

class QTimer;

/// Follows accepted jobs of a queue for a command without a window, and tells on standard error
/// where they stand, a line a change. On a terminal the pages go by in one line.
class JobWait : public QObject
{
public:
    /// Is told once how each of the jobs ended, by their numbers.
    using Then = std::function<void(const QMap<int, ExitStatus> &)>;

    /// A job that was stopped or held for longer than `timeout` at a stretch is not waited for any
    /// longer; none: it may take as long as it likes. At least one job, all of one queue.
    JobWait(const QString &server, const QList<JobName> &jobs,
            std::optional<std::chrono::seconds> timeout, Then then);
    ~JobWait() override;

    void start() { m_follower.start(); }

    /// A signal has come. INT cancels the jobs; the others end the wait and leave the jobs alone.
    void end(int signal);

private:
    struct Job
    {
        JobName name;
        bool hasAskedWhoPrints = false;
        QString told = {};
        std::unique_ptr<QTimer> stuck = {}; ///< runs while it is stuck
    };

    void take(int id, const JobStatus &status);
    void watchTheTime(Job &job, const JobStatus &status);
    void giveUp(const JobName &job);
    void tell(const QString &sentence, bool stays = true);
    void finish(int id, ExitStatus status, const QString &sentence);

    const Then m_then;
    const std::optional<std::chrono::seconds> m_timeout;
    const bool m_hasTerminal;
    bool m_isCancelled = false; ///< by the user
    std::map<int, Job> m_jobs;  ///< those that are waited for
    QMap<int, ExitStatus> m_ended;
    GroupFollower m_follower;
};
