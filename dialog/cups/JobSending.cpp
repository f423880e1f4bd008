#include "dialog/cups/JobSending.h"

#include "dialog/cups/OutgoingText.h"

namespace {

constexpr int kPatiencesForAnswer = 3; // to a document: so many times the guard's
constexpr double kAnswerTick = 0.25;   // seconds between two looks at the guard

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
    ServerConnection &connection = attempt.connection;
    const auto size = static_cast<std::size_t>(length);
    if (connection.guard().isCancelled() ||
        cupsWriteRequestData(connection.http(), bytes, size) != HTTP_STATUS_CONTINUE)
        return false;
    connection.guard().stampSignOfLife();
    attempt.progress.add(length);
    return true;
}

/// Who waits for an answer, and from when on a silent server is out of patience.
struct AnswerWait
{
    CallGuard &guard;
    CallGuard::Clock::time_point until;
};

int mayWaitForAnswer(http_t *, void *context)
{
    const auto *wait = static_cast<const AnswerWait *>(context);
    // Whoever watches the guard must not give up before the time is over.
    if (CallGuard::Clock::now() < wait->until)
        wait->guard.stampSignOfLife();
    return wait->guard.mayWait() ? 1 : 0;
}

/// A server may be busy with what it was sent; the answer decides whether the job prints.
Sent takeAnswer(ServerConnection &connection, const QByteArray &resource)
{
    CallGuard &guard = connection.guard();
    AnswerWait wait{guard, CallGuard::Clock::now() + (kPatiencesForAnswer - 1) * guard.patience()};
    httpSetTimeout(connection.http(), kAnswerTick, mayWaitForAnswer, &wait);
    const IppHandle response(cupsGetResponse(connection.http(), resource.constData()));
    connection.watch();
    if (!response)
        return Sent::Lost;
    guard.stampSignOfLife();
    return cupsLastError() <= IPP_STATUS_OK_CONFLICTING ? Sent::Accepted : Sent::Refused;
}

Sent sendDocument(Attempt &attempt, const Document &document, IppHandle request)
{
    const QByteArray resource = queueResource(attempt.job.queue);
    if (cupsSendRequest(attempt.connection.http(), request.get(), resource.constData(),
                        CUPS_LENGTH_VARIABLE) != HTTP_STATUS_CONTINUE)
        return Sent::Refused;
    const Delivery delivery = deliver(
        document, [&](const char *bytes, qint64 length) { return write(attempt, bytes, length); });
    attempt.fault = deliveryFault(document, delivery);
    if (!attempt.fault.isNull())
        return Sent::Changed;
    return delivery == Delivery::Complete ? takeAnswer(attempt.connection, resource)
                                          : Sent::Refused;
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
