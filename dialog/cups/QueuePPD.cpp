#include "dialog/cups/QueuePPD.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"
#include "dialog/files/TemporaryFile.h"
#include "dialog/work/SystemReason.h"

#include <QtCore/QCoreApplication>

#include <cerrno>

namespace {

// Bytes, as IPP has it. A server cuts a longer path, and answers with some page of its own.
constexpr qsizetype kLongestQueueName = 255;

// libcups' own way (cupsGetPPD3) takes the file of the system's server for any server on this
// machine, and asks one request more.

using Kind = ExchangeEnd::Kind;

bool fetch(ServerConnection &connection, const QString &queue, QFile &file)
{
    return connection.download(queueResource(queue) + ".ppd", file, kLargestPPDAnswer);
}

bool isAbsent(const ServerConnection &connection)
{
    return connection.lastEnd().kind == Kind::HttpStatus &&
           connection.lastEnd().status == HTTP_STATUS_NOT_FOUND;
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

} // namespace

QString QueuePPD::path() const
{
    return file ? QStringLiteral("/proc/self/fd/%1").arg(file->get()) : QString();
}

Result<QueuePPD> fetchQueuePPD(const QString &server, const QString &queue, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    if (queue.toUtf8().size() > kLongestQueueName)
        return faultOf({Kind::HttpStatus, HTTP_STATUS_NOT_FOUND, {}, false},
                       connection.serverName(), shownServerText(queue));
    const auto kept = std::make_shared<const FileDescriptor>(unnamedTemporaryFile());
    QFile file;
    if (!kept->isOpen() || !file.open(kept->get(), QIODevice::WriteOnly | QIODevice::Unbuffered))
        return faultOf({Kind::NotStored, 0, systemReason(errno), false}, connection.serverName(),
                       queue);
    bool isFetched = fetch(connection, queue, file);
    if (!isFetched && isAbsent(connection)) {
        const Result<QString> member = firstMember(connection, queue);
        if (!member)
            return member.fault();
        isFetched = !member->isNull() && fetch(connection, *member, file);
        if (!isFetched && (member->isNull() || isAbsent(connection)))
            return QueuePPD();
    }
    if (!isFetched)
        return failure(connection, queue);
    return QueuePPD{kept};
}

QString missingPPD(const QString &queue)
{
    return QCoreApplication::translate("Server", "The queue %1 has no PPD.").arg(queue);
}
