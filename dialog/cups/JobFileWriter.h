#pragma once

#include "dialog/cups/JobSubmission.h"

#include <QtCore/QString>

enum class JobFileFault {
    None,
    Document, ///< a document cannot be read
    Output,   ///< the file cannot be written
};

struct WrittenJobFile
{
    JobFileFault fault = JobFileFault::None;
    QString error; ///< one sentence, null when there is none
};

/// Writes the job, all or nothing: what stood at the path before stays until the new file is whole.
WrittenJobFile writeJobFile(const QString &path, const JobRequest &job);
