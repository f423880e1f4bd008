#include "dialog/job/JobFileReader.h"
#include "dialog/job/JobOptions.h"
#include "dialog/printing/SavedJob.h"
#include "tests/fuzz/Harnesses.h"
#include "tests/fuzz/InputFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const Document &document)
{
    QByteArray bytes;
    const Delivery delivery = deliver(document, [&](const char *piece, qint64 length) {
        bytes.append(piece, length);
        return true;
    });
    require(delivery == Delivery::Complete, "every document of a saved job can be read");
    return bytes;
}

bool isHarmful(const JobOption &option)
{
    const QString name = option.name.toLower();
    return name == "raw"_L1 || name == "printer-uri"_L1 || name == "job-uri"_L1;
}

void checkDocuments(const Documents &documents, const QByteArray &file)
{
    QByteArray all;
    for (const Document &document : documents)
        all += bytesOf(document);
    require(!documents.empty() && file.endsWith(all), "the documents are what the file ends with");
}

void checkOptions(const QList<JobOption> &options)
{
    require(std::ranges::all_of(options, isSendable), "every option of a job may be sent");
    if (std::ranges::any_of(options, isHarmful))
        require(!checkOptions(u"job"_s, options, true),
                "a saved job is never sent past the printer's settings, or elsewhere");
    const bool isForeign = std::ranges::any_of(options, [](const JobOption &option) {
        return option.name == "job-name"_L1 || option.name == "document-format"_L1 ||
               option.name.startsWith("com.apple."_L1);
    });
    if (isForeign)
        require(!checkOptions(u"job"_s, options, false),
                "what this program does not write is not sent unasked");
}

} // namespace

/// A saved job that is read has its documents within the file and no option that slips in.
void runJobFile(const QByteArray &file)
{
    const Document saved(inputFile(file), 0, u"saved.job"_s, u"saved.job"_s);
    const auto read = readJobFile(saved);
    if (!read)
        return;
    require(isJobFile(saved), "only what begins like a saved job is one");
    checkDocuments(read->documents, file);
    checkOptions(read->options);
}
