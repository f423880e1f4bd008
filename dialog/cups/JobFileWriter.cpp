#include "dialog/cups/JobFileWriter.h"

#include "dialog/cups/JobFileFormat.h"
#include "dialog/cups/OutgoingText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

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

/// A disk that is nearly full takes a part first, and says only then why it takes no more.
bool writeAll(QIODevice &to, const char *bytes, qint64 length)
{
    while (length > 0) {
        const qint64 taken = to.write(bytes, length);
        if (taken <= 0)
            return false;
        bytes += taken;
        length -= taken;
    }
    return true;
}

WrittenJobFile outputFault(const QFileDevice &file)
{
    return {JobFileFault::Output,
            jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "The file %1 cannot be written: %2."),
                            file.fileName(), file.errorString())};
}

WrittenJobFile writeJob(QFileDevice &file, const JobRequest &job)
{
    const QByteArray lines = header(job);
    if (!writeAll(file, lines.constData(), lines.size()))
        return outputFault(file);
    for (const Document &document : job.documents) {
        const Delivery delivery = deliver(document, [&](const char *bytes, qint64 length) {
            return writeAll(file, bytes, length);
        });
        if (delivery == Delivery::NotTaken)
            return outputFault(file);
        if (delivery != Delivery::Complete)
            return {JobFileFault::Document, deliveryFault(document, delivery)};
    }
    return {};
}

} // namespace

WrittenJobFile writeJobFile(const QString &path, const JobRequest &job)
{
    if (std::ssize(job.documents) > kMostJobFileDocuments)
        return {JobFileFault::Document,
                jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "%1 would have too many documents: %2 "
                                                             "are the most."),
                                path, QString::number(kMostJobFileDocuments))};
    // Only an ordinary file can be replaced as a whole: a device or a pipe is written to.
    const QFileInfo old(path);
    if (old.exists() && !old.isFile() && !old.isDir()) {
        QFile file(path);
        const bool isOpen = file.open(kWriting);
        return isOpen ? writeJob(file, job) : outputFault(file);
    }
    QSaveFile file(path);
    if (!file.open(kWriting))
        return outputFault(file);
    WrittenJobFile written = writeJob(file, job);
    if (written.fault != JobFileFault::None)
        return written;
    return file.commit() ? written : outputFault(file);
}
