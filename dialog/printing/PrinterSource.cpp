#include "dialog/printing/PrinterSource.h"

#include "dialog/cups/Destinations.h"
#include "dialog/cups/ServerConnection.h"
#include "dialog/host/HostPaper.h"
#include "dialog/host/PPDSentence.h"
#include "dialog/job/PPDPresets.h"
#include "dialog/job/SavedFiles.h"
#include "dialog/printing/LastUsed.h"
#include "dialog/printing/Presets.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostNamed = 3; // in one sentence

using MaybePPD = Result<std::optional<OpenedPPD>>;

/// The fault of a PPD that was fetched into the file at `path`, as it concerns the queue.
Fault faultOfQueue(const Fault &fault, const QString &path, const QString &queue)
{
    return {
        fault.kind,
        QCoreApplication::translate("PrinterSource", "The PPD of the queue %1 cannot be used. %2")
            .arg(queue, QString(fault.sentence).replace(path, queue + QStringLiteral(".ppd")))};
}

MaybePPD openAt(const QString &path)
{
    Result<OpenedPPD> opened = openPPD(path, PPDTexts::InUserLanguage);
    if (!opened)
        return opened.fault();
    return std::optional(*std::move(opened));
}

Result<QueueName> queueOf(const PrinterSource &source, CallGuard &guard)
{
    Result<QueueName> queue = source.queue;
    if (source.queue.queue.isEmpty())
        queue = serverDefault(source.server, guard);
    if (queue && queue->queue.isEmpty())
        return Fault{
            FaultKind::NoPrinter,
            QCoreApplication::translate("PrinterSource", "There is no printer to print to.")};
    return queue;
}

MaybePPD fetchPPD(const PrinterSource &source, CallGuard &guard, FetchedPrinter &fetched)
{
    const Result<QueueName> queue = queueOf(source, guard);
    if (!queue)
        return queue.fault();
    fetched.queue = *queue;
    const Result<QueuePPD> ppd = fetchQueuePPD(source.server, queue->queue, guard);
    if (!ppd)
        return ppd.fault();
    fetched.kept = *ppd;
    fetched.ppdPath = ppd->path();
    if (fetched.ppdPath.isNull())
        return {};
    guard.stampSignOfLife();
    MaybePPD opened = openAt(fetched.ppdPath);
    if (!opened)
        return faultOfQueue(opened.fault(), fetched.ppdPath, queue->queue);
    return opened;
}

QString noteOnMissing(const PrinterSource &source, const QList<JobOption> &missing)
{
    const QString list = typedSettings(missing);
    if (source.start.kind == StartingSettings::Kind::LastUsed)
        return QCoreApplication::translate("PrinterSource",
                                           "The printer no longer has some of the settings that "
                                           "you used last: %1.")
            .arg(list);
    const QString name =
        source.queue.instance.isNull() ? source.queue.queue : source.queue.instance;
    return QCoreApplication::translate("PrinterSource",
                                       "The printer does not have some of the settings that are "
                                       "saved for %1: %2.")
        .arg(displayText(name), list);
}

} // namespace

FetchedPrinter fetchPrinter(const PrinterSource &source, CallGuard &guard)
{
    FetchedPrinter fetched{source.queue, source.ppdPath, {}, {}};
    fetched.opened =
        source.ppdPath.isNull() ? fetchPPD(source, guard, fetched) : openAt(source.ppdPath);
    return fetched;
}

FetchedPrinter givenUpPrinter(const PrinterSource &source)
{
    const Fault fault =
        source.ppdPath.isNull() ? silentServer(source.server) : unreadablePPD(source.ppdPath);
    return {source.queue, source.ppdPath, {}, fault};
}

QueueName wantedQueue(const QString &queue, const QString &instance)
{
    return queue.isNull() ? usualQueue() : QueueName{queue, instance};
}

QList<JobOption> startingOptions(PrinterSource &source, ppd_file_t *ppd)
{
    using enum StartingSettings::Kind;
    if (source.kept)
        return *source.kept;
    QList<JobOption> options = savedOptions(source.queue);
    const QList<JobOption> lastUsed = source.start.kind == LastUsed
                                          ? lastUsedSettings(source.server, source.queue.queue)
                                          : QList<JobOption>();
    if (source.start.kind == LastUsed && (lastUsed.isEmpty() || !source.queue.instance.isNull()))
        source.start.kind = Saved;
    if (source.start.kind == Printer)
        return {};
    if (source.start.kind == LastUsed) {
        options.removeIf([](const JobOption &option) { return !isPassing(option.name); });
        return options + lastUsed;
    }
    if (source.start.kind == OfPPD)
        for (const PPDPreset &preset : presetsOf(ppd))
            if (preset.name == source.start.name)
                options += preset.options;
    return options;
}

Result<> checkCount(const QList<JobOption> &starting, const PrinterSource &source)
{
    if (starting.size() <= kMostSavedOptions)
        return {};
    return Fault{
        FaultKind::Request,
        QCoreApplication::translate("PrinterSource",
                                    "There are more settings saved for %1 than the %2 that can be "
                                    "used.")
            .arg(displayText(textOf(source.queue)), QString::number(kMostSavedOptions))};
}

QString typedSettings(const QList<JobOption> &settings)
{
    QStringList named;
    for (const JobOption &option : settings.first(std::min<qsizetype>(settings.size(), kMostNamed)))
        named += displayText(option.name.left(40) + u'=' + option.value.left(40));
    return named.join(QCoreApplication::translate("PrinterSource", ", "));
}

QStringList notesOnStart(const PrinterSource &source, const QList<JobOption> &missing)
{
    QStringList notes = source.queue.queue.isEmpty() ? QStringList() : notesOnLpoptions();
    if (!missing.isEmpty() && !source.kept) // else it is told what became of them
        notes += noteOnMissing(source, missing);
    return notes;
}

OpenedPrinter openPrinter(const SessionOptions &options, std::optional<OpenedPPD> ppd,
                          const QList<JobOption> &saved,
                          const std::function<void(HostSession &)> &beforeStart)
{
    if (!ppd)
        return {nullptr, applySavedOptions(nullptr, saved)};
    std::unique_ptr<HostSession> session = HostSession::open(options, *std::move(ppd));
    const SavedSettings settings = applySavedOptions(session->ppd(), saved);
    session->pageFormat().paper = markedPaper(session->ppd());
    session->pageFormat().orientation = settings.orientation;
    QVariantMap ticket = session->ticket().values();
    ticket.insert(settings.ticket);
    session->ticket().setValues(ticket);
    if (beforeStart)
        beforeStart(*session);
    session->start();
    return {std::move(session), settings};
}
