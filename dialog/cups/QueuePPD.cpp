#include "dialog/cups/QueuePPD.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/files/TemporaryFile.h"

#include <QtCore/QCoreApplication>

#include <cerrno>
#include <cstring>

namespace {

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

/// What the server says of a queue when it has been asked why there is no PPD.
struct QueueLook
{
    ServerAnswer answer;
    QString firstMember; ///< of a class; null for a printer
};

QueueLook lookAt(ServerConnection &connection, const QString &queue)
{
    IppHandle request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "member-names");
    const IppHandle response = connection.request(std::move(request), queueResource(queue));
    if (!connection.succeeded())
        return {connection.lastAnswer(queue), {}};
    ipp_attribute_t *members = ippFindAttribute(response.get(), "member-names", IPP_TAG_NAME);
    return {{}, QString::fromUtf8(members ? ippGetString(members, 0, nullptr) : nullptr)};
}

/// Why the queue's PPD, which is there, was not fetched.
ServerAnswer failure(const ServerConnection &connection, const QString &queue)
{
    switch (connection.lastEnd().kind) {
    case Kind::TooLarge:
        return {ServerFault::Refused,
                QCoreApplication::translate("Server", "The PPD of the queue %1 is too large.")
                    .arg(queue)};
    case Kind::CutShort:
        return {ServerFault::Unreachable,
                QCoreApplication::translate("Server", "The print server %1 sent only part of the "
                                                      "PPD of the queue %2. Try again.")
                    .arg(connection.serverName(), queue)};
    default:
        return connection.lastAnswer(queue);
    }
}

} // namespace

QString QueuePPD::path() const
{
    return file ? QStringLiteral("/proc/self/fd/%1").arg(file->get()) : QString();
}

QueuePPD fetchQueuePPD(const QString &server, const QString &queue, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    const auto kept = std::make_shared<const FileDescriptor>(unnamedTemporaryFile());
    QFile file;
    if (!kept->isOpen() || !file.open(kept->get(), QIODevice::WriteOnly | QIODevice::Unbuffered))
        return {nullptr,
                answerOf({Kind::NotStored, 0, QString::fromLocal8Bit(std::strerror(errno)), false},
                         connection.serverName(), queue)};
    bool isFetched = fetch(connection, queue, file);
    if (!isFetched && isAbsent(connection)) {
        const QueueLook look = lookAt(connection, queue);
        if (!look.answer.isGood())
            return {nullptr, look.answer};
        isFetched = !look.firstMember.isNull() && fetch(connection, look.firstMember, file);
        if (!isFetched && (look.firstMember.isNull() || isAbsent(connection)))
            return {nullptr,
                    {ServerFault::None,
                     QCoreApplication::translate("Server", "The queue %1 has no PPD.").arg(queue)}};
    }
    if (!isFetched)
        return {nullptr, failure(connection, queue)};
    return {kept, {}};
}
