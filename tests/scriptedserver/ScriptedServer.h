#pragma once

#include "tests/scriptedserver/ServerSteps.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <mutex>
#include <thread>
#include <vector>

/// What the server does with one kind of request.
///
/// `request` is the name of an IPP operation ("Create-Job"), by which time so much of the body was
/// read as names it; or "GET" or "POST", right after the headers; or "connect", before anything was
/// read, with the request read afterwards unless the steps end the connection.
struct Rule
{
    QByteArray request;
    Steps steps;
    int times = std::numeric_limits<int>::max(); ///< then the next rule for it, or a good answer
};
using Script = QList<Rule>;

/// The names of the requests that create a job, and of those that follow.
QStringList creatingJob(const QStringList &afterwards = {});

/// The same of the program, which prints to the queue "photo": it wants to know the PPD first, and
/// once more right before the job is created.
QStringList printingToPhoto(const QStringList &afterwards = {});

/// A print server on a free port of the loopback that answers by script, and well where the script
/// says nothing (goodAnswer()). It ends with the object, whatever its connections are doing; it
/// serves no more than 100 connections, each for no longer than a minute.
class ScriptedServer
{
public:
    /// With a port that is not 0, on that one.
    explicit ScriptedServer(Script script = {}, int port = 0);
    ~ScriptedServer();

    /// "127.0.0.1:PORT", as velkaro-print -h takes it.
    QString address() const;

    /// What came, in the order of its coming: "GET /printers/photo.ppd", "Create-Job".
    QStringList requests() const;

    /// The bodies of all requests for the operation, as far as they were read.
    QList<QByteArray> bodies(const QString &request) const;

    /// How many connections are being served.
    int openConnections() const;

private:
    struct Request
    {
        QString name;
        QByteArray body;
    };

    void accept();
    void serve(int socket);
    bool serveRequest(ServedConnection &connection);
    bool serveOperation(const QByteArray &operation, ServedConnection &connection);
    Steps stepsFor(const QByteArray &request);
    bool run(const Steps &steps, ServedConnection &connection, const QByteArray &request = {});
    void note(const QString &request);
    void noteBody(const QByteArray &request, const QByteArray &body);

    int m_listener = -1;
    int m_stop = -1; // an eventfd
    int m_port = 0;
    mutable std::mutex m_mutex; // guards what follows
    Script m_script;
    QList<Request> m_requests;
    int m_open = 0;
    std::vector<std::thread> m_connections; // touched by m_acceptor alone while it runs
    std::thread m_acceptor;
};
