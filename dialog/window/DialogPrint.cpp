#include "dialog/files/PathBytes.h"
#include "dialog/job/JobFileWriter.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/ProgressStrip.h"
#include "dialog/work/BackgroundCall.h"
#include "platform/toolkit/AlertObserver.h"

#include <QtCore/QTimer>
#include <QtWidgets/QFileDialog>

using namespace Qt::StringLiterals;

namespace {

constexpr int kCancel = 1; // of the question whether to replace a file

} // namespace

/// The job as it is now, when the panels let it go. None when one of them has vetoed (it has told
/// the user why), or a value must not be sent.
std::optional<JobRequest> DialogWindow::finishedJob()
{
    if (m_job.session() && !m_job.session()->askShouldPrint().proceed)
        return std::nullopt;
    if (m_isEnding) // dismissed, not answered
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
    else if (const auto terms = agreedTerms(m_line.output))
        writeFile(m_line.output, *request, *terms);
}

/// The terms on which the file may be written. None when the user wants to keep the one that stands
/// there.
std::optional<OutputTerms> DialogWindow::agreedTerms(const QString &path)
{
    OutputTerms terms = jobFileTerms(m_line);
    if (verdictAt(path, terms) != OutputVerdict::Exists)
        return terms;
    // No alert of a panel: a recording has nothing to do with it.
    AlertObserver *const observer = AlertObserver::alertObserver();
    AlertObserver::setAlertObserver(nullptr);
    AlertContent question;
    question.style = AlertStyle::Warning;
    question.text = tr("%1 exists already. Replace it?").arg(shownPath(path));
    question.buttons = {tr("Replace"), tr("Cancel")};
    question.defaultButton = kCancel;
    terms.mayReplace = runAlert(question).button != kCancel;
    AlertObserver::setAlertObserver(observer);
    return terms.mayReplace ? std::optional(terms) : std::nullopt;
}

void DialogWindow::saveToFile()
{
    const std::optional<JobRequest> request = finishedJob();
    if (!request)
        return;
    // The file dialog's own question would take a file's name for rich text.
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save Job"), m_job.title() + u".velkaro-job"_s,
                                     tr("Print jobs (*.velkaro-job);;All files (*)"), nullptr,
                                     QFileDialog::DontConfirmOverwrite);
    if (path.isEmpty() || m_isEnding)
        return;
    if (const auto terms = agreedTerms(path))
        writeFile(path, *request, *terms);
}

/// The job is on its way. Cancel stops it.
std::shared_ptr<JobProgress> DialogWindow::beginSending(const QString &sentence)
{
    auto progress = std::make_shared<JobProgress>();
    m_mayHavePrinted = false;
    setState(State::Sending);
    m_notice->tell(NoticeBar::Kind::Information, sentence);
    m_progress->follow(progress, totalSize(m_job.documents()));
    delete m_call;
    return progress;
}

void DialogWindow::endSending(State state)
{
    m_progress->end();
    setState(state);
    if (m_isEnding)
        QTimer::singleShot(0, this, &DialogWindow::end);
}

void DialogWindow::writeFile(const QString &path, const JobRequest &request,
                             const OutputTerms &terms)
{
    const auto progress = beginSending(tr("Writing the job to %1…").arg(path));
    m_call = new BackgroundCall(
        this, kFileTimeout,
        [this, path, request, terms, progress](CallGuard &guard) -> BackgroundCall::Outcome {
            const WrittenJobFile written = writeJobFile(path, request, terms, guard, *progress);
            return [this, written] { takeWritten(written); };
        },
        nullptr);
}

void DialogWindow::takeWritten(const WrittenJobFile &written)
{
    const bool isWritten = written.fault == JobFileFault::None;
    endSending(isWritten ? State::Done : State::Ready);
    if (isWritten) {
        m_exitStatus = ExitStatus::Done;
        accept();
        return;
    }
    const bool isWanted = written.fault == JobFileFault::Cancelled;
    m_notice->tell(isWanted ? NoticeBar::Kind::Information : NoticeBar::Kind::Error, written.error);
}

void DialogWindow::send(const JobRequest &request)
{
    const auto progress = beginSending(tr("Sending the job to %1…").arg(request.queue));
    m_call = new BackgroundCall(
        this, kServerTimeout,
        [this, request, progress](CallGuard &guard) -> BackgroundCall::Outcome {
            const JobReceipt receipt = submitJob(request, guard, progress);
            return [this, receipt] { takeReceipt(receipt); };
        },
        [this, request, progress] { takeReceipt(givenUpReceipt(request, *progress)); });
}

void DialogWindow::takeReceipt(const JobReceipt &receipt)
{
    m_mayHavePrinted = receipt.answer.fault == ServerFault::Unsettled;
    if (!receipt.answer.isGood()) {
        if (m_mayHavePrinted)
            m_exitStatus = ExitStatus::Server;
        endSending(State::Ready);
        m_notice->tell(NoticeBar::Kind::Error, receipt.answer.sentence);
        return;
    }
    m_exitStatus = ExitStatus::Done;
    endSending(State::Done);
    if (receipt.notes.isEmpty()) {
        accept();
        return;
    }
    m_notice->tell(
        NoticeBar::Kind::Warning,
        tr("Job %1 was accepted. %2").arg(QString::number(receipt.id), receipt.notes.join(u' ')));
}
