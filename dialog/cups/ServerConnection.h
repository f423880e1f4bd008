#pragma once

#include "dialog/cups/CallGuard.h"
#include "dialog/cups/ServerFault.h"

#include <QtCore/QString>

#include <cups/cups.h>

#include <memory>

struct HttpCloser
{
    void operator()(http_t *http) const { httpClose(http); }
};

struct IppDeleter
{
    void operator()(ipp_t *ipp) const { ippDelete(ipp); }
};
using IppHandle = std::unique_ptr<ipp_t, IppDeleter>;

/// A connection to a print server, for one thread. Every wait on it ends when the guard says so.
class ServerConnection
{
public:
    /// Connects to `server` ("host", "host:port", the path of a socket; null: the user's usual
    /// server) as libcups would. The guard must outlive the connection.
    ServerConnection(const QString &server, CallGuard &guard);
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    bool isConnected() const { return m_http != nullptr; }
    http_t *http() const { return m_http.get(); }
    CallGuard &guard() const { return m_guard; }

    /// The server's name for people.
    QString serverName() const { return m_name; }

    /// Lets the guard end waits on the connection, after something else did for a while.
    void watch();

    /// Sends the request and gives the server's response; null when there was none. Takes the
    /// request.
    IppHandle request(IppHandle request, const QByteArray &resource);

    /// What the last failed call came to. `queue` is for the sentence, null where none was asked
    /// for.
    ServerAnswer lastAnswer(const QString &queue = QString()) const;

private:
    ServerAnswer broken() const;

    CallGuard &m_guard;
    QString m_name;
    std::unique_ptr<http_t, HttpCloser> m_http;
};

/// A request about the queue, with the attributes that every request begins with.
IppHandle queueRequest(ipp_op_t operation, const QString &queue);

/// The path of the queue on its server.
QByteArray queueResource(const QString &queue);

/// The server's name for people.
QString nameOfServer(const QString &server);

/// What is said of a server that was given up.
ServerAnswer silentServer(const QString &server);
