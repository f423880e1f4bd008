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
    const QByteArray firstLine = QByteArray(kJobFileFirstLine) + '\n';
    return beginning(file, firstLine.size()) == firstLine;
}

ReadJobFile readJobFile(const Document &file)
{
    ReadJobFile read;
    const auto [header, flaw] =
        parseJobFileHeader(beginning(file, kLongestJobFileHeader), file.size());
    read.error = flawSentence(flaw, file.path());
    if (!read.error.isNull())
        return read;
    read.job.title = header.title;
    read.job.queue = header.queue;
    read.job.options = header.options;
    qint64 begin = header.end;
    for (const JobFileHeader::Document &document : header.documents) {
        read.job.documents.push_back(file.part(begin, document.length, document.name));
        begin += document.length;
    }
    return read;
}
