#pragma once

#include "dialog/cups/JobSubmission.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <functional>
#include <memory>
#include <vector>

class BackgroundCall;

/// Jobs of one queue that are sent one after the other over one connection, off the main thread.
///
/// A job that fails does not keep the others from being sent; what the next one would meet as well
/// does: a server that is silent or gone, a queue that is not there or has another PPD by now, a
/// password that nobody has said. A server that is being started again is waited for.
class JobSeries : public QObject
{
public:
    /// Is told of the jobs, from the event loop. Both must be given.
    struct Listener
    {
        /// What became of the job with that index; in the order of the jobs, once for each that was
        /// begun.
        std::function<void(qsizetype, const Result<JobReceipt> &)> ended;
        /// Nothing more is sent.
        std::function<void()> over;
    };

    /// All jobs are for the same server and queue.
    JobSeries(QList<JobRequest> jobs, Listener listener, QObject *parent = nullptr);
    ~JobSeries() override;

    void start();

    /// Asks the job that is being sent to stop; the next ones are not begun.
    void cancel();

private:
    using Progresses = std::vector<std::shared_ptr<JobProgress>>;

    void take(const Result<JobReceipt> &receipt);
    void giveUp();

    const QList<JobRequest> m_jobs;
    const Listener m_listener;
    Progresses m_progresses; ///< one for each job
    qsizetype m_ended = 0;
    QPointer<BackgroundCall> m_call;
};
