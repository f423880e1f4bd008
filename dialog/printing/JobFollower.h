#pragma once

#include "dialog/cups/JobWatch.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <chrono>
#include <functional>
#include <optional>

class BackgroundCall;

/// How long to wait before a job is looked at again, when the last `looks` found nothing new: from
/// two seconds up to five, and a second for each request that the last look took.
std::chrono::milliseconds followInterval(int looks, int requests);

/// Follows an accepted job to its end, off the main thread and with at most one request on its way.
/// A server that does not answer is asked on: it may be starting again.
class JobFollower : public QObject
{
public:
    /// Is told of the job, from the event loop. All must be given.
    struct Listener
    {
        /// It stands otherwise than before. Nothing follows an end.
        std::function<void(const JobStatus &)> changed;
        /// The server did not answer, for the first time since it did; with a sentence.
        std::function<void(const QString &)> lost;
        /// What was asked for could not be done; with a sentence.
        std::function<void(const QString &)> failed;
    };

    JobFollower(JobPlace job, Listener listener, QObject *parent = nullptr);
    ~JobFollower() override;

    const JobPlace &job() const { return m_job; }

    /// As it was last heard of; none before the first answer.
    const std::optional<JobStatus> &status() const { return m_status; }

    /// Looks at once, and then again and again until the end.
    void start();

    /// Does it, and looks soon after it is done.
    void perform(JobAction action);

private:
    void look();
    void take(const Result<JobLook> &answer);

    const JobPlace m_job;
    const Listener m_listener;
    std::optional<JobStatus> m_status;
    JobWatch m_watch;
    bool m_isLost = false;
    int m_looks = 0; ///< without anything new
    QTimer m_timer;
    QPointer<BackgroundCall> m_looking;
    QPointer<BackgroundCall> m_performing;
};
