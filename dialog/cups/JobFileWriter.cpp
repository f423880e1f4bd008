#include "dialog/cups/JobFileWriter.h"

#include "dialog/cups/ByteCopy.h"
#include "dialog/cups/DocumentFile.h"
#include "dialog/cups/JobFileFormat.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace {

// A buffered file forgets why it could not be flushed.
constexpr QIODevice::OpenMode kWriting = QIODevice::WriteOnly | QIODevice::Unbuffered;

QByteArray headerLine(const char *field, const QString &value)
{
    return QByteArray(field) + ": " + displayText(value).toUtf8() + '\n';
}

QByteArray header(const JobRequest &job, const DocumentFiles &documents)
{
    QByteArray lines = QByteArray(kJobFileFirstLine) + '\n' + headerLine("Title", job.title);
    if (!job.queue.isNull())
        lines += headerLine("Queue", job.queue);
    for (const JobOption &option : job.options)
        lines += headerLine("Option", option.name + u'=' + option.value);
    for (const auto &document : documents)
        lines += headerLine(
            "Document",
            QStringLiteral("%1 %2").arg(document->size()).arg(QFileInfo(*document).fileName()));
    return lines + '\n';
}

WrittenJobFile documentFault(const QString &error)
{
    return {JobFileFault::Document, error};
}

WrittenJobFile outputFault(const QFileDevice &file)
{
    return {JobFileFault::Output,
            jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "The file %1 cannot be written: %2."),
                            file.fileName(), file.errorString())};
}

QString sequentialDocument(const DocumentFiles &documents)
{
    for (const auto &document : documents)
        if (document->isSequential())
            return jobFileSentence(
                QT_TRANSLATE_NOOP("JobFile", "%1 is no ordinary file: it cannot be kept in a job."),
                document->fileName());
    return {};
}

WrittenJobFile writeJob(QFileDevice &file, const JobRequest &job, const DocumentFiles &documents)
{
    const QByteArray lines = header(job, documents);
    if (!writeAll(file, lines.constData(), lines.size()))
        return outputFault(file);
    for (const auto &document : documents) {
        const Copied copied = copyBytes(*document, file, document->size());
        if (copied == Copied::CannotWrite)
            return outputFault(file);
        if (copied == Copied::CannotRead)
            return documentFault(jobFileSentence(
                QT_TRANSLATE_NOOP("JobFile", "The document %1 cannot be read to its end."),
                document->fileName()));
    }
    return {};
}

} // namespace

WrittenJobFile writeJobFile(const QString &path, const JobRequest &job)
{
    const OpenedDocuments documents = openDocuments(job.documents);
    if (!documents.error.isNull())
        return documentFault(documents.error);
    const QString sequential = sequentialDocument(documents.files);
    if (!sequential.isNull())
        return documentFault(sequential);
    // Only an ordinary file can be replaced as a whole: a device or a pipe is written to.
    const QFileInfo old(path);
    if (old.exists() && !old.isFile() && !old.isDir()) {
        QFile file(path);
        const bool isOpen = file.open(kWriting);
        return isOpen ? writeJob(file, job, documents.files) : outputFault(file);
    }
    QSaveFile file(path);
    if (!file.open(kWriting))
        return outputFault(file);
    WrittenJobFile written = writeJob(file, job, documents.files);
    if (written.fault != JobFileFault::None)
        return written;
    return file.commit() ? written : outputFault(file);
}
