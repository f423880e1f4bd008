#include "dialog/cups/ServerConnection.h"

#include "dialog/cups/Certificates.h"

namespace {

constexpr double kTick = 0.25;        // seconds between two looks at the guard
constexpr int kLongestConnect = 5000; // ms
constexpr auto kLocalServer = "localhost";

int mayWaitOn(http_t *, void *guard)
{
    return static_cast<CallGuard *>(guard)->mayFinish() ? 1 : 0;
}

/// Has libcups take the server for this thread's own, its port included.
void useServer(const QString &server)
{
    cupsSetServer(nullptr); // a name without a port would leave the former one's port
    if (!server.isNull())
        cupsSetServer(server.toUtf8().constData());
}

bool closesConnection(http_t *http)
{
    return qstricmp(httpGetField(http, HTTP_FIELD_CONNECTION), "close") == 0;
}

} // namespace

ServerConnection::ServerConnection(const QString &server, CallGuard &guard)
    : m_guard(guard), m_name(nameOfServer(server)), m_watch(guard), m_login(m_name)
{
    askNobody();
    m_http.reset(newHandle(cupsEncryption(), guard));
    if (m_http && !connectAnew())
        m_http.reset();
    if (!m_http)
        endBy(ExchangeEnd::Kind::NotConnected);
}

http_t *ServerConnection::newHandle(http_encryption_t encryption, CallGuard &guard)
{
    http_t *http =
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, encryption, 1, 0, nullptr);
    if (http)
        httpSetTimeout(http, kTick, mayWaitOn, &guard);
    return http;
}

bool ServerConnection::connectAnew()
{
    m_isSpent = false;
    const int timeout = static_cast<int>(m_guard.timeout().count());
    if (httpReconnect2(m_http.get(), qMin(timeout, kLongestConnect), m_guard.cancelFlag()) != 0)
        return false;
    m_watch.watch(httpGetFd(m_http.get()));
    m_guard.stampSignOfLife();
    return isTrusted();
}

/// Before anything is sent.
bool ServerConnection::isTrusted()
{
    m_isUntrusted = !isKnownServer(m_http.get(), m_name);
    return !m_isUntrusted;
}

/// Makes sure of a connection for a request and all of its answer.
bool ServerConnection::begin(int timeouts)
{
    m_end = {};
    if (!m_http || !m_guard.mayWait()) {
        endBy(ExchangeEnd::Kind::NotConnected);
        return false;
    }
    m_login.begin();
    m_guard.stampSignOfLife();
    m_guard.limitTime(m_timeouts = timeouts);
    // A connection that has something to read before a request was sent has been closed.
    const bool isOver = m_isSpent || closesConnection(m_http.get()) || httpWait(m_http.get(), 0);
    if (!isOver || connectAnew())
        return true;
    endBy(ExchangeEnd::Kind::NotConnected);
    return false;
}

QString nameOfServer(const QString &server)
{
    useServer(server);
    const QString host = QString::fromUtf8(cupsServer());
    if (server.startsWith(u'/'))
        return server;
    return host.startsWith(u'/') ? QString::fromLatin1(kLocalServer)
                                 : QStringLiteral("%1:%2").arg(host).arg(ippPort());
}

Fault silentServer(const QString &server)
{
    return faultOf({ExchangeEnd::Kind::Silent, 0, {}, false}, nameOfServer(server), {});
}
