#include "dialog/job/JobFileReader.h"
#include "dialog/job/OutgoingText.h"
#include "dialog/printing/SavedJob.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/NoDialogRun.h"
#include "dialog/program/PasswordPrompt.h"

#include <QtCore/QCoreApplication>

namespace {

/// Says on standard error what is about to be sent.
void list(const JobRequest &job)
{
    warn(QCoreApplication::translate("NoDialogCommand", "Sending \"%1\" to %2.")
             .arg(QString::fromUtf8(outgoingTitle(job.title)), job.queue));
    for (const Document &document : job.documents)
        warn(QCoreApplication::translate("NoDialogCommand", "Document: %1 (%2 bytes)")
                 .arg(document.name(), QString::number(document.size())));
    for (const JobOption &option : job.options)
        warn(QCoreApplication::translate("NoDialogCommand", "Setting: %1=%2")
                 .arg(option.name, option.value));
}

} // namespace

void NoDialogRun::readDocuments()
{
    const Result<> begun =
        checkOwnSettings(m_line.choices)
            .andThen([this] {
                return m_line.passwordDescriptor
                           ? checkPasswordDescriptor(*m_line.passwordDescriptor, m_line.files)
                           : Result<>();
            })
            .andThen([this] { return m_controller.openDocuments(m_line.files); });
    if (goOn(begun))
        m_controller.readPipes([this](const Result<> &read) {
            if (goOn(read))
                takeDocuments();
        });
}

void NoDialogRun::takeDocuments()
{
    const Documents &documents = m_controller.job().documents();
    if (documents.size() != 1 || !isJobFile(documents.front())) {
        findPrinter();
        return;
    }
    const Result<JobRequest> job = savedJob(m_line, documents.front(), m_line.yes);
    if (!goOn(job ? Result<>() : job.fault()))
        return;
    if (!job->queue.isEmpty())
        list(*job);
    lookAtSavedJob(*job);
}

/// A printer that cannot be looked at gets the job all the same: its server says what is wrong.
void NoDialogRun::lookAtSavedJob(const JobRequest &job)
{
    if (job.queue.isEmpty()) {
        send(job);
        return;
    }
    m_controller.findPrinter(
        {job.server, {job.queue, {}}, m_line.ppd}, [this, job](const Result<FoundPrinter> &) {
            for (const QString &note : notesOnSending(m_controller.job().ppd(), job.options))
                warn(note);
            if (goOn({}))
                send(job);
        });
}
