#include "dialog/cups/JobSettlement.h"

#include "dialog/cups/JobFate.h"
#include "dialog/cups/JobReadBack.h"

#include <QtCore/QCoreApplication>

namespace {

Fault endedByServer(const char *text, const QString &server, int id)
{
    return {FaultKind::Refused,
            QCoreApplication::translate("JobSettlement", text).arg(server, QString::number(id))};
}

Fault notCancelled(const QString &why, const QString &server, int id)
{
    return {FaultKind::Unsettled,
            QCoreApplication::translate("JobSettlement",
                                        "%1 Job %2 could not be cancelled at %3 and may be "
                                        "printed.")
                .arg(why, QString::number(id), server)};
}

/// It is as it was shown, and will not be printed by itself.
QString notReleased(int id, const Fault &why)
{
    return QCoreApplication::translate("JobSettlement",
                                       "The server holds job %1, which could not be released: %2")
        .arg(QString::number(id), why.sentence);
}

/// Nothing half is printed: what the server has of the job is cancelled. It may be too late for
/// that, where the server has got the whole job.
Result<JobReceipt> cancel(const Fault &why, ServerConnection &connection, Sent sent,
                          const JobRequest &request, JobProgress &progress)
{
    if (cancelJob(connection, request.queue, progress.id()))
        return why;
    switch (askFate(connection, request.queue, progress.id())) {
    case JobFate::Cancelled:
    case JobFate::Aborted:
        return why;
    case JobFate::Accepted:
        if (sent == Sent::Lost)
            return accept(connection, request, progress);
        [[fallthrough]];
    case JobFate::Unknown:
    case JobFate::Incomplete:
        break;
    }
    return notCancelled(why.sentence, connection.serverName(), progress.id());
}

/// The answer that decides has not come: the server is asked what it made of the job. None when
/// that does not settle it.
std::optional<Result<JobReceipt>> lookForAnswer(ServerConnection &connection,
                                                const JobRequest &request, JobProgress &progress)
{
    const QString server = connection.serverName();
    switch (askFate(connection, request.queue, progress.id())) {
    case JobFate::Accepted:
        return accept(connection, request, progress);
    case JobFate::Cancelled:
        return endedByServer(
            QT_TRANSLATE_NOOP("JobSettlement", "The print server %1 cancelled job %2."), server,
            progress.id());
    case JobFate::Aborted:
        return endedByServer(
            QT_TRANSLATE_NOOP("JobSettlement", "The print server %1 aborted job %2."), server,
            progress.id());
    case JobFate::Unknown:
        return perhapsPrinted(server, progress.id());
    case JobFate::Incomplete:
        break;
    }
    return std::nullopt;
}

} // namespace

JobReceipt accept(ServerConnection &connection, const JobRequest &request, JobProgress &progress)
{
    progress.setAccepted();
    JobReceipt receipt{progress.id(),
                       readJobBack(connection, request.queue, progress.id(), request.options),
                       request.isOnTrial};
    if (receipt.isOnTrial && receipt.notes.isEmpty()) {
        receipt.isOnTrial = !releaseJob(connection, request.queue, receipt.id);
        if (receipt.isOnTrial)
            receipt.notes += notReleased(receipt.id, connection.lastFault(request.queue));
    }
    return receipt;
}

Fault perhapsPrinted(const QString &server, int id)
{
    return {FaultKind::Unsettled,
            QCoreApplication::translate("JobSettlement",
                                        "The print server %1 did not say whether it took the job: "
                                        "it may have been printed as job %2.")
                .arg(server, QString::number(id))};
}

// On connections of their own: the old one may be in the middle of a document. Half of the timeout
// to connect and half to answer: whoever waits for the guard is not out of it.
Result<JobReceipt> settle(const Fault &why, Sent sent, const JobRequest &request,
                          JobProgress &progress, CallGuard &guard)
{
    if (sent == Sent::Lost && !guard.isCancelled()) {
        guard.stampSignOfLife();
        CallGuard looking(guard.timeout() / 2);
        ServerConnection connection(request.server, looking);
        if (const auto settled = lookForAnswer(connection, request, progress))
            return *settled;
    }
    guard.stampSignOfLife();
    CallGuard cancelling(guard.timeout() / 2);
    ServerConnection connection(request.server, cancelling);
    return cancel(why, connection, sent, request, progress);
}
