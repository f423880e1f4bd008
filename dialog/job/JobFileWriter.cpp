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

Fault notWritten()
{
    return {FaultKind::Cancelled,
            QCoreApplication::translate("JobFile", "The job was not written.")};
}

/// A job on its way into the file, as far as the user wants that.
struct Writing
{
    OutputFile &file;
    CallGuard &guard;
    JobProgress &progress;

    /// Takes the step unless the user has cancelled. One that fails because he did is no fault of
    /// the file.
    template <typename Step> Result<> take(const Step &step) const
    {
        guard.stampSignOfLife();
        const Result<> taken = guard.isCancelled() ? Result<>(notWritten()) : step();
        return taken || !guard.isCancelled() ? taken : notWritten();
    }

    Result<> write(QByteArrayView bytes) const
    {
        return take([&] { return file.write(bytes); });
    }
};

Result<> writeDocument(const Writing &writing, const Document &document)
{
    Result<> written;
    const Delivery delivery = deliver(document, [&](const char *bytes, qint64 length) {
        writing.progress.add(length);
        written = writing.write(QByteArrayView(bytes, length));
        return written.isGood();
    });
    const bool isComplete = delivery == Delivery::Complete || !written;
    return isComplete ? written : deliveryFault(document, delivery);
}

Result<> writeJob(const Writing &writing, const JobRequest &job)
{
    if (Result<> written = writing.write(header(job)); !written)
        return written;
    for (const Document &document : job.documents)
        if (Result<> written = writeDocument(writing, document); !written)
            return written;
    return writing.take([&] { return writing.file.commit(); });
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

Result<> writeJobFile(const QString &path, const JobRequest &job, const OutputTerms &terms,
                      CallGuard &guard, JobProgress &progress)
{
    if (std::ssize(job.documents) > kMostJobFileDocuments)
        return Fault{FaultKind::Document,
                     jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "%1 would have too many "
                                                                  "documents: %2 are the most."),
                                     path, QString::number(kMostJobFileDocuments))};
    OutputFile file;
    file.setMayWait([&guard] {
        guard.stampSignOfLife();
        return !guard.isCancelled();
    });
    const Writing writing{file, guard, progress};
    const Result<> opened =
        writing.take([&] { return file.open(path, keeping(job.documents, terms)); });
    return opened ? writeJob(writing, job) : opened;
}
