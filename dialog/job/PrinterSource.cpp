#include "dialog/job/PrinterSource.h"

#include "dialog/cups/Destinations.h"
#include "dialog/host/HostPaper.h"

#include <QtCore/QCoreApplication>

FetchedPrinter fetchPrinter(const PrinterSource &source, CallGuard &guard)
{
    FetchedPrinter fetched;
    fetched.queue = source.queue;
    if (fetched.queue.queue.isEmpty()) {
        const DefaultQueue byServer = serverDefault(source.server, guard);
        fetched.queue = byServer.queue;
        fetched.ppd.answer = byServer.answer;
    }
    if (!fetched.queue.queue.isEmpty())
        fetched.ppd = fetchQueuePPD(source.server, fetched.queue.queue, guard);
    return fetched;
}

QueueName wantedQueue(const QString &queue, const QString &instance)
{
    return queue.isNull() ? usualQueue() : QueueName{queue, instance};
}

QString errorOfQueue(const QString &error, const QString &path, const QString &queue)
{
    return QCoreApplication::translate("PrinterSource",
                                       "The PPD of the queue %1 cannot be used. %2")
        .arg(queue, QString(error).replace(path, queue + QStringLiteral(".ppd")));
}

OpenedPrinter openPrinter(const SessionOptions &options, const QList<JobOption> &saved,
                          const std::function<void(HostSession &)> &beforeStart)
{
    HostSession::Opened opened = HostSession::open(options);
    if (!opened.session) {
        return {nullptr, applySavedOptions(nullptr, saved), opened.ppdError};
    }
    HostSession &session = *opened.session;
    ppdLocalize(session.ppd());
    const SavedSettings settings = applySavedOptions(session.ppd(), saved);
    session.pageFormat().paper = markedPaper(session.ppd());
    session.pageFormat().orientation = settings.orientation;
    if (beforeStart)
        beforeStart(session);
    session.start();
    return {std::move(opened.session), settings, QString()};
}
