#pragma once

#include "dialog/cups/JobSubmission.h"

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
/// and when the guard is cancelled. A device or a pipe is written to as it is; whoever reads the
/// pipe is waited for. Blocks: call it in a ServerCall.
WrittenJobFile writeJobFile(const QString &path, const JobRequest &job, CallGuard &guard,
                            JobProgress &progress);
