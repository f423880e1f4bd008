#include "dialog/job/JobDelivery.h"

#include "dialog/cups/JobFileReader.h"
#include "dialog/cups/JobFileWriter.h"
#include "dialog/cups/ServerCall.h"
#include "dialog/job/CommandOutput.h"

#include <QtCore/QCoreApplication>

using enum ExitStatus;

namespace {

QString sentence(const char *text)
{
    return QCoreApplication::translate("JobDelivery", text);
}

} // namespace

ExitStatus statusOf(const ServerAnswer &answer)
{
    switch (answer.fault) {
    case ServerFault::None:
        return Done;
    case ServerFault::Document:
        return Document;
    case ServerFault::Cancelled:
        return Cancelled;
    default:
        return Server;
    }
}

ExitStatus sendJob(const JobRequest &request)
{
    if (request.queue.isEmpty())
        return failWith(Usage, sentence(QT_TRANSLATE_NOOP(
                                   "JobDelivery", "No queue was named to print to; -d QUEUE "
                                                  "names one, --output FILE keeps the job.")));
    const JobReceipt receipt =
        waitForServer<JobReceipt>(kServerPatience, [request](CallGuard &guard) {
            return submitJob(request, guard);
        }).value_or(givenUpReceipt(request));
    if (!receipt.answer.isGood())
        return failWith(statusOf(receipt.answer), receipt.answer.sentence);
    report(sentence(QT_TRANSLATE_NOOP("JobDelivery", "%1 accepted job %2."))
               .arg(request.queue, QString::number(receipt.id)));
    for (const QString &note : receipt.notes)
        warn(note);
    return Done;
}

ExitStatus keepJob(const QString &path, const JobRequest &request)
{
    const WrittenJobFile written = writeJobFile(path, request);
    switch (written.fault) {
    case JobFileFault::Document:
        return failWith(Document, written.error);
    case JobFileFault::Output:
        return failWith(Output, written.error);
    case JobFileFault::None:
        break;
    }
    report(sentence(QT_TRANSLATE_NOOP("JobDelivery", "The job was written to %1.")).arg(path));
    return Done;
}

ExitStatus sendJobFile(const CommandLine &line)
{
    if (!line.choices.isEmpty() || !line.paper.isNull() || !line.output.isNull())
        return failWith(Usage,
                        sentence(QT_TRANSLATE_NOOP("JobDelivery",
                                                   "%1 is a saved job: it is sent as it was saved, "
                                                   "without -o, --paper and --output."))
                            .arg(line.files.constFirst()));
    ReadJobFile read = readJobFile(line.files.constFirst());
    if (!read.error.isNull())
        return failWith(Document, read.error);
    read.job.server = line.server;
    if (!line.queue.isNull())
        read.job.queue = line.queue;
    return sendJob(read.job);
}
