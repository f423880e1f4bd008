#pragma once

#include "dialog/job/Document.h"
#include "dialog/job/JobRequest.h"
#include "dialog/printing/PrintWishes.h"
#include "dialog/work/Result.h"
#include "platform/ppd/CupsPPD.h"

class PrintJob;

/// The job in the file, as it is to be sent: to the queue of the wishes or, where they name none,
/// to the queue that it was made for. Its settings were checked when it was made and are sent as
/// they are: wishes for other ones are refused. `yes` admits options that this program does not
/// write.
Result<JobRequest> savedJob(const PrintWishes &wishes, const Document &file, bool yes);

/// A fault where a saved job is among the documents of another one: its settings would come out as
/// text.
Result<> refuseSavedJobs(const Documents &documents);

/// A fault on the first option of the saved job at the path that is not sent.
Result<> checkOptions(const QString &path, const QList<JobOption> &options, bool yes);

/// What a job says of the settings of its printer that are as they are by default.
QList<JobOption> defaultOptions(const PrintJob &job);

/// What is to be told of a saved job that goes to the printer of the PPD (null: one that nothing is
/// known of): one sentence on its settings that the printer does not have. None when it has all.
QStringList notesOnSending(ppd_file_t *ppd, const QList<JobOption> &options);

/// What is to be told of a job that goes into the file at the path: one sentence on its options
/// that can never be sent from there. None when there are no such options.
QStringList notesOnSaving(const QString &path, const QList<JobOption> &options);
