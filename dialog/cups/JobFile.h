#pragma once

#include "dialog/cups/JobSubmission.h"

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

/// A job in a file: settings and documents together, to be looked at and sent later.
///
/// The file begins with lines of text (UTF-8), then comes an empty line, then the bytes of the
/// documents one after the other:
///
///     Velkaro-Print-Job: 1
///     Title: Holiday.pdf
///     Queue: photo
///     Option: PageSize=A4.Fullbleed
///     Document: 48211 Holiday.pdf
///
/// `Queue` is missing where the job was made from a PPD file, the others may come again. A document
/// line holds the length in bytes and the name.

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
