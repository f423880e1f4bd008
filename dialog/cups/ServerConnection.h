#pragma once

#include "dialog/cups/AnswerBody.h"
#include "dialog/cups/IppAnswer.h"
#include "dialog/cups/Passwords.h"
#include "dialog/cups/ServerLimits.h"
#include "dialog/cups/ServerSentences.h"
#include "dialog/cups/SocketWatch.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/Fault.h"

#include <QtCore/QFile>
#include <QtCore/QString>

#include <cups/cups.h>

#include <functional>
#include <memory>

/// The dates in an answer, as HTTP writes them; empty where the server says none.
struct HttpDates
{
    QByteArray now;
    QByteArray modified; ///< when what was fetched was changed last
};

struct HttpCloser
{
    void operator()(http_t *http) const { httpClose(http); }
};

/// A connection to a print server, for one thread. Every wait on it ends when the guard says so,
/// and what it brings is limited in time and size (ServerLimits.h); only looking up the server's
/// name cannot be interrupted.
///
/// Redirections are not followed. TLS is used where the user or the server asks for it, and a
/// server that shows another certificate than before gets nothing. A password is sent where the
/// server wants one and somebody has said it (Passwords.h).
class ServerConnection
{
public:
    /// Connects to `server` ("host", "host:port", the path of a socket; null: the user's usual
    /// server) as libcups would. The guard must outlive the connection.
    ServerConnection(const QString &server, CallGuard &guard);
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    bool isConnected() const { return m_http != nullptr; }
    CallGuard &guard() const { return m_guard; }

    /// The server's name for people.
    QString serverName() const { return m_name; }

    /// Encrypts the connection from now on, where others could read what goes over it. False, with
    /// lastFault(), when that cannot be done.
    bool encrypt();

    /// Sends the request and gives the server's answer, of whatever status; null when there was
    /// none. An answer that is whole counts, whatever became of the connection after it. Takes the
    /// request.
    IppHandle request(IppHandle request, const QByteArray &resource,
                      int timeouts = kTimeoutsPerExchange);

    /// The same for a request that is followed by data. The order of calls: beginUpload() sends the
    /// request, upload() the next part of the data, any number of times, and endUpload() gives the
    /// answer. False: the server takes no more, and the upload is over.
    bool beginUpload(const IppHandle &request, const QByteArray &resource);
    bool upload(const char *data, qint64 size);
    IppHandle endUpload();

    /// Fetches what stands at the resource into the open file. True when it is all there. Where it
    /// was not changed since `since` (null: whenever that was), the server ends with
    /// HTTP_STATUS_NOT_MODIFIED instead.
    bool download(const QByteArray &resource, QFile &file, qint64 largest,
                  const QByteArray &since = {});

    /// The dates of what was fetched last.
    HttpDates lastDates() const;

    /// How the last exchange ended.
    const ExchangeEnd &lastEnd() const { return m_end; }

    /// Whether the last exchange ended with an answer that reports success.
    bool succeeded() const;

    /// The fault of the last exchange and its sentence. Where the answer reported success and yet
    /// did not hold what was asked for, that is the fault. `queue` is the queue that the sentence
    /// names; null where the request was about none.
    Fault lastFault(const QString &queue = QString()) const;

private:
    /// Has libcups ask nobody for passwords.
    static void askNobody();
    /// Not connected yet: with the guard in place, a handshake for TLS waits no longer than it
    /// says.
    static http_t *newHandle(http_encryption_t encryption, CallGuard &guard);
    bool connectAnew();
    bool begin(int timeouts);
    int ask(const char *method, const QByteArray &resource, const std::function<int()> &send);
    bool meets(int demand, const char *method, const QByteArray &resource);
    bool logIn(const char *method, const QByteArray &resource);
    bool isReadable() const;
    bool startEncryption();
    bool isTrusted();
    static const char *password(const char *prompt, http_t *http, const char *method,
                                const char *resource, void *connection);
    bool post(ipp_t *request, const QByteArray &resource, bool dataFollow);
    int status();
    int goAhead();
    void takeRefusal(int status);
    bool isOk(int status);
    IppHandle readAnswer(int status);
    void endBy(ExchangeEnd::Kind kind, int status = 0);
    void endByTransport();
    void endBySending();
    void endByBody(BodyEnd end, const QIODevice &to);

    CallGuard &m_guard;
    QString m_name;
    SocketWatch m_watch;
    std::unique_ptr<http_t, HttpCloser> m_http;
    Login m_login;
    int m_timeouts = 0;         ///< that the exchange has in all
    bool m_isSpent = false;     ///< an exchange was left in the middle: the next one connects anew
    bool m_isUntrusted = false; ///< it has shown another certificate than before
    ExchangeEnd m_end;
};

/// The server's name for people: host and port ("print.example:631"), the path of a socket that
/// somebody has named, or "localhost" where it is reached by this machine's usual one.
QString nameOfServer(const QString &server);

/// What is said of a server that was given up.
Fault silentServer(const QString &server);
