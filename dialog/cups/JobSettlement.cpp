#include "dialog/cups/JobSettlement.h"

#include "dialog/cups/JobFate.h"
#include "dialog/cups/JobReadBack.h"

#include <QtCore/QCoreApplication>

namespace {

ServerAnswer endedByServer(const char *text, const QString &server, int id)
{
    return {ServerFault::Refused,
            QCoreApplication::translate("JobSettlement", text).arg(server, QString::number(id))};
}

ServerAnswer notCancelled(const QString &why, const QString &server, int id)
{
    return {ServerFault::Unsettled,
            QCoreApplication::translate("JobSettlement",
                                        "%1 Job %2 could not be cancelled at %3 and may be "
                                        "printed.")
                .arg(why, QString::number(id), server)};
}

/// Cancels the job at the server, so that no part of it is printed. That can come too late where
/// the server has the whole job: it counts as accepted then.
void cancel(JobReceipt &receipt, ServerConnection &connection, Sent sent, const JobRequest &request,
            JobProgress &progress)
{
    if (cancelJob(connection, request.queue, receipt.id))
        return;
    switch (askFate(connection, request.queue, receipt.id)) {
    case JobFate::Cancelled:
    case JobFate::Aborted:
        return;
    case JobFate::Accepted:
        if (sent == Sent::Lost) {
            accept(receipt, connection, request, progress);
            return;
        }
        [[fallthrough]];
    case JobFate::Unknown:
    case JobFate::Incomplete:
        receipt.answer = notCancelled(receipt.answer.sentence, connection.serverName(), receipt.id);
    }
}

/// Asks the server for the fate of a job whose last answer was lost. True when that is an answer,
/// and the receipt has it.
bool lookForAnswer(JobReceipt &receipt, ServerConnection &connection, const JobRequest &request,
                   JobProgress &progress)
{
    const QString server = connection.serverName();
    switch (askFate(connection, request.queue, receipt.id)) {
    case JobFate::Accepted:
        accept(receipt, connection, request, progress);
        return true;
    case JobFate::Cancelled:
        receipt.answer = endedByServer(
            QT_TRANSLATE_NOOP("JobSettlement", "The print server %1 cancelled job %2."), server,
            receipt.id);
        return true;
    case JobFate::Aborted:
        receipt.answer =
            endedByServer(QT_TRANSLATE_NOOP("JobSettlement", "The print server %1 aborted job %2."),
                          server, receipt.id);
        return true;
    case JobFate::Unknown:
        receipt.answer = perhapsPrinted(server, receipt.id);
        return true;
    case JobFate::Incomplete:
        break;
    }
    return false;
}

} // namespace

void accept(JobReceipt &receipt, ServerConnection &connection, const JobRequest &request,
            JobProgress &progress)
{
    progress.setAccepted();
    receipt.answer = {};
    receipt.notes = readJobBack(connection, request.queue, receipt.id, request.options);
}

ServerAnswer perhapsPrinted(const QString &server, int id)
{
    return {ServerFault::Unsettled,
            QCoreApplication::translate("JobSettlement",
                                        "The print server %1 did not say whether it took the job: "
                                        "it may have been printed as job %2.")
                .arg(server, QString::number(id))};
}

// New connections, since the old one may be in the middle of a document. Each has half of the
// timeout to connect and half to answer, so that whoever waits for the outer guard does not give up
// first.
void settle(JobReceipt &receipt, Sent sent, const JobRequest &request, JobProgress &progress,
            CallGuard &guard)
{
    if (sent == Sent::Lost && !guard.isCancelled()) {
        guard.stampSignOfLife();
        CallGuard looking(guard.timeout() / 2);
        ServerConnection connection(request.server, looking);
        if (lookForAnswer(receipt, connection, request, progress))
            return;
    }
    guard.stampSignOfLife();
    CallGuard cancelling(guard.timeout() / 2);
    ServerConnection connection(request.server, cancelling);
    cancel(receipt, connection, sent, request, progress);
}
