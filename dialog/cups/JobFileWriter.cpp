#include "dialog/cups/JobFileWriter.h"

#include "dialog/cups/JobFileFormat.h"
#include "dialog/cups/OutgoingText.h"
#include "dialog/cups/StreamOutput.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <cerrno>
#include <functional>

namespace {

// A buffered file forgets why it could not be flushed.
constexpr QIODevice::OpenMode kWriting = QIODevice::WriteOnly | QIODevice::Unbuffered;

QByteArray headerLine(const char *field, const QByteArray &value)
{
    return QByteArray(field) + ": " + value + '\n';
}

QByteArray header(const JobRequest &job)
{
    QByteArray lines =
        QByteArray(kJobFileFirstLine) + '\n' + headerLine("Title", outgoingTitle(job.title));
    if (!job.queue.isNull())
        lines += headerLine("Queue", displayText(job.queue).toUtf8());
    for (const JobOption &option : job.options)
        lines += headerLine("Option", displayText(option.name + u'=' + option.value).toUtf8());
    for (const Document &document : job.documents)
        lines += headerLine("Document", QByteArray::number(document.size()) + ' ' +
                                            outgoingDocumentName(document.name()));
    return lines + '\n';
}

WrittenJobFile outputFault(const QString &path, const QString &reason)
{
    return {JobFileFault::Output,
            jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "The file %1 cannot be written: %2."),
                            path, reason)};
}

/// Takes the bytes of the file one after the other; false when it can take no more.
using Sink = std::function<bool(const char *bytes, qint64 length)>;

/// The outcome when the sink has taken no more, or the user wants no more.
struct Writing
{
    const JobRequest &job;
    CallGuard &guard;
    JobProgress &progress;
    Sink sink;

    bool write(const char *bytes, qint64 length) const
    {
        guard.stampSignOfLife();
        return !guard.isCancelled() && sink(bytes, length);
    }
};

/// Gives the sink the whole file. A fault without a sentence is the sink's own.
WrittenJobFile writeAll(const Writing &writing)
{
    const QByteArray lines = header(writing.job);
    bool isTaken = writing.write(lines.constData(), lines.size());
    for (const Document &document : writing.job.documents) {
        if (!isTaken)
            break;
        const Delivery delivery = deliver(document, [&](const char *bytes, qint64 length) {
            writing.progress.add(length);
            return writing.write(bytes, length);
        });
        isTaken = delivery != Delivery::NotTaken;
        if (const QString fault = deliveryFault(document, delivery); !fault.isNull())
            return {JobFileFault::Document, fault};
    }
    if (writing.guard.isCancelled())
        return {JobFileFault::Cancelled,
                QCoreApplication::translate("JobFile", "The job was not written.")};
    return {isTaken ? JobFileFault::None : JobFileFault::Output, QString()};
}

/// A disk that is nearly full takes a part first, and says only then why it takes no more.
bool take(QIODevice &file, const char *bytes, qint64 length)
{
    while (length > 0) {
        const qint64 taken = file.write(bytes, length);
        if (taken <= 0)
            return false;
        bytes += taken;
        length -= taken;
    }
    return true;
}

WrittenJobFile replaceFile(const QString &path, Writing writing)
{
    QSaveFile file(path);
    if (!file.open(kWriting))
        return outputFault(path, file.errorString());
    writing.sink = [&file](const char *bytes, qint64 length) { return take(file, bytes, length); };
    const WrittenJobFile written = writeAll(writing);
    const bool isDone = written.fault == JobFileFault::None && file.commit();
    return isDone || !written.error.isNull() ? written : outputFault(path, file.errorString());
}

WrittenJobFile writeStream(const QString &path, Writing writing)
{
    const FileDescriptor file = openStream(path, writing.guard);
    if (!file.isOpen() && !writing.guard.isCancelled())
        return outputFault(path, qt_error_string(errno));
    writing.sink = [&](const char *bytes, qint64 length) {
        return writeToStream(file, bytes, length, writing.guard);
    };
    const WrittenJobFile written = writeAll(writing);
    const bool isDone = written.fault == JobFileFault::None || !written.error.isNull();
    return isDone ? written : outputFault(path, qt_error_string(errno));
}

} // namespace

WrittenJobFile writeJobFile(const QString &path, const JobRequest &job, CallGuard &guard,
                            JobProgress &progress)
{
    if (std::ssize(job.documents) > kMostJobFileDocuments)
        return {JobFileFault::Document,
                jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "%1 would have too many documents: %2 "
                                                             "are the most."),
                                path, QString::number(kMostJobFileDocuments))};
    const Writing writing{job, guard, progress, {}};
    // Only an ordinary file can be replaced as a whole.
    const QFileInfo old(path);
    const bool isStream = old.exists() && !old.isFile() && !old.isDir();
    return isStream ? writeStream(path, writing) : replaceFile(path, writing);
}
