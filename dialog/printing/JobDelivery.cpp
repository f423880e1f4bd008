#include "dialog/printing/JobDelivery.h"

#include "dialog/files/PathBytes.h"
#include "dialog/job/JobFileReader.h"
#include "dialog/job/JobFileWriter.h"
#include "dialog/job/OutgoingText.h"
#include "dialog/job/SavedJobOptions.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/work/CommandWait.h"

#include <QtCore/QCoreApplication>

namespace {

QString sentence(const char *text)
{
    return QCoreApplication::translate("JobDelivery", text);
}

/// Says on standard error what is about to be sent.
void list(const JobRequest &job)
{
    warn(sentence(QT_TRANSLATE_NOOP("JobDelivery", "Sending \"%1\" to %2."))
             .arg(QString::fromUtf8(outgoingTitle(job.title)), job.queue));
    for (const Document &document : job.documents)
        warn(sentence(QT_TRANSLATE_NOOP("JobDelivery", "Document: %1 (%2 bytes)"))
                 .arg(document.name(), QString::number(document.size())));
    for (const JobOption &option : job.options)
        warn(sentence(QT_TRANSLATE_NOOP("JobDelivery", "Setting: %1=%2"))
                 .arg(option.name, option.value));
}

} // namespace

QString faultOfOptions(const QString &path, const QList<JobOption> &options, bool yes)
{
    for (const JobOption &option : options) {
        const OptionOrigin origin = originOf(option.name);
        if (origin == OptionOrigin::Never)
            return sentence(
                       QT_TRANSLATE_NOOP("JobDelivery",
                                         "%1 is not sent: it sets %2, which no saved job may."))
                .arg(path, option.name);
        if (origin == OptionOrigin::Foreign && !yes)
            return sentence(
                       QT_TRANSLATE_NOOP("JobDelivery",
                                         "%1 is not sent: it sets %2, which Velkaro Print does "
                                         "not write; --yes sends it all the same."))
                .arg(path, option.name);
    }
    return {};
}

ExitStatus statusOf(const ServerAnswer &answer)
{
    switch (answer.fault) {
    case ServerFault::None:
        return ExitStatus::Done;
    case ServerFault::Document:
        return ExitStatus::Document;
    case ServerFault::Cancelled:
        return ExitStatus::Cancelled;
    default:
        return ExitStatus::Server;
    }
}

ExitStatus sendJob(const JobRequest &request, EndSignals &signals)
{
    if (request.queue.isEmpty())
        return failWith(
            ExitStatus::Usage,
            sentence(QT_TRANSLATE_NOOP("JobDelivery", "No queue was named to print to; -d QUEUE "
                                                      "names one, --output FILE keeps the job.")));
    const auto progress = std::make_shared<JobProgress>();
    const std::optional<JobReceipt> answered =
        waitUnlessEnded<JobReceipt>(signals, kServerTimeout, [request, progress](CallGuard &guard) {
            return submitJob(request, guard, progress);
        });
    const JobReceipt receipt = answered ? *answered : givenUpReceipt(request, *progress);
    if (!receipt.answer.isGood())
        return failWith(statusOf(receipt.answer), receipt.answer.sentence);
    report(sentence(QT_TRANSLATE_NOOP("JobDelivery", "%1 accepted job %2."))
               .arg(request.queue, QString::number(receipt.id)));
    for (const QString &note : receipt.notes)
        warn(note);
    return ExitStatus::Done;
}

ExitStatus keepJob(const QString &path, const JobRequest &request, const OutputTerms &terms,
                   EndSignals &signals)
{
    const WrittenJobFile written =
        waitUnlessEnded<WrittenJobFile>(signals, kFileTimeout, [&](CallGuard &guard) {
            JobProgress nobodyFollows;
            return writeJobFile(path, request, terms, guard, nobodyFollows);
        }).value_or(WrittenJobFile());
    switch (written.fault) {
    case JobFileFault::Document:
        return failWith(ExitStatus::Document, written.error);
    case JobFileFault::Output:
        return failWith(ExitStatus::Output, written.error);
    case JobFileFault::Cancelled:
        return failWith(ExitStatus::Cancelled, written.error);
    case JobFileFault::None:
        break;
    }
    report(sentence(QT_TRANSLATE_NOOP("JobDelivery", "The job was written to %1."))
               .arg(shownPath(path)));
    return ExitStatus::Done;
}

ExitStatus sendJobFile(const CommandLine &line, const Document &file, EndSignals &signals)
{
    if (!line.choices.isEmpty() || !line.paper.isNull() || !line.output.isNull())
        return failWith(ExitStatus::Usage,
                        sentence(QT_TRANSLATE_NOOP("JobDelivery",
                                                   "%1 is a saved job: it is sent as it was saved, "
                                                   "without -o, --paper and --output."))
                            .arg(file.path()));
    ReadJobFile read = readJobFile(file);
    if (!read.error.isNull())
        return failWith(ExitStatus::Document, read.error);
    const QString fault = faultOfOptions(file.path(), read.job.options, line.yes);
    if (!fault.isNull())
        return failWith(ExitStatus::Vetoed, fault);
    read.job.server = line.server;
    if (!line.queue.isNull())
        read.job.queue = line.queue;
    if (!read.job.queue.isEmpty())
        list(read.job);
    return sendJob(read.job, signals);
}
