#include "dialog/job/JobFileHeader.h"

#include "dialog/job/JobFileFormat.h"
#include "dialog/job/JobOptions.h"
#include "dialog/job/OutgoingText.h"

#include <algorithm>
#include <array>

namespace {

using enum JobFileFlaw;

// Servers and filters look options up without regard to case, so two spellings are one option.
bool hasOption(const QList<JobOption> &options, const QString &name)
{
    return std::ranges::any_of(options, [&](const JobOption &option) {
        return option.name.compare(name, Qt::CaseInsensitive) == 0;
    });
}

JobFileFlaw takeTitle(JobFileHeader &header, const QString &value)
{
    if (!header.title.isNull())
        return Damaged;
    header.title = QString::fromUtf8(outgoingTitle(value));
    return None;
}

JobFileFlaw takeQueue(JobFileHeader &header, const QString &value)
{
    if (!header.queue.isNull() || value.isEmpty())
        return Damaged;
    header.queue = value;
    return None;
}

JobFileFlaw takeOption(JobFileHeader &header, const QString &value)
{
    if (header.options.size() == kMostJobFileOptions)
        return TooManyOptions;
    const JobOption option{value.section(u'=', 0, 0), value.section(u'=', 1)};
    if (!isSendable(option) || hasOption(header.options, option.name))
        return Damaged;
    header.options += option;
    return None;
}

JobFileFlaw takeDocument(JobFileHeader &header, const QString &value)
{
    if (header.documents.size() == kMostJobFileDocuments)
        return TooManyDocuments;
    bool isNumber = false;
    const qint64 length = value.section(u' ', 0, 0).toLongLong(&isNumber);
    const QByteArray name = outgoingDocumentName(value.section(u' ', 1));
    header.documents += {length, QString::fromUtf8(name)};
    return isNumber && length > 0 ? None : Damaged;
}

struct Field
{
    const char *name;
    JobFileFlaw (*take)(JobFileHeader &header, const QString &value);
};

constexpr std::array kFields{Field{"Title", takeTitle}, Field{"Queue", takeQueue},
                             Field{"Option", takeOption}, Field{"Document", takeDocument}};

JobFileFlaw takeLine(JobFileHeader &header, QByteArrayView line)
{
    const QByteArray bytes = line.toByteArray();
    const qsizetype colon = bytes.indexOf(": ");
    const auto field = std::ranges::find_if(
        kFields, [&](const Field &known) { return bytes.left(qMax(0, colon)) == known.name; });
    if (field == kFields.end() || !QUtf8StringView(bytes).isValidUtf8())
        return Damaged;
    return field->take(header, QString::fromUtf8(bytes.mid(colon + 2)));
}

/// The flaw when the documents' lengths and the rest of the file, after the header, are not equal.
JobFileFlaw flawOfLengths(const JobFileHeader &header, qint64 fileSize)
{
    if (header.documents.isEmpty())
        return Damaged;
    qint64 left = fileSize - header.end;
    for (const JobFileHeader::Document &document : header.documents) {
        if (document.length > left)
            return CutShort;
        left -= document.length;
    }
    return left == 0 ? None : Damaged;
}

JobFileFlaw parse(JobFileHeader &header, QByteArrayView beginning, qint64 fileSize)
{
    const QByteArrayView known = beginning.first(qMin(beginning.size(), kLongestJobFileHeader));
    bool isFirst = true;
    while (true) {
        const qsizetype lineEnd = known.indexOf('\n', header.end);
        if (lineEnd < 0)
            return fileSize > kLongestJobFileHeader ? TooLong : CutShort;
        const QByteArrayView line = known.sliced(header.end, lineEnd - header.end);
        header.end = lineEnd + 1;
        if (line.isEmpty())
            return flawOfLengths(header, fileSize);
        const JobFileFlaw flaw = isFirst ? None : takeLine(header, line);
        if (flaw != None)
            return flaw;
        isFirst = false;
    }
}

} // namespace

ParsedJobFileHeader parseJobFileHeader(QByteArrayView beginning, qint64 fileSize)
{
    ParsedJobFileHeader parsed;
    if (beginning.startsWith(QByteArray(kJobFileFirstLine) + '\n'))
        parsed.flaw = parse(parsed.header, beginning, fileSize);
    else
        parsed.flaw = beginning.startsWith(kJobFileBeginning) ? OtherVersion : NoJob;
    return parsed;
}

QString flawSentence(JobFileFlaw flaw, const QString &path)
{
    switch (flaw) {
    case None:
        break;
    case NoJob:
        return jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "%1 is no saved job."), path);
    case OtherVersion:
        return jobFileSentence(
            QT_TRANSLATE_NOOP("JobFile", "The saved job %1 is damaged, or another version of "
                                         "Velkaro Print has written it."),
            path);
    case CutShort:
        return jobFileSentence(
            QT_TRANSLATE_NOOP("JobFile", "The saved job %1 is cut short: its end is missing."),
            path);
    case Damaged:
        return jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "The saved job %1 is damaged."), path);
    case TooLong:
        return jobFileSentence(
            QT_TRANSLATE_NOOP("JobFile", "The saved job %1 is damaged: its header has no end."),
            path);
    case TooManyDocuments:
        return jobFileSentence(
            QT_TRANSLATE_NOOP("JobFile",
                              "The saved job %1 has too many documents: %2 are the most."),
            path, QString::number(kMostJobFileDocuments));
    case TooManyOptions:
        return jobFileSentence(
            QT_TRANSLATE_NOOP("JobFile",
                              "The saved job %1 has too many settings: %2 are the most."),
            path, QString::number(kMostJobFileOptions));
    }
    return {};
}
