#include "dialog/printing/PrinterSource.h"

#include "dialog/cups/Destinations.h"
#include "dialog/cups/ServerConnection.h"
#include "dialog/host/HostPaper.h"
#include "dialog/host/PPDSentence.h"

#include <QtCore/QCoreApplication>

#include <utility>

namespace {

void askServer(const PrinterSource &source, CallGuard &guard, FetchedPrinter &fetched)
{
    if (fetched.queue.queue.isEmpty()) {
        const DefaultQueue byServer = serverDefault(source.server, guard);
        fetched.queue = byServer.queue;
        fetched.ppd.answer = byServer.answer;
    }
    if (!fetched.queue.queue.isEmpty())
        fetched.ppd = fetchQueuePPD(source.server, fetched.queue.queue, guard);
    fetched.ppdPath = fetched.ppd.path();
}

} // namespace

FetchedPrinter fetchPrinter(const PrinterSource &source, CallGuard &guard)
{
    FetchedPrinter fetched;
    fetched.queue = source.queue;
    fetched.ppdPath = source.ppdPath;
    if (source.ppdPath.isNull())
        askServer(source, guard, fetched);
    guard.stampSignOfLife();
    if (!fetched.ppdPath.isNull())
        fetched.opened = openPPD(fetched.ppdPath, PPDTexts::InUserLanguage);
    return fetched;
}

FetchedPrinter givenUpPrinter(const PrinterSource &source)
{
    FetchedPrinter none;
    none.queue = source.queue;
    none.ppdPath = source.ppdPath;
    if (source.ppdPath.isNull())
        none.ppd.answer = silentServer(source.server);
    else
        none.opened.error = unreadablePPD(source.ppdPath);
    return none;
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

OpenedPrinter openPrinter(const SessionOptions &options, OpenedPPD ppd,
                          const QList<JobOption> &saved,
                          const std::function<void(HostSession &)> &beforeStart)
{
    HostSession::Opened opened = HostSession::open(options, std::move(ppd));
    if (!opened.session)
        return {nullptr, applySavedOptions(nullptr, saved), opened.ppdError};
    HostSession &session = *opened.session;
    const SavedSettings settings = applySavedOptions(session.ppd(), saved);
    session.pageFormat().paper = markedPaper(session.ppd());
    session.pageFormat().orientation = settings.orientation;
    if (beforeStart)
        beforeStart(session);
    session.start();
    return {std::move(opened.session), settings, QString()};
}
