#include "dialog/cups/JobSubmission.h"

#include "dialog/cups/JobSettlement.h"
#include "dialog/cups/OptionAttribute.h"
#include "dialog/job/OutgoingText.h"

namespace {

IppHandle createJobRequest(const JobRequest &job)
{
    IppHandle request = queueRequest(IPP_OP_CREATE_JOB, job.queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 outgoingTitle(job.title).constData());
    for (const JobOption &option : job.options)
        if (!isOfSubscription(option))
            addOptionAttribute(request.get(), option);
    for (const JobOption &option : job.options)
        if (isOfSubscription(option))
            addSubscription(request.get(), option);
    return request;
}

/// The number of the job in the server's answer; 0 without one that a job can have.
int createdJob(const IppHandle &response)
{
    ipp_attribute_t *id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    return id ? qMax(0, ippGetInteger(id, 0)) : 0;
}

} // namespace

Result<JobReceipt> submitJob(const JobRequest &request, CallGuard &guard,
                             const std::shared_ptr<JobProgress> &progress)
{
    if (const Result<> unchanged = checkUnchanged(request.documents); !unchanged)
        return unchanged.fault();
    ServerConnection connection(request.server, guard);
    IppHandle created;
    if (connection.isConnected() && !guard.isCancelled())
        created = connection.request(createJobRequest(request), queueResource(request.queue));
    const int id = connection.succeeded() && created ? createdJob(created) : 0;
    if (id == 0)
        return connection.lastFault(request.queue);
    progress->setId(id);
    const auto [sent, fault] = sendDocuments(connection, request, *progress);
    if (sent == Sent::Accepted)
        return accept(connection, request, *progress);
    return settle(fault.value_or(connection.lastFault(request.queue)), sent, request, *progress,
                  guard);
}

Result<JobReceipt> givenUpReceipt(const JobRequest &request, const JobProgress &progress)
{
    if (progress.isAccepted())
        return JobReceipt{progress.id(), {}};
    return progress.id() == 0 ? silentServer(request.server)
                              : perhapsPrinted(nameOfServer(request.server), progress.id());
}
