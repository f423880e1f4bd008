#include "dialog/cups/JobSubmission.h"

#include "dialog/cups/JobReadBack.h"
#include "dialog/cups/OptionAttribute.h"
#include "dialog/cups/OutgoingText.h"
#include "dialog/cups/ServerConnection.h"

#include <QtCore/QCoreApplication>

namespace {

constexpr std::chrono::milliseconds kPatienceForCancelling{2000};

bool succeeded(const IppHandle &response)
{
    return response && cupsLastError() <= IPP_STATUS_OK_CONFLICTING;
}

IppHandle createJobRequest(const JobRequest &job)
{
    IppHandle request = queueRequest(IPP_OP_CREATE_JOB, job.queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 outgoingTitle(job.title).constData());
    for (const JobOption &option : job.options)
        addOptionAttribute(request.get(), option);
    return request;
}

IppHandle sendDocumentRequest(const JobRequest &job, int id, const QString &name, bool isLast)
{
    IppHandle request = queueRequest(IPP_OP_SEND_DOCUMENT, job.queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 outgoingDocumentName(name).constData());
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", isLast ? 1 : 0);
    return request;
}

bool writeDocument(ServerConnection &connection, const Document &document)
{
    return deliver(document, [&](const char *bytes, qint64 length) {
               const auto size = static_cast<std::size_t>(length);
               if (connection.guard().isCancelled() ||
                   cupsWriteRequestData(connection.http(), bytes, size) != HTTP_STATUS_CONTINUE)
                   return false;
               connection.guard().stampSignOfLife();
               return true;
           }) == Delivery::Complete;
}

bool sendDocument(ServerConnection &connection, const QByteArray &resource, IppHandle request,
                  const Document &document)
{
    const http_status_t status = cupsSendRequest(connection.http(), request.get(),
                                                 resource.constData(), CUPS_LENGTH_VARIABLE);
    if (status != HTTP_STATUS_CONTINUE || !writeDocument(connection, document))
        return false;
    const IppHandle response(cupsGetResponse(connection.http(), resource.constData()));
    connection.guard().stampSignOfLife();
    return succeeded(response);
}

/// On a connection of its own: the old one may be in the middle of a document.
void cancelJob(const JobRequest &job, int id)
{
    CallGuard guard(kPatienceForCancelling);
    ServerConnection connection(job.server, guard);
    if (!connection.isConnected())
        return;
    IppHandle request = queueRequest(IPP_OP_CANCEL_JOB, job.queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    connection.request(std::move(request), queueResource(job.queue));
}

bool sendDocuments(ServerConnection &connection, const JobRequest &job, int id)
{
    for (const Document &document : job.documents) {
        IppHandle request =
            sendDocumentRequest(job, id, document.name(), &document == &job.documents.back());
        if (!sendDocument(connection, queueResource(job.queue), std::move(request), document))
            return false;
    }
    return true;
}

int createdJob(const IppHandle &response)
{
    ipp_attribute_t *id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    return id ? ippGetInteger(id, 0) : 0;
}

} // namespace

JobReceipt submitJob(const JobRequest &request, CallGuard &guard)
{
    JobReceipt receipt;
    if (const QString changed = changedDocument(request.documents); !changed.isNull()) {
        receipt.answer = {ServerFault::Document, changed};
        return receipt;
    }
    ServerConnection connection(request.server, guard);
    IppHandle created;
    if (connection.isConnected())
        created = connection.request(createJobRequest(request), queueResource(request.queue));
    receipt.id = succeeded(created) ? createdJob(created) : 0;
    if (receipt.id == 0) {
        receipt.answer = connection.lastAnswer(request.queue);
        return receipt;
    }
    if (!sendDocuments(connection, request, receipt.id)) {
        receipt.answer = connection.lastAnswer(request.queue);
        cancelJob(request, receipt.id);
        return receipt;
    }
    receipt.notes = readJobBack(connection, request.queue, receipt.id, request.options);
    return receipt;
}

JobReceipt givenUpReceipt(const JobRequest &request)
{
    JobReceipt receipt;
    receipt.answer = silentServer(request.server);
    return receipt;
}
