#include "dialog/cups/Certificates.h"
#include "dialog/cups/ServerConnection.h"

#include <cerrno>

// How an exchange has ended, and what is said of it.

using Kind = ExchangeEnd::Kind;

void ServerConnection::endBy(Kind kind, int status)
{
    m_isSpent = true;
    m_end.status = status;
    if (m_guard.isCancelled())
        m_end.kind = Kind::Cancelled;
    else if (m_http && m_guard.hasTimedOut())
        m_end.kind = Kind::Silent;
    else if (m_http && m_guard.isOutOfTime())
        m_end.kind = Kind::TooSlow;
    else
        m_end.kind = m_isUntrusted ? Kind::OtherCertificate : kind;
    if (m_end.kind == Kind::OtherCertificate)
        m_end.text = certificatePath(m_name);
}

void ServerConnection::endByTransport()
{
    const int error = httpError(m_http.get());
    if (error == 0 || error == EINVAL) // no fault of the connection: libcups cannot read the answer
        endBy(Kind::Unreadable);
    else if (error == EPIPE || error == ECONNRESET)
        endBy(Kind::Closed);
    else
        endBy(Kind::Broken, error);
}

/// libcups keeps no error of a connection that was reset while it wrote.
void ServerConnection::endBySending()
{
    if (httpError(m_http.get()) == 0)
        endBy(Kind::Closed);
    else
        endByTransport();
}

/// Whether the status of HTTP is 200; notes the fault otherwise.
bool ServerConnection::isOk(int status)
{
    if (status == HTTP_STATUS_ERROR || status == HTTP_STATUS_CONTINUE)
        endByTransport();
    else if (status == HTTP_STATUS_UNAUTHORIZED && m_login.wasTried())
        endBy(Kind::WrongPassword);
    else if (status != HTTP_STATUS_OK)
        endBy(Kind::HttpStatus, status);
    return status == HTTP_STATUS_OK;
}

void ServerConnection::endByBody(BodyEnd end, const QIODevice &to)
{
    switch (end) {
    case BodyEnd::Whole:
        return;
    case BodyEnd::TooLarge:
        return endBy(Kind::TooLarge);
    case BodyEnd::NotStored:
        endBy(Kind::NotStored);
        m_end.text = to.errorString();
        return;
    case BodyEnd::CutShort:
    case BodyEnd::TooLate:
        return endBy(Kind::CutShort);
    }
}

bool ServerConnection::succeeded() const
{
    return m_end.kind == Kind::Answered && isSuccess(m_end.status);
}

Fault ServerConnection::lastFault(const QString &queue) const
{
    ExchangeEnd end = m_end;
    if (succeeded())
        end.kind = Kind::Unreadable;
    return faultOf(end, m_name, queue);
}
