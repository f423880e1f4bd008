#pragma once

#include "dialog/host/PPDMarks.h"
#include "tests/printserver/PrintServer.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QStringList>

/// What a filter was given of a job.
struct NotedJob
{
    int copies = 0;
    QMap<QString, QString> options;
    QMap<QString, QString> environment;

    /// What filters that go by the PPD take for marked, in the PPD of the queue.
    QList<PPDMark> marks() const;
};

/// A print server whose queues hand every job to a filter that notes what it is given.
class NotingPrinters
{
public:
    NotingPrinters();

    PrintServer &server() { return m_server; }

    /// A queue with the PPD of a sample printer.
    bool addQueue(const QString &queue, const QString &sample);

    /// Waits for the job to be printed. No options when it was not.
    NotedJob noted(const QString &queue, int job);

private:
    PrintServer m_server;
};

/// The options as a server hands them to a filter, by their names.
QMap<QString, QString> parsedOptions(const QByteArray &argument);
