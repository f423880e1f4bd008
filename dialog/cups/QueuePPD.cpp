#include "dialog/cups/QueuePPD.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"
#include "dialog/files/TemporaryFile.h"
#include "dialog/host/PPDFile.h"
#include "dialog/work/SystemReason.h"

#include <QtCore/QCoreApplication>

#include <cerrno>

namespace {

// Bytes, as IPP has it. A server cuts a longer path, and answers with some page of its own.
constexpr qsizetype kLongestQueueName = 255;

// libcups' own way (cupsGetPPD3) takes the file of the system's server for any server on this
// machine, and asks one request more.

using Kind = ExchangeEnd::Kind;

/// Where the queue itself has its PPD.
QByteArray resourceOf(const QString &queue)
{
    return queueResource(queue) + ".ppd";
}

/// Fetches it from the resource into the file, unless it is the known one.
bool fetch(ServerConnection &connection, const QByteArray &resource, const QueuePPD &known,
           QFile &file)
{
    return connection.download(resource, file, kLargestPPDAnswer,
                               resource == known.resource ? known.version : QByteArray());
}

bool endedWith(const ServerConnection &connection, http_status_t status)
{
    return connection.lastEnd().kind == Kind::HttpStatus && connection.lastEnd().status == status;
}

bool isAbsent(const ServerConnection &connection)
{
    return endedWith(connection, HTTP_STATUS_NOT_FOUND);
}

/// Servers count seconds: within the one in which the file was changed last it may change again.
/// With its length, which cupsd compares as well.
QByteArray versionOf(const HttpDates &dates, qint64 size)
{
    const bool isSettled =
        !dates.modified.isEmpty() &&
        httpGetDateTime(dates.modified.constData()) < httpGetDateTime(dates.now.constData());
    return isSettled ? dates.modified + "; length=" + QByteArray::number(size) : QByteArray();
}

/// The first member of the class whose PPD the server does not have; null for a printer.
Result<QString> firstMember(ServerConnection &connection, const QString &queue)
{
    IppHandle request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "member-names");
    const IppHandle response = connection.request(std::move(request), queueResource(queue));
    if (!connection.succeeded())
        return connection.lastFault(queue);
    ipp_attribute_t *members = ippFindAttribute(response.get(), "member-names", IPP_TAG_NAME);
    return QString::fromUtf8(members ? ippGetString(members, 0, nullptr) : nullptr);
}

/// Why the queue's PPD, which is there, was not fetched.
Fault failure(const ServerConnection &connection, const QString &queue)
{
    switch (connection.lastEnd().kind) {
    case Kind::TooLarge:
        return {FaultKind::Refused,
                QCoreApplication::translate("Server", "The PPD of the queue %1 is too large.")
                    .arg(queue)};
    case Kind::CutShort:
        return {FaultKind::Unreachable,
                QCoreApplication::translate("Server", "The print server %1 sent only part of the "
                                                      "PPD of the queue %2. Try again.")
                    .arg(connection.serverName(), queue)};
    default:
        return connection.lastFault(queue);
    }
}

/// The queue's PPD; the known one where that is still it.
Result<QueuePPD> fetchUnlessKnown(ServerConnection &connection, const QString &queue,
                                  const QueuePPD &known)
{
    const auto kept = std::make_shared<const FileDescriptor>(unnamedTemporaryFile());
    QFile file;
    if (!kept->isOpen() || !file.open(kept->get(), QIODevice::WriteOnly | QIODevice::Unbuffered))
        return faultOf({Kind::NotStored, 0, systemReason(errno), false}, connection.serverName(),
                       queue);
    QByteArray resource = resourceOf(queue);
    bool isFetched = fetch(connection, resource, known, file);
    if (!isFetched && isAbsent(connection)) {
        const Result<QString> member = firstMember(connection, queue);
        if (!member)
            return member.fault();
        resource = resourceOf(*member);
        isFetched = !member->isNull() && fetch(connection, resource, known, file);
        if (!isFetched && (member->isNull() || isAbsent(connection)))
            return QueuePPD();
    }
    if (isFetched)
        return QueuePPD{kept, resource, versionOf(connection.lastDates(), file.size())};
    return endedWith(connection, HTTP_STATUS_NOT_MODIFIED) ? Result<QueuePPD>(known)
                                                           : failure(connection, queue);
}

} // namespace

Result<QueuePPD> fetchQueuePPD(const QString &server, const QString &queue, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    if (queue.toUtf8().size() > kLongestQueueName)
        return faultOf({Kind::HttpStatus, HTTP_STATUS_NOT_FOUND, {}, false},
                       connection.serverName(), shownServerText(queue));
    return fetchUnlessKnown(connection, queue, {});
}

Result<bool> isExchanged(ServerConnection &connection, const QString &queue, const QueuePPD &known)
{
    const Result<QueuePPD> now = fetchUnlessKnown(connection, queue, known);
    if (!now)
        return now.fault();
    if (!now->file || !known.file)
        return now->file != known.file;
    return now->file != known.file && !isSameText(*now->file, *known.file);
}

Result<bool> isExchanged(const QString &server, const QString &queue, const QueuePPD &known,
                         CallGuard &guard)
{
    ServerConnection connection(server, guard);
    return isExchanged(connection, queue, known);
}

Fault exchangedPPD(const QString &queue)
{
    return {FaultKind::Exchanged,
            QCoreApplication::translate("Server", "The queue %1 was set up anew on the print "
                                                  "server: it has another PPD, or other defaults.")
                .arg(queue)};
}

QString missingPPD(const QString &queue)
{
    return QCoreApplication::translate("Server", "The queue %1 has no PPD.").arg(queue);
}
