#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

/// A real cupsd on a free port of the loopback, in a folder of its own, for as long as the object
/// lives. It works for root and for anybody else.
class PrintServer
{
public:
    /// `access` is one more directive, a line, for all that the server gives access to.
    explicit PrintServer(QString access = QString());
    ~PrintServer();

    /// Why there is no server; null when it runs.
    QString fault() const { return m_fault; }

    /// "127.0.0.1:PORT", as velkaro-print -h takes it.
    QString address() const;
    int port() const { return m_port; }
    qint64 processId() const { return m_process.processId(); }
    QString folder() const { return m_folder.path(); }

    /// The path of the socket on which it listens too.
    QString socketPath() const { return folder() + QStringLiteral("/run/socket"); }

    /// Adds a queue whose jobs go to outputOf(queue), with the PPD (null: a raw queue).
    bool addQueue(const QString &queue, const QString &ppd);

    /// Adds a backend of the test's own, a shell script: queues whose device is "NAME:/..." use it.
    bool addBackend(const QString &name, const QByteArray &script);

    QString outputOf(const QString &queue) const;

    /// lpadmin with more options, such as {"-p", "queue", "-o", "..."}.
    bool lpadmin(const QStringList &arguments);

    /// Stops the queue's printing, or its taking jobs.
    bool command(const QString &program, const QStringList &arguments);

    /// The numbers of all jobs of the queue, finished ones too; read over IPP.
    QList<int> jobs(const QString &queue);

    /// Every attribute of the job as text; read over IPP.
    QMap<QString, QString> jobAttributes(const QString &queue, int job);

    /// Waits until the job is over, and gives its job-state; 0 when it never is.
    int waitForJob(const QString &queue, int job);

    /// From holdAnswers() to giveAnswers() the server takes connections and requests and answers
    /// none. The object must not be asked meanwhile.
    void holdAnswers();
    void giveAnswers();

    /// Ends the server; the object can be asked no more, until restart().
    void stop();

    /// Ends it as a crash does: it keeps nothing that it has not written.
    void crash();

    /// Starts it again as it was, with its queues and jobs. False when it does not start.
    bool restart();

    /// How often the server was sent the IPP operation, by its own log.
    qsizetype countOf(const QByteArray &operation) const;

private:
    bool writeConfiguration();
    bool start();

    QString m_access;
    QTemporaryDir m_folder;
    QProcess m_process;
    QString m_fault;
    int m_port = 0;
};

/// A port of the loopback where nobody listens; 0 when the machine gives none.
int freePort();
