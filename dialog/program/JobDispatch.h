#pragma once

#include "dialog/printing/JobSeries.h"
#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/program/JobWait.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>
#include <optional>
#include <vector>

class EndSignals;
class PrintController;

/// A job that a command is about to send.
struct OutgoingJob
{
    JobRequest request;
    int pages = 0; ///< that it prints; 0: not known
};

/// Sends the finished jobs of a command without a dialog, tells of each on standard output, and
/// waits for them where the command line says so. What went wrong is one sentence a job on standard
/// error, which names the document where each has a job of its own.
class JobDispatch
{
public:
    /// Is told once how it ended: the status of the first job that failed, in their order, and its
    /// sentence, which was told already.
    using Then = std::function<void(ExitStatus, const QString &told)>;

    /// From the start on a signal is a matter of the dispatch.
    JobDispatch(const CommandLine &line, PrintController &controller, EndSignals &signals,
                Then then);

    /// At least one job; all for one queue.
    void send(const QList<OutgoingJob> &jobs);

private:
    struct Job
    {
        OutgoingJob job;
        int id = 0;                   ///< 0: the server has not taken it
        QStringList differences = {}; ///< of a job that waits for a yes: what was not shown
        ExitStatus status = ExitStatus::Done;
        QString told = {}; ///< of its failure
    };

    void cancel();
    void take(Job &job, const Result<JobReceipt> &receipt);
    void takeReceipt(Job &job, const JobReceipt &receipt);
    void tellUnsent();
    void judgeNext();
    void wait();
    void takeEnds(const QMap<int, ExitStatus> &ends);
    void fail(Job &job, const Fault &fault);
    void end();

    const CommandLine &m_line;
    PrintController &m_controller;
    EndSignals &m_signals;
    const Then m_then;
    std::vector<Job> m_jobs;
    std::vector<Job *> m_trials; ///< jobs that wait for a yes, the next one first
    std::optional<JobSeries> m_series;
    std::optional<JobWait> m_wait;
};
