#include "dialog/cups/JobSending.h"

#include "dialog/cups/ServerRequests.h"
#include "dialog/job/OutgoingText.h"

namespace {

IppHandle sendDocumentRequest(const JobRequest &job, int id, const QString &name, bool isLast)
{
    IppHandle request = queueRequest(IPP_OP_SEND_DOCUMENT, job.queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 outgoingDocumentName(name).constData());
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", isLast ? 1 : 0);
    return request;
}

/// Whether the answer to a document leaves open if the server has taken it: it failed, or broke
/// off, after it had all bytes.
bool isLost(const ExchangeEnd &end)
{
    return end.kind == ExchangeEnd::Kind::HttpStatus ? end.status >= HTTP_STATUS_SERVER_ERROR
                                                     : end.kind != ExchangeEnd::Kind::Answered;
}

Sent takeAnswer(ServerConnection &connection)
{
    connection.endUpload();
    if (connection.succeeded())
        return Sent::Accepted;
    return isLost(connection.lastEnd()) ? Sent::Lost : Sent::Refused;
}

SentDocuments sendDocument(ServerConnection &connection, const JobRequest &job,
                           const Document &document, const IppHandle &request,
                           JobProgress &progress)
{
    if (!connection.beginUpload(request, queueResource(job.queue)))
        return {Sent::Refused, {}};
    const Delivery delivery = deliver(document, [&](const char *bytes, qint64 length) {
        progress.add(length);
        return connection.upload(bytes, length);
    });
    if (delivery == Delivery::Changed || delivery == Delivery::CannotRead)
        return {Sent::Changed, deliveryFault(document, delivery)};
    return {delivery == Delivery::Complete ? takeAnswer(connection) : Sent::Refused, {}};
}

} // namespace

SentDocuments sendDocuments(ServerConnection &connection, const JobRequest &job,
                            JobProgress &progress)
{
    for (const Document &document : job.documents) {
        const bool isLast = &document == &job.documents.back();
        SentDocuments one = sendDocument(
            connection, job, document,
            sendDocumentRequest(job, progress.id(), document.name(), isLast), progress);
        // The documents that follow are missing at the server: it cannot have taken the whole job.
        if (one.sent == Sent::Lost && !isLast)
            return {Sent::Refused, {}};
        if (one.sent != Sent::Accepted)
            return one;
    }
    return {};
}
