#pragma once

#include "dialog/files/OutputFile.h"
#include "dialog/job/JobProgress.h"
#include "dialog/job/JobRequest.h"
#include "dialog/work/CallGuard.h"

#include <QtCore/QString>

enum class JobFileFault {
    None,
    Document, ///< a document cannot be read
    Output,   ///< the file cannot be written
    Cancelled,
};

struct WrittenJobFile
{
    JobFileFault fault = JobFileFault::None;
    QString error; ///< one sentence, null when there is none
};

/// Writes the job, all or nothing: what stood at the path before stays until the new file is whole,
/// and when the guard is cancelled. Never over a document of the job, and otherwise on these terms.
/// Blocks: call it in a BackgroundCall, whose thread gets no SIGPIPE then.
WrittenJobFile writeJobFile(const QString &path, const JobRequest &job, const OutputTerms &terms,
                            CallGuard &guard, JobProgress &progress);
