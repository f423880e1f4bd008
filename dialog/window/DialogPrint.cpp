#include "dialog/cups/JobFileWriter.h"
#include "dialog/cups/ServerCall.h"
#include "dialog/window/DialogWindow.h"

#include <QtWidgets/QFileDialog>

using namespace Qt::StringLiterals;

/// The job as it is now, when the panels let it go. None when one of them has vetoed (it has told
/// the user why), or a value must not be sent.
std::optional<JobRequest> DialogWindow::finishedJob()
{
    if (m_job.session() && !m_job.session()->askShouldPrint().proceed)
        return std::nullopt;
    const JobOptions options = m_job.options();
    if (options.faults.isEmpty())
        return m_job.request(options.options);
    m_notice->tell(NoticeBar::Kind::Error, options.faults.constFirst());
    return std::nullopt;
}

void DialogWindow::print()
{
    const std::optional<JobRequest> request = finishedJob();
    if (!request)
        return;
    if (m_line.output.isNull())
        send(*request);
    else
        writeFile(m_line.output, *request);
}

void DialogWindow::saveToFile()
{
    const std::optional<JobRequest> request = finishedJob();
    if (!request)
        return;
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save Job"), m_job.title() + u".velkaro-job"_s,
                                     tr("Print jobs (*.velkaro-job);;All files (*)"));
    if (!path.isEmpty())
        writeFile(path, *request);
}

void DialogWindow::writeFile(const QString &path, const JobRequest &request)
{
    const WrittenJobFile written = writeJobFile(path, request);
    if (written.fault == JobFileFault::None) {
        m_exitStatus = ExitStatus::Done;
        accept();
        return;
    }
    m_notice->tell(NoticeBar::Kind::Error, written.error);
}

void DialogWindow::send(const JobRequest &request)
{
    setState(State::Sending);
    m_notice->tell(NoticeBar::Kind::Information, tr("Sending the job to %1…").arg(request.queue));
    delete m_call;
    m_call = new ServerCall(
        this, kServerPatience,
        [this, request](CallGuard &guard) -> ServerCall::Outcome {
            const JobReceipt receipt = submitJob(request, guard);
            return [this, receipt] { takeReceipt(receipt); };
        },
        [this, request] { takeReceipt(givenUpReceipt(request)); });
}

void DialogWindow::takeReceipt(const JobReceipt &receipt)
{
    if (!receipt.answer.isGood()) {
        setState(State::Ready);
        m_notice->tell(NoticeBar::Kind::Error, receipt.answer.sentence);
        return;
    }
    m_exitStatus = ExitStatus::Done;
    setState(State::Done);
    if (receipt.notes.isEmpty()) {
        accept();
        return;
    }
    m_notice->tell(
        NoticeBar::Kind::Warning,
        tr("Job %1 was accepted. %2").arg(QString::number(receipt.id), receipt.notes.join(u' ')));
}
