#include "dialog/program/JobDispatch.h"

#include "dialog/files/PathBytes.h"
#include "dialog/printing/PrintController.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/LauncherOutput.h"
#include "dialog/work/EndSignals.h"
#include "dialog/work/Sentences.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

/// For scripts, which read it as what `lp` says: the same in every language.
QString receiptLine(const QString &queue, int id, std::size_t files)
{
    return QStringLiteral("request id is %1-%2 (%3 file(s))").arg(queue).arg(id).arg(files);
}

QString cancelledSentence(const JobPlace &job)
{
    return QCoreApplication::translate("JobDispatch",
                                       "Job %1 on %2 was cancelled; --yes prints it all the same.")
        .arg(QString::number(job.id), job.queue);
}

JobPlace placeOf(const JobRequest &request, int id)
{
    return {request.server, request.queue, id};
}

} // namespace

JobDispatch::JobDispatch(const CommandLine &line, PrintController &controller, EndSignals &signals,
                         Then then)
    : m_line(line), m_controller(controller), m_signals(signals), m_then(std::move(then))
{}

void JobDispatch::send(const QList<OutgoingJob> &jobs)
{
    QList<JobRequest> requests;
    for (const OutgoingJob &job : jobs) {
        m_jobs.push_back({job});
        requests += job.request;
    }
    m_series.emplace(
        requests, JobSeries::Listener{[this](qsizetype index, const Result<JobReceipt> &receipt) {
                                          take(m_jobs[static_cast<std::size_t>(index)], receipt);
                                      },
                                      [this] {
                                          tellUnsent();
                                          judgeNext();
                                      }});
    m_signals.setAction([this] { cancel(); });
    m_series->start();
}

void JobDispatch::cancel()
{
    m_series->cancel();
    m_controller.cancel();
}

void JobDispatch::take(Job &job, const Result<JobReceipt> &receipt)
{
    if (receipt && !receipt->queue.isNull())
        job.job.request.queue = receipt->queue;
    if (!receipt) {
        fail(job, receipt.fault());
    } else if (receipt->isOnTrial) {
        job.id = receipt->id;
        job.differences = receipt->notes;
        m_trials.push_back(&job);
    } else {
        takeReceipt(job, *receipt);
    }
}

/// On standard output. Where that takes nothing, the line is not lost: it is the number of a job.
void JobDispatch::takeReceipt(Job &job, const JobReceipt &receipt)
{
    const JobRequest &request = job.job.request;
    const QString line = receiptLine(request.queue, receipt.id, request.documents.size());
    job.id = receipt.id;
    if (!report(m_line, line)) {
        job.status = failWithoutOutput();
        warn(line);
    }
    for (const QString &note : receipt.notes)
        warn(note);
}

/// What the series has not begun: the first job's reason is that of the others, or a signal that
/// came between two of them.
void JobDispatch::tellUnsent()
{
    const bool isInterrupted = EndSignals::haveCome();
    QStringList names;
    for (Job &job : m_jobs) {
        if (job.id != 0 || job.status != ExitStatus::Done)
            continue;
        job.status = isInterrupted ? ExitStatus::Cancelled : ExitStatus::Server;
        names += job.job.request.documents.front().path();
    }
    if (!names.isEmpty())
        warn(QCoreApplication::translate("JobDispatch", "Not sent: %1")
                 .arg(names.join(QStringLiteral(", "))));
}

/// The server would print the job otherwise than it was asked for, and holds it.
void JobDispatch::judgeNext()
{
    if (m_trials.empty()) {
        wait();
        return;
    }
    Job &job = *m_trials.front();
    m_trials.erase(m_trials.begin());
    const JobPlace place = placeOf(job.job.request, job.id);
    const bool isAgreed = m_line.yes && !EndSignals::haveCome();
    const auto take = [this, &job, place, isAgreed](const Result<> &ended) {
        if (!ended)
            fail(job, ended.fault());
        else if (isAgreed)
            takeReceipt(job, {job.id, job.differences});
        else
            fail(job, {FaultKind::Vetoed,
                       joinedSentences(job.differences + QStringList{cancelledSentence(place)})});
        judgeNext();
    };
    m_controller.endTrial(place, isAgreed ? TrialVerdict::Release : TrialVerdict::Cancel, take);
}

/// The jobs are at the server: from here on a signal is a matter of the wait.
void JobDispatch::wait()
{
    QList<JobName> names;
    for (const Job &job : m_jobs)
        if (m_line.wait && job.status == ExitStatus::Done)
            names += {job.job.request.queue, job.id, job.job.pages};
    if (names.isEmpty()) {
        end();
        return;
    }
    const std::optional<std::chrono::seconds> timeout =
        m_line.timeout ? std::optional<std::chrono::seconds>(*m_line.timeout) : std::nullopt;
    m_wait.emplace(m_line.server, names, timeout,
                   [this](const QMap<int, ExitStatus> &ends) { takeEnds(ends); });
    m_signals.setAction([this] { m_wait->end(EndSignals::first()); });
    m_wait->start();
}

void JobDispatch::takeEnds(const QMap<int, ExitStatus> &ends)
{
    for (Job &job : m_jobs)
        if (job.status == ExitStatus::Done)
            job.status = ends.value(job.id);
    end();
}

void JobDispatch::fail(Job &job, const Fault &fault)
{
    const QString path = job.job.request.documents.front().path();
    const bool isNamed = !m_line.each || fault.sentence.contains(path);
    job.told = fault.sentence;
    job.status =
        failWith(statusOf(fault.kind),
                 isNamed ? fault.sentence : QStringLiteral("%1: %2").arg(path, fault.sentence));
}

void JobDispatch::end()
{
    const auto failed =
        std::ranges::find_if(m_jobs, [](const Job &job) { return job.status != ExitStatus::Done; });
    if (failed == m_jobs.end())
        m_then(ExitStatus::Done, {});
    else
        m_then(failed->status, failed->told);
}
