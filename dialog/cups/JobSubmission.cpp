#include "dialog/cups/JobSubmission.h"

#include "dialog/cups/DocumentFile.h"
#include "dialog/cups/JobReadBack.h"
#include "dialog/cups/OptionAttribute.h"
#include "dialog/cups/ServerConnection.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <array>

namespace {

constexpr std::chrono::milliseconds kPatienceForCancelling{2000};

IppHandle createJobRequest(const JobRequest &job)
{
    IppHandle request = queueRequest(IPP_OP_CREATE_JOB, job.queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 job.title.toUtf8().left(255).constData());
    for (const JobOption &option : job.options)
        addOptionAttribute(request.get(), option);
    return request;
}

IppHandle sendDocumentRequest(const JobRequest &job, int id, const QString &name, bool isLast)
{
    IppHandle request = queueRequest(IPP_OP_SEND_DOCUMENT, job.queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 name.toUtf8().left(255).constData());
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", isLast ? 1 : 0);
    return request;
}

bool writeDocument(ServerConnection &connection, QIODevice &document)
{
    std::array<char, 65536> buffer{};
    qint64 length = 0;
    while ((length = document.read(buffer.data(), buffer.size())) > 0) {
        if (!connection.upload(buffer.data(), length))
            return false;
    }
    return length == 0;
}

bool sendDocument(ServerConnection &connection, const QByteArray &resource,
                  const IppHandle &request, QIODevice &document)
{
    if (!connection.beginUpload(request, resource) || !writeDocument(connection, document))
        return false;
    connection.endUpload();
    return connection.succeeded();
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

bool sendDocuments(ServerConnection &connection, const JobRequest &job, int id,
                   DocumentFiles &documents)
{
    for (std::size_t index = 0; index < documents.size(); ++index) {
        QFile &file = *documents[index];
        const IppHandle request =
            sendDocumentRequest(job, id, QFileInfo(file).fileName(), index + 1 == documents.size());
        if (!sendDocument(connection, queueResource(job.queue), request, file))
            return false;
    }
    return true;
}

/// Zero for an answer without a number that a job can have.
int createdJob(const IppHandle &response)
{
    ipp_attribute_t *id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    return id ? qMax(0, ippGetInteger(id, 0)) : 0;
}

} // namespace

JobReceipt submitJob(const JobRequest &request, CallGuard &guard)
{
    JobReceipt receipt;
    OpenedDocuments opened = openDocuments(request.documents);
    if (!opened.error.isNull()) {
        receipt.answer = {ServerFault::Document, opened.error};
        return receipt;
    }
    ServerConnection connection(request.server, guard);
    IppHandle created;
    if (connection.isConnected())
        created = connection.request(createJobRequest(request), queueResource(request.queue));
    receipt.id = connection.succeeded() && created ? createdJob(created) : 0;
    if (receipt.id == 0) {
        receipt.answer = connection.lastAnswer(request.queue);
        return receipt;
    }
    if (!sendDocuments(connection, request, receipt.id, opened.files)) {
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
