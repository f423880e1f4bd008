#include "dialog/cups/JobSubmission.h"

#include "dialog/cups/JobReadBack.h"
#include "dialog/cups/JobSettlement.h"
#include "dialog/cups/JobTemplate.h"
#include "dialog/cups/QueueOutlook.h"

#include <QtCore/QCoreApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kHold = "job-hold-until"_L1;

/// The job with what it has to say so that its queue does not say otherwise. Where that cannot be
/// said it waits until it was compared, unless the user wants it held anyway.
JobRequest prepared(const JobRequest &job, const QueueInfluence &influence)
{
    JobRequest prepared = job;
    prepared.options += influence.settled;
    if (influence.unsettled.isEmpty() || isToBeHeld(job.options))
        return prepared;
    prepared.options.removeIf([](const JobOption &option) { return option.name == kHold; });
    prepared.options += JobOption{kHold, u"indefinite"_s};
    prepared.isOnTrial = true;
    return prepared;
}

/// The number of the job in the server's answer; 0 without one that a job can have.
int createdJob(const IppHandle &response)
{
    ipp_attribute_t *id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    return id ? qMax(0, ippGetInteger(id, 0)) : 0;
}

/// What the queue would make of the job, whose documents are still as they were.
Result<QueueInfluence> lookFirst(ServerConnection &connection, const JobRequest &request)
{
    if (const Result<> unchanged = checkUnchanged(request.documents); !unchanged)
        return unchanged.fault();
    if (!connection.isConnected() || connection.guard().isCancelled())
        return notPrinted(connection.lastFault(request.queue), request.queue);
    const Result<QueueInfluence> influence = lookAhead(connection, request);
    return influence ? influence : notPrinted(influence.fault(), request.queue);
}

/// Whether the server has said that it would not take the job; not every server can be asked.
bool isRefused(const ServerConnection &connection)
{
    return !connection.succeeded() &&
           connection.lastEnd().status != IPP_STATUS_ERROR_OPERATION_NOT_SUPPORTED;
}

/// Asking what would become of a job passes over that its queue takes none.
bool takesJobs(ServerConnection &connection, const QString &queue)
{
    IppHandle request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request.get(), {"printer-is-accepting-jobs"});
    const IppHandle answer = connection.request(std::move(request), queueResource(queue));
    ipp_attribute_t *takes =
        ippFindAttribute(answer.get(), "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    return !takes || ippGetBoolean(takes, 0);
}

} // namespace

Result<> rehearseJob(const JobRequest &request, CallGuard &guard)
{
    ServerConnection connection(request.server, guard);
    const Result<QueueInfluence> influence = lookFirst(connection, request);
    if (!influence)
        return influence.fault();
    if (isRefused(connection))
        return notPrinted(connection.lastFault(request.queue), request.queue);
    if (takesJobs(connection, request.queue))
        return {};
    return notPrinted(
        {FaultKind::Refused,
         QCoreApplication::translate("JobSubmission", "The queue %1 takes no jobs at present.")
             .arg(request.queue)},
        request.queue);
}

Result<JobReceipt> submitJob(const JobRequest &request, CallGuard &guard,
                             const std::shared_ptr<JobProgress> &progress)
{
    ServerConnection connection(request.server, guard);
    const Result<QueueInfluence> influence = lookFirst(connection, request);
    if (!influence)
        return influence.fault();
    const JobRequest job = prepared(request, *influence);
    const IppHandle created =
        connection.request(jobTemplate(IPP_OP_CREATE_JOB, job), queueResource(job.queue));
    const int id = connection.succeeded() && created ? createdJob(created) : 0;
    if (id == 0)
        return notPrinted(connection.lastFault(job.queue), job.queue);
    progress->setId(id);
    progress->setOnTrial(job.isOnTrial);
    const auto [sent, fault] = sendDocuments(connection, job, *progress);
    if (sent == Sent::Accepted)
        return accept(connection, job, *progress);
    return settle(fault.value_or(connection.lastFault(job.queue)), sent, job, *progress, guard);
}

Result<JobReceipt> givenUpReceipt(const JobRequest &request, const JobProgress &progress)
{
    if (progress.isAccepted())
        return JobReceipt{progress.id(), {}, progress.isOnTrial()};
    return progress.id() == 0
               ? notPrinted(silentServer(request.server), request.queue)
               : perhapsPrinted(nameOfServer(request.server), request.queue, progress.id());
}
