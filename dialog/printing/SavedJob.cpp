#include "dialog/printing/SavedJob.h"

#include "dialog/files/PathBytes.h"
#include "dialog/host/HostSession.h"
#include "dialog/job/JobFileReader.h"
#include "dialog/job/SavedJobOptions.h"
#include "dialog/job/SavedSettings.h"
#include "dialog/job/StandardAttributes.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/PrinterSource.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

Result<> checkOptions(const QString &path, const QList<JobOption> &options, bool yes)
{
    for (const JobOption &option : options) {
        const OptionOrigin origin = originOf(option.name);
        if (origin == OptionOrigin::Never)
            return Fault{FaultKind::Vetoed,
                         QCoreApplication::translate(
                             "SavedJob", "%1 is not sent: it sets %2, which no saved job may.")
                             .arg(path, option.name)};
        if (origin == OptionOrigin::Foreign && !yes)
            return Fault{FaultKind::Vetoed,
                         QCoreApplication::translate(
                             "SavedJob", "%1 is not sent: it sets %2, which Velkaro Print does "
                                         "not write; --yes sends it all the same.")
                             .arg(path, option.name)};
    }
    return {};
}

Result<JobRequest> savedJob(const PrintWishes &wishes, const Document &file, bool yes)
{
    if (!wishes.choices.isEmpty() || !wishes.paper.isNull() || !wishes.output.isNull())
        return Fault{FaultKind::Request,
                     QCoreApplication::translate(
                         "SavedJob", "%1 is a saved job: it is sent as it was saved, without -o, "
                                     "--paper and --output.")
                         .arg(file.path())};
    Result<JobRequest> job = readJobFile(file);
    if (!job)
        return job;
    if (const Result<> checked = checkOptions(file.path(), job->options, yes); !checked)
        return checked.fault();
    job->server = wishes.server;
    if (!wishes.queue.isNull())
        job->queue = wishes.queue;
    return job;
}

Result<> refuseSavedJobs(const Documents &documents)
{
    const auto saved = std::ranges::find_if(documents, isJobFile);
    if (saved == documents.end())
        return {};
    return Fault{FaultKind::Request,
                 QCoreApplication::translate("SavedJob",
                                             "%1 is a saved job: it is sent alone, with no other "
                                             "document beside it.")
                     .arg(saved->path())};
}

QList<JobOption> defaultOptions(const PrintJob &job)
{
    QList<JobOption> options{
        {QStringLiteral("print-scaling"), scalingKeyword(HostSettings().scaling)}};
    if (!job.session())
        return options;
    const QList<PPDMark> marks = job.session()->defaultMarks();
    for (const PPDMark &mark : marks)
        options += JobOption{mark.keyword, mark.choice};
    return options + standardAttributes(marks, options, job.attributeRules());
}

QStringList notesOnSending(ppd_file_t *ppd, const QList<JobOption> &options)
{
    const QList<JobOption> others = optionsForOthers(ppd, options);
    if (others.isEmpty())
        return {};
    return {QCoreApplication::translate("SavedJob",
                                        "The printer does not have some of the settings that the "
                                        "job was saved with: %1.")
                .arg(typedSettings(others))};
}

QStringList notesOnSaving(const QString &path, const QList<JobOption> &options)
{
    QStringList names;
    for (const JobOption &option : options)
        if (originOf(option.name) == OptionOrigin::Never)
            names += option.name;
    if (names.isEmpty())
        return {};
    return {QCoreApplication::translate(
                "SavedJob", "The job in %1 can be looked at but not sent: it sets %2, which no "
                            "saved job may. Remove that from the settings saved for the queue.")
                .arg(shownPath(path), names.join(QStringLiteral(", ")))};
}
