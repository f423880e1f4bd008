#include "dialog/cups/ServerConnection.h"

#include "dialog/cups/OutgoingText.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QUrl>

#include <cerrno>
#include <cstring>

namespace {

constexpr double kTick = 0.25;        // seconds between two looks at the guard
constexpr int kLongestConnect = 5000; // ms
constexpr auto kLocalServer = "localhost";

QString sentence(const char *text)
{
    return QCoreApplication::translate("Server", text);
}

int mayWaitOn(http_t *, void *guard)
{
    return static_cast<CallGuard *>(guard)->mayWait() ? 1 : 0;
}

// libcups would ask on the terminal, which blocks a dialog for ever.
const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

/// What the server said, ended like a sentence.
QString lastErrorSentence()
{
    const QString text = QString::fromUtf8(cupsLastErrorString()).simplified();
    return text.endsWith(u'.') ? text : text + u'.';
}

ServerFault faultOf(ipp_status_t status)
{
    if (status <= IPP_STATUS_OK_CONFLICTING) // the transport failed, not the request
        return ServerFault::Unreachable;
    switch (status) {
    case IPP_STATUS_ERROR_NOT_FOUND:
        return ServerFault::NotFound;
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
        return ServerFault::NeedsPassword;
    case IPP_STATUS_ERROR_INTERNAL:
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
        return ServerFault::Unreachable;
    default:
        return ServerFault::Refused;
    }
}

} // namespace

ServerConnection::ServerConnection(const QString &server, CallGuard &guard) : m_guard(guard)
{
    cupsSetServer(server.isNull() ? nullptr : server.toUtf8().constData());
    cupsSetPasswordCB2(noPassword, nullptr);
    m_name = nameOfServer(server);
    const int patience = static_cast<int>(guard.patience().count());
    m_http.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                              qMin(patience, kLongestConnect), guard.cancelFlag()));
    if (!m_http)
        return;
    watch();
    guard.stampSignOfLife();
}

void ServerConnection::watch()
{
    httpSetTimeout(m_http.get(), kTick, mayWaitOn, &m_guard);
}

IppHandle ServerConnection::request(IppHandle request, const QByteArray &resource)
{
    IppHandle response(cupsDoRequest(m_http.get(), request.release(), resource.constData()));
    if (response)
        m_guard.stampSignOfLife();
    return response;
}

ServerAnswer ServerConnection::broken() const
{
    // Of a connection that was never made, libcups says "Host is down" whatever happened.
    if (!m_http)
        return {ServerFault::Unreachable,
                sentence(QT_TRANSLATE_NOOP("Server", "The print server %1 cannot be reached."))
                    .arg(m_name)};
    const int error = httpError(m_http.get());
    return {ServerFault::Unreachable,
            sentence(QT_TRANSLATE_NOOP("Server", "The print server %1 broke off: %2."))
                .arg(m_name, QString::fromLocal8Bit(std::strerror(error ? error : EPIPE)))};
}

ServerAnswer ServerConnection::lastAnswer(const QString &queue) const
{
    if (m_guard.isCancelled())
        return {ServerFault::Cancelled,
                sentence(QT_TRANSLATE_NOOP("Server", "Printing was cancelled."))};
    if (m_http && m_guard.isOutOfPatience())
        return silentServer(m_name);
    const ServerFault fault = m_http ? faultOf(cupsLastError()) : ServerFault::Unreachable;
    switch (fault) {
    case ServerFault::NotFound:
        return {fault, sentence(QT_TRANSLATE_NOOP("Server", "The print server %1 has no queue %2."))
                           .arg(m_name, queue)};
    case ServerFault::NeedsPassword:
        return {fault,
                sentence(QT_TRANSLATE_NOOP("Server", "The print server %1 lets nobody print to %2 "
                                                     "without a password."))
                    .arg(m_name, queue)};
    case ServerFault::Refused:
        return {fault, sentence(QT_TRANSLATE_NOOP("Server", "The print server %1 refused: %2"))
                           .arg(m_name, lastErrorSentence())};
    default:
        return broken();
    }
}

IppHandle queueRequest(ipp_op_t operation, const QString &queue)
{
    IppHandle request(ippNewRequest(operation));
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, kLocalServer, 0,
                     "/printers/%s", queue.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 outgoingText(QString::fromLocal8Bit(cupsUser()), "anonymous").constData());
    return request;
}

QByteArray queueResource(const QString &queue)
{
    return "/printers/" + QUrl::toPercentEncoding(queue);
}

QString nameOfServer(const QString &server)
{
    const QString name = server.isNull() ? QString::fromUtf8(cupsServer()) : server;
    return name.startsWith(u'/') ? QLatin1String(kLocalServer) : name;
}

ServerAnswer silentServer(const QString &server)
{
    const QString name = nameOfServer(server);
    return {
        ServerFault::Silent,
        sentence(QT_TRANSLATE_NOOP("Server", "The print server %1 does not answer.")).arg(name)};
}
