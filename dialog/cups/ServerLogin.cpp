#include "dialog/cups/ServerConnection.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QRegularExpression>

// How a server's demands for TLS and for passwords are met.

namespace {

// libcups would ask on the terminal, which blocks a dialog for ever.
const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

/// What the server offers beside the ways that need no password.
QByteArray passwordSchemes(const QByteArray &challenge)
{
    static const QRegularExpression scheme(
        QStringLiteral(R"re(\b(?:Basic|Digest)\b(?:[\s,]+\w+=(?:"[^"]*"|[^\s,"]+))*)re"),
        QRegularExpression::CaseInsensitiveOption);
    QByteArrayList schemes;
    for (auto found = scheme.globalMatch(QString::fromLatin1(challenge)); found.hasNext();)
        schemes += found.next().captured().toLatin1();
    return schemes.join(", ");
}

} // namespace

void ServerConnection::askNobody()
{
    cupsSetPasswordCB2(noPassword, nullptr);
}

/// Whether others could read what goes to the server.
bool ServerConnection::isReadable() const
{
    return !httpIsEncrypted(m_http.get()) && !httpAddrLocalhost(httpGetAddress(m_http.get()));
}

bool ServerConnection::startEncryption()
{
    return httpEncryption(m_http.get(), HTTP_ENCRYPTION_REQUIRED) == 0 && isTrusted();
}

bool ServerConnection::encrypt()
{
    if (!isReadable() || startEncryption())
        return true;
    endBy(ExchangeEnd::Kind::HttpStatus, HTTP_STATUS_UPGRADE_REQUIRED);
    return false;
}

/// Sends the request and gives the status of HTTP. Where the server demands TLS or credentials, the
/// demand is met and the request is sent again.
int ServerConnection::ask(const char *method, const QByteArray &resource,
                          const std::function<int()> &send)
{
    int status = send();
    for (int attempt = 1; attempt < kMostAttempts && meets(status, method, resource); ++attempt)
        status = send();
    if (status != HTTP_STATUS_UNAUTHORIZED && status != HTTP_STATUS_ERROR)
        m_login.succeed(); // "not found" is said to people who are known
    return status;
}

bool ServerConnection::meets(int demand, const char *method, const QByteArray &resource)
{
    // On a new connection: the rest of the answer may still arrive on the old one.
    if (demand == HTTP_STATUS_UNAUTHORIZED)
        return logIn(method, resource) && connectAnew();
    return demand == HTTP_STATUS_UPGRADE_REQUIRED && connectAnew() && startEncryption();
}

bool ServerConnection::logIn(const char *method, const QByteArray &resource)
{
    if (m_login.wasTried()) {
        // libcups would try what was refused twice more; a new handle knows nothing of it.
        const QByteArray challenge = httpGetField(m_http.get(), HTTP_FIELD_WWW_AUTHENTICATE);
        const bool isEncrypted = httpIsEncrypted(m_http.get()) != 0;
        std::unique_ptr<http_t, HttpCloser> fresh(
            newHandle(isEncrypted ? HTTP_ENCRYPTION_REQUIRED : cupsEncryption(), m_guard));
        if (!fresh)
            return false;
        m_http.swap(fresh);
        if (!connectAnew())
            return false;
        httpSetField(m_http.get(), HTTP_FIELD_WWW_AUTHENTICATE,
                     passwordSchemes(challenge).constData());
    }
    cupsSetPasswordCB2(password, this);
    const int done = cupsDoAuthentication(m_http.get(), method, resource.constData());
    askNobody();
    return done == 0;
}

/// What libcups asks for; it takes a copy at once.
const char *ServerConnection::password(const char *, http_t *, const char *, const char *,
                                       void *connection)
{
    auto &self = *static_cast<ServerConnection *>(connection);
    self.m_guard.unlimitTime(); // people take their time
    const std::optional<Credentials> who = self.m_login.next(self.isReadable(), self.m_guard);
    self.m_guard.limitTime(self.m_timeouts);
    if (!who)
        return nullptr;
    cupsSetUser(who->user.toUtf8().constData());
    return self.m_login.tried().text();
}
