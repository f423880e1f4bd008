#include "dialog/job/JobFileReader.h"

#include "dialog/job/JobFileFormat.h"
#include "dialog/job/JobFileHeader.h"

#include <algorithm>

namespace {

/// The first bytes of the file, up to `most`; none when it cannot be read.
QByteArray beginning(const Document &file, qint64 most)
{
    QByteArray bytes(std::min(file.size(), most), Qt::Uninitialized);
    bytes.truncate(std::max<qint64>(0, file.read(0, bytes.data(), bytes.size())));
    return bytes;
}

} // namespace

bool isJobFile(const Document &file)
{
    const QByteArray expected(kJobFileBeginning);
    return beginning(file, expected.size()) == expected;
}

Result<JobRequest> readJobFile(const Document &file)
{
    const auto [header, flaw] =
        parseJobFileHeader(beginning(file, kLongestJobFileHeader), file.size());
    if (flaw != JobFileFlaw::None)
        return Fault{FaultKind::Document, flawSentence(flaw, file.path())};
    JobRequest job;
    job.title = header.title;
    job.queue = header.queue;
    job.options = header.options;
    qint64 begin = header.end;
    for (const JobFileHeader::Document &document : header.documents) {
        job.documents.push_back(file.part(begin, document.length, document.name));
        begin += document.length;
    }
    return job;
}
