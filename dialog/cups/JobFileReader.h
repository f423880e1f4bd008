#pragma once

#include "dialog/cups/JobSubmission.h"

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

/// Whether the file begins like one.
bool isJobFile(const QString &path);

/// A job from a file. Its documents lie in a folder that goes with this object.
struct ReadJobFile
{
    JobRequest job;
    std::unique_ptr<QTemporaryDir> folder;
    QString error; ///< one sentence, null when there is none
};

/// Reads a job back. A file that is cut short, or whose options must not travel, is refused.
ReadJobFile readJobFile(const QString &path);
