#include "dialog/cups/JobSending.h"

#include "dialog/cups/OutgoingText.h"

namespace {

constexpr int kPatiencesForAnswer = 3; // to a document, which a server may be busy with

IppHandle sendDocumentRequest(const JobRequest &job, int id, const QString &name, bool isLast)
{
    IppHandle request = queueRequest(IPP_OP_SEND_DOCUMENT, job.queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 outgoingDocumentName(name).constData());
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", isLast ? 1 : 0);
    return request;
}

/// The documents of a job on their way.
struct Attempt
{
    const JobRequest &job;
    ServerConnection &connection;
    JobProgress &progress;
    QString fault; ///< of a document; null when there is none
};

bool write(Attempt &attempt, const char *bytes, qint64 length)
{
    if (!attempt.connection.upload(bytes, length))
        return false;
    attempt.progress.add(length);
    return true;
}

/// The answer decides whether the job prints.
Sent takeAnswer(ServerConnection &connection)
{
    connection.guard().allowSilence(kPatiencesForAnswer);
    const IppHandle answer = connection.endUpload();
    if (!answer)
        return Sent::Lost;
    return connection.succeeded() ? Sent::Accepted : Sent::Refused;
}

Sent sendDocument(Attempt &attempt, const Document &document, const IppHandle &request)
{
    if (!attempt.connection.beginUpload(request, queueResource(attempt.job.queue)))
        return Sent::Refused;
    const Delivery delivery = deliver(
        document, [&](const char *bytes, qint64 length) { return write(attempt, bytes, length); });
    attempt.fault = deliveryFault(document, delivery);
    if (!attempt.fault.isNull())
        return Sent::Changed;
    return delivery == Delivery::Complete ? takeAnswer(attempt.connection) : Sent::Refused;
}

} // namespace

SentDocuments sendDocuments(ServerConnection &connection, const JobRequest &job,
                            JobProgress &progress)
{
    Attempt attempt{job, connection, progress, {}};
    for (const Document &document : job.documents) {
        const bool isLast = &document == &job.documents.back();
        const Sent sent = sendDocument(
            attempt, document, sendDocumentRequest(job, progress.id(), document.name(), isLast));
        // Without one of the others the job is incomplete, whatever the server made of it.
        if (sent == Sent::Lost && !isLast)
            return {Sent::Refused, {}};
        if (sent != Sent::Accepted)
            return {sent, attempt.fault};
    }
    return {};
}
