#include "dialog/cups/QueuePPD.h"

#include "dialog/cups/ServerConnection.h"

#include <QtCore/QCoreApplication>

#include <array>

namespace {

// libcups' own way (cupsGetPPD3) takes the file of the system's server for any server on this
// machine, and asks one request more.

constexpr qint64 kLargestPPD = 16LL * 1024 * 1024; // more than openPPD() takes
constexpr int kMostAttempts = 3;                   // a second one after an upgrade to TLS

enum class Download { Done, Absent, TooLarge, Failed };

QString sentence(const char *text)
{
    return QCoreApplication::translate("Server", text);
}

Download readBody(ServerConnection &connection, QIODevice &file)
{
    std::array<char, 65536> buffer{};
    ssize_t length = 0;
    while ((length = httpRead2(connection.http(), buffer.data(), buffer.size())) > 0) {
        connection.guard().stampSignOfLife();
        if (file.pos() + length > kLargestPPD)
            return Download::TooLarge;
        if (file.write(buffer.data(), length) != length)
            return Download::Failed;
    }
    return length == 0 ? Download::Done : Download::Failed;
}

http_status_t ask(http_t *http, const QByteArray &resource)
{
    httpClearFields(http);
    if (httpGet(http, resource.constData()) != 0 &&
        (httpReconnect2(http, 5000, nullptr) != 0 || httpGet(http, resource.constData()) != 0))
        return HTTP_STATUS_ERROR;
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE)
        status = httpUpdate(http);
    return status;
}

Download download(ServerConnection &connection, const QByteArray &resource, QIODevice &file)
{
    http_t *http = connection.http();
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        const http_status_t status = ask(http, resource);
        if (status == HTTP_STATUS_OK)
            return readBody(connection, file);
        httpFlush(http);
        if (status == HTTP_STATUS_NOT_FOUND)
            return Download::Absent;
        if (status != HTTP_STATUS_UPGRADE_REQUIRED)
            return Download::Failed;
        httpEncryption(http, HTTP_ENCRYPTION_REQUIRED);
    }
    return Download::Failed;
}

/// What the server says of a queue whose PPD it does not have.
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
    if (!response || cupsLastError() > IPP_STATUS_OK_CONFLICTING)
        return {connection.lastAnswer(queue), {}};
    ipp_attribute_t *members = ippFindAttribute(response.get(), "member-names", IPP_TAG_NAME);
    return {{}, QString::fromUtf8(members ? ippGetString(members, 0, nullptr) : nullptr)};
}

QueuePPD withoutPPD(ServerFault fault, const char *text, const QString &queue)
{
    return {nullptr, {fault, sentence(text).arg(queue)}};
}

} // namespace

QueuePPD fetchQueuePPD(const QString &server, const QString &queue, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    if (!connection.isConnected())
        return {nullptr, connection.lastAnswer(queue)};
    const auto file = std::make_shared<QTemporaryFile>();
    if (!file->open())
        return withoutPPD(ServerFault::Refused,
                          QT_TRANSLATE_NOOP("Server", "There is no room in the temporary folder "
                                                      "for the PPD of the queue %1."),
                          queue);
    Download done = download(connection, queueResource(queue) + ".ppd", *file);
    if (done == Download::Absent) {
        const QueueLook look = lookAt(connection, queue);
        if (!look.answer.isGood())
            return {nullptr, look.answer};
        if (!look.firstMember.isNull())
            done = download(connection, queueResource(look.firstMember) + ".ppd", *file);
    }
    switch (done) {
    case Download::Done:
        file->close();
        return {file, {}};
    case Download::Absent:
        return withoutPPD(ServerFault::None,
                          QT_TRANSLATE_NOOP("Server", "The queue %1 has no PPD."), queue);
    case Download::TooLarge:
        return withoutPPD(ServerFault::Refused,
                          QT_TRANSLATE_NOOP("Server", "The PPD of the queue %1 is too large."),
                          queue);
    case Download::Failed:
        break;
    }
    return {nullptr, connection.lastAnswer(queue)};
}
