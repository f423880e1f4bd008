#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QString>

/// What stands before the documents in a job file. Title and names are as outgoingText() makes
/// them, whatever the file says.
struct JobFileHeader
{
    struct Document
    {
        qint64 length = 0; ///< in bytes
        QString name;      ///< without folders, never empty
    };

    QString title;
    QString queue; ///< null: none
    QList<JobOption> options;
    QList<Document> documents; ///< in the order of the file, which they fill to its end
    qint64 end = 0;            ///< where the first document begins, in bytes
};

/// Why a header cannot be used.
enum class JobFileFlaw {
    None,
    NoJob,            ///< the first line is another one
    OtherVersion,     ///< it is the first line of another version
    CutShort,         ///< the file ends before the header, or before the documents
    Damaged,          ///< a line that this program does not write, or bytes that belong to nothing
    TooLong,          ///< the header is longer than kLongestJobFileHeader
    TooManyDocuments, ///< more than kMostJobFileDocuments
    TooManyOptions,   ///< more than kMostJobFileOptions
};

struct ParsedJobFileHeader
{
    JobFileHeader header; ///< of use when there is no flaw
    JobFileFlaw flaw = JobFileFlaw::None;
};

/// Reads the header out of a file of `fileSize` bytes that begins with `beginning`, which need not
/// be longer than kLongestJobFileHeader.
ParsedJobFileHeader parseJobFileHeader(QByteArrayView beginning, qint64 fileSize);

/// One sentence on the flaw of the file at the path; null when there is none.
QString flawSentence(JobFileFlaw flaw, const QString &path);
