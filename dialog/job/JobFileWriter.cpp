#include "dialog/job/JobFileWriter.h"

#include "dialog/job/JobFileFormat.h"
#include "dialog/job/OutgoingText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

namespace {

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

/// Writes a job into the file, until all of it is there or the user cancels.
struct Writing
{
    OutputFile &file;
    CallGuard &guard;
    JobProgress &progress;

    bool write(QByteArrayView bytes) const
    {
        guard.stampSignOfLife();
        return !guard.isCancelled() && file.write(bytes);
    }
};

WrittenJobFile outputFault(const Writing &writing)
{
    if (writing.guard.isCancelled())
        return {JobFileFault::Cancelled,
                QCoreApplication::translate("JobFile", "The job was not written.")};
    return {JobFileFault::Output, writing.file.error()};
}

WrittenJobFile writeJob(const Writing &writing, const JobRequest &job)
{
    if (!writing.write(header(job)))
        return outputFault(writing);
    for (const Document &document : job.documents) {
        const Delivery delivery = deliver(document, [&](const char *bytes, qint64 length) {
            writing.progress.add(length);
            return writing.write(QByteArrayView(bytes, length));
        });
        if (delivery == Delivery::NotTaken)
            return outputFault(writing);
        if (delivery != Delivery::Complete)
            return {JobFileFault::Document, deliveryFault(document, delivery)};
    }
    const bool isDone = !writing.guard.isCancelled() && writing.file.commit();
    return isDone ? WrittenJobFile() : outputFault(writing);
}

/// The terms, and that no document of the job is written over.
OutputTerms keeping(const Documents &documents, OutputTerms terms)
{
    for (const Document &document : documents)
        if (const auto identity = identityOf(document.descriptor()))
            terms.inputs += *identity;
    return terms;
}

} // namespace

WrittenJobFile writeJobFile(const QString &path, const JobRequest &job, const OutputTerms &terms,
                            CallGuard &guard, JobProgress &progress)
{
    if (std::ssize(job.documents) > kMostJobFileDocuments)
        return {JobFileFault::Document,
                jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "%1 would have too many documents: %2 "
                                                             "are the most."),
                                path, QString::number(kMostJobFileDocuments))};
    OutputFile file;
    file.setMayWait([&guard] {
        guard.stampSignOfLife();
        return !guard.isCancelled();
    });
    const Writing writing{file, guard, progress};
    const bool isOpen = file.open(path, keeping(job.documents, terms));
    return isOpen ? writeJob(writing, job) : outputFault(writing);
}
