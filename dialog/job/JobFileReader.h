#pragma once

#include "dialog/job/JobRequest.h"

#include <QtCore/QString>

/// Whether the file begins like one.
bool isJobFile(const Document &file);

/// A job from a file. Its documents are parts of that file.
struct ReadJobFile
{
    JobRequest job;
    QString error; ///< one sentence, null when there is none
};

/// Reads a job back. A file that is cut short, or whose options must not be sent, is refused.
ReadJobFile readJobFile(const Document &file);
