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
        addOptionAttribute(request.get(), option);
    return request;
}

/// The number of the job in the server's answer; 0 without one that a job can have.
int createdJob(const IppHandle &response)
{
    ipp_attribute_t *id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    return id ? qMax(0, ippGetInteger(id, 0)) : 0;
}

} // namespace

JobReceipt submitJob(const JobRequest &request, CallGuard &guard,
                     const std::shared_ptr<JobProgress> &progress)
{
    JobReceipt receipt;
    if (const QString changed = changedDocument(request.documents); !changed.isNull()) {
        receipt.answer = {ServerFault::Document, changed};
        return receipt;
    }
    ServerConnection connection(request.server, guard);
    IppHandle created;
    if (connection.isConnected() && !guard.isCancelled())
        created = connection.request(createJobRequest(request), queueResource(request.queue));
    receipt.id = connection.succeeded() && created ? createdJob(created) : 0;
    if (receipt.id == 0) {
        receipt.answer = connection.lastAnswer(request.queue);
        return receipt;
    }
    progress->setId(receipt.id);
    const auto [sent, fault] = sendDocuments(connection, request, *progress);
    if (sent == Sent::Accepted) {
        accept(receipt, connection, request, *progress);
        return receipt;
    }
    receipt.answer = fault.isNull() ? connection.lastAnswer(request.queue)
                                    : ServerAnswer{ServerFault::Document, fault};
    settle(receipt, sent, request, *progress, guard);
    return receipt;
}

JobReceipt givenUpReceipt(const JobRequest &request, const JobProgress &progress)
{
    JobReceipt receipt;
    receipt.id = progress.id();
    if (progress.isAccepted())
        return receipt;
    receipt.answer = receipt.id == 0 ? silentServer(request.server)
                                     : perhapsPrinted(nameOfServer(request.server), receipt.id);
    return receipt;
}
