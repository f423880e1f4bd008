#include "dialog/cups/JobSettlement.h"

#include "dialog/cups/JobFate.h"
#include "dialog/cups/JobReadBack.h"

#include <QtCore/QCoreApplication>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace {

constexpr std::chrono::milliseconds kReconnectPause{100};

/// A job at its server, as sentences name it.
struct NamedJob
{
    QString server;
    QString queue;
    int id = 0;
};

Fault endedByServer(const char *text, const NamedJob &job)
{
    return {FaultKind::Refused, QCoreApplication::translate("JobSettlement", text)
                                    .arg(job.server, QString::number(job.id), job.queue)};
}

Fault notCancelled(const QString &why, const NamedJob &job)
{
    return {FaultKind::Unsettled,
            QCoreApplication::translate("JobSettlement",
                                        "%1 Job %2 on %3 could not be cancelled at %4 and may be "
                                        "printed.")
                .arg(why, QString::number(job.id), job.queue, job.server)};
}

/// Whether the server, and nobody else, is the reason.
bool isOfServer(FaultKind kind)
{
    return kind != FaultKind::Cancelled && kind != FaultKind::Document;
}

/// The server has not got the whole job, and prints nothing of it.
Fault cancelledFor(const Fault &why, const QString &queue, int id)
{
    if (!isOfServer(why.kind))
        return why;
    return {why.kind, QCoreApplication::translate("JobSettlement", "Job %1 on %2 was cancelled: %3")
                          .arg(QString::number(id), queue, why.sentence)};
}

/// It is as it was shown, and will not be printed by itself.
QString notReleased(int id, const Fault &why)
{
    return QCoreApplication::translate("JobSettlement",
                                       "The server holds job %1, which could not be released: %2")
        .arg(QString::number(id), why.sentence);
}

/// A connection, and what has become of the job.
struct Asked
{
    std::unique_ptr<ServerConnection> connection;
    JobFate fate = JobFate::Unknown;
};

/// Has the server asked on a new connection, and again where it has gone meanwhile: one that has
/// just crashed still takes connections, and closes them, before it is started again.
Asked askAgain(const JobRequest &request, CallGuard &guard,
               const std::function<JobFate(ServerConnection &)> &ask)
{
    Asked asked;
    do {
        asked.connection = connectAgain(request.server, guard);
        asked.fate = ask(*asked.connection);
        if (asked.connection->lastEnd().kind == ExchangeEnd::Kind::Closed)
            asked.fate = ask(*asked.connection);
    } while (asked.connection->lastEnd().kind == ExchangeEnd::Kind::NotConnected &&
             guard.mayWait());
    return asked;
}

/// Nothing half is printed: what the server has of the job is cancelled. It may be too late for
/// that, where the server has got the whole job.
Result<JobReceipt> cancel(const Fault &why, CallGuard &guard, Sent sent, const JobRequest &request,
                          JobProgress &progress)
{
    const Asked asked = askAgain(request, guard, [&](ServerConnection &connection) {
        return cancelJob(connection, request.queue, progress.id())
                   ? JobFate::Cancelled
                   : askFate(connection, request.queue, progress.id());
    });
    ServerConnection &connection = *asked.connection;
    switch (asked.fate) {
    case JobFate::Cancelled:
    case JobFate::Aborted:
        return cancelledFor(why, request.queue, progress.id());
    case JobFate::Accepted:
        if (sent == Sent::Lost)
            return accept(connection, request, progress);
        break;
    case JobFate::Forgotten:
        if (sent != Sent::Lost)
            return notPrinted(why, request.queue);
        break;
    case JobFate::Unknown:
    case JobFate::Incomplete:
        break;
    }
    return notCancelled(why.sentence, {connection.serverName(), request.queue, progress.id()});
}

/// The answer that decides has not come: the server is asked what it made of the job. None when
/// that does not settle it.
std::optional<Result<JobReceipt>> lookForAnswer(CallGuard &guard, const JobRequest &request,
                                                JobProgress &progress)
{
    const Asked asked = askAgain(request, guard, [&](ServerConnection &one) {
        return askFate(one, request.queue, progress.id());
    });
    ServerConnection &connection = *asked.connection;
    const NamedJob job{connection.serverName(), request.queue, progress.id()};
    switch (asked.fate) {
    case JobFate::Accepted:
        return accept(connection, request, progress);
    case JobFate::Cancelled:
        return endedByServer(
            QT_TRANSLATE_NOOP("JobSettlement", "The print server %1 cancelled job %2 on %3."), job);
    case JobFate::Aborted:
        return endedByServer(
            QT_TRANSLATE_NOOP("JobSettlement", "The print server %1 aborted job %2 on %3."), job);
    case JobFate::Forgotten:
    case JobFate::Unknown:
        return perhapsPrinted(job.server, job.queue, job.id);
    case JobFate::Incomplete:
        break;
    }
    return std::nullopt;
}

} // namespace

std::unique_ptr<ServerConnection> connectAgain(const QString &server, CallGuard &guard)
{
    auto connection = std::make_unique<ServerConnection>(server, guard);
    while (!connection->isConnected() && guard.mayWait()) {
        std::this_thread::sleep_for(kReconnectPause);
        connection = std::make_unique<ServerConnection>(server, guard);
    }
    return connection;
}

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

Fault perhapsPrinted(const QString &server, const QString &queue, int id)
{
    return {FaultKind::Unsettled,
            QCoreApplication::translate("JobSettlement",
                                        "The print server %1 did not say whether it took the job: "
                                        "it may have been printed as job %2 on %3.")
                .arg(server, QString::number(id), queue)};
}

Fault notPrinted(const Fault &why, const QString &queue)
{
    if (!isOfServer(why.kind))
        return why;
    return {why.kind, QCoreApplication::translate("JobSettlement", "Nothing was printed on %1: %2")
                          .arg(queue, why.sentence)};
}

// On connections of their own: the old one may be in the middle of a document. Half of the timeout
// to connect and half to answer: whoever waits for the guard is not out of it.
Result<JobReceipt> settle(const Fault &why, Sent sent, const JobRequest &request,
                          JobProgress &progress, CallGuard &guard)
{
    if (sent == Sent::Lost && !guard.isCancelled()) {
        guard.stampSignOfLife();
        CallGuard looking(guard.timeout() / 2);
        if (const auto settled = lookForAnswer(looking, request, progress))
            return *settled;
    }
    guard.stampSignOfLife();
    CallGuard cancelling(guard.timeout() / 2);
    return cancel(why, cancelling, sent, request, progress);
}
