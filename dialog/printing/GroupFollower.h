#pragma once

#include "dialog/cups/JobGroup.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <chrono>
#include <functional>

class BackgroundCall;

/// How long to wait before jobs are looked at again, when the last `looks` found nothing new: from
/// two seconds up to five, and a second for each request that the last look took.
std::chrono::milliseconds followInterval(int looks, int requests);

/// Follows the accepted jobs of a queue to their ends, off the main thread: all of them by one
/// look, with at most one request on its way. A server that does not answer is asked on: it may be
/// starting again.
class GroupFollower : public QObject
{
public:
    /// Is told of the jobs, from the event loop. All must be given.
    struct Listener
    {
        /// The job stands otherwise than before. Nothing follows its end.
        std::function<void(int id, const JobStatus &)> changed;
        /// The server did not answer, for the first time since it did; with a sentence.
        std::function<void(const QString &)> lost;
        /// What was asked for could not be done to the job; with a sentence.
        std::function<void(int id, const QString &)> failed;
    };

    GroupFollower(JobGroup jobs, Listener listener, QObject *parent = nullptr);
    ~GroupFollower() override;

    /// Those that are not at their end, as far as is known.
    const JobGroup &jobs() const { return m_jobs; }

    /// Looks at once, and then again and again until all are at their end.
    void start();

    /// Does it to the job, after what was asked for before, and looks soon after it is done. The
    /// job is followed on, or again.
    void perform(JobAction action, int id);

    /// The job is not followed any more.
    void leave(int id) { m_jobs.ids.removeOne(id); }

private:
    struct Wanted
    {
        JobAction action;
        int id;
    };

    void look();
    void take(const Result<GroupLook> &answer);
    QMap<int, JobStatus> takeNews(const GroupLook &look, bool all);
    void performNext();

    JobGroup m_jobs;
    const Listener m_listener;
    GroupWatch m_watch;
    bool m_isLost = false;
    int m_looks = 0; ///< without anything new
    QList<Wanted> m_wanted;
    QTimer m_timer;
    QPointer<BackgroundCall> m_looking;
    QPointer<BackgroundCall> m_performing;
};
