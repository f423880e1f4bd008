#include "dialog/cups/JobFate.h"

#include "dialog/cups/ServerRequests.h"

namespace {

bool hasReason(ipp_t *job, const char *reason)
{
    ipp_attribute_t *reasons = ippFindAttribute(job, "job-state-reasons", IPP_TAG_KEYWORD);
    return reasons && ippContainsString(reasons, reason) != 0;
}

bool isDone(ServerConnection &connection, ipp_op_t operation, const QString &queue, int jobId)
{
    if (!connection.isConnected())
        return false;
    connection.request(jobRequest(operation, queue, jobId), queueResource(queue));
    return connection.succeeded();
}

} // namespace

JobFate fateOf(ipp_t *job)
{
    ipp_attribute_t *state = ippFindAttribute(job, "job-state", IPP_TAG_ENUM);
    switch (state ? ippGetInteger(state, 0) : 0) {
    case IPP_JSTATE_PENDING:
    case IPP_JSTATE_HELD:
        return hasReason(job, "job-incoming") || hasReason(job, "job-data-insufficient")
                   ? JobFate::Incomplete
                   : JobFate::Accepted;
    case IPP_JSTATE_PROCESSING:
    case IPP_JSTATE_STOPPED:
    case IPP_JSTATE_COMPLETED:
        return JobFate::Accepted;
    case IPP_JSTATE_CANCELED:
        return JobFate::Cancelled;
    case IPP_JSTATE_ABORTED:
        return JobFate::Aborted;
    default:
        return JobFate::Unknown;
    }
}

JobFate askFate(ServerConnection &connection, const QString &queue, int jobId)
{
    if (!connection.isConnected())
        return JobFate::Unknown;
    IppHandle request = jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, queue, jobId);
    askFor(request.get(), {"job-state", "job-state-reasons"});
    const IppHandle job = connection.request(std::move(request), queueResource(queue));
    const ExchangeEnd &end = connection.lastEnd();
    if (end.kind == ExchangeEnd::Kind::Answered && end.status == IPP_STATUS_ERROR_NOT_FOUND)
        return JobFate::Forgotten;
    return job && connection.succeeded() ? fateOf(job.get()) : JobFate::Unknown;
}

bool releaseJob(ServerConnection &connection, const QString &queue, int jobId)
{
    return isDone(connection, IPP_OP_RELEASE_JOB, queue, jobId);
}

bool cancelJob(ServerConnection &connection, const QString &queue, int jobId)
{
    return isDone(connection, IPP_OP_CANCEL_JOB, queue, jobId);
}
