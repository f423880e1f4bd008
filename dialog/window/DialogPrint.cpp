#include "dialog/cups/QueuePPD.h"
#include "dialog/files/PathBytes.h"
#include "dialog/job/PaperMemory.h"
#include "dialog/printing/LastPrinter.h"
#include "dialog/printing/LastUsed.h"
#include "dialog/printing/Presets.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/OwnQuestion.h"
#include "dialog/window/ProgressStrip.h"
#include "dialog/work/Sentences.h"

#include <QtCore/QTimer>
#include <QtWidgets/QFileDialog>

using namespace Qt::StringLiterals;

namespace {

constexpr int kYes = 0; // of a question of the dialog's own
constexpr int kCancel = 1;

} // namespace

/// The job as it is now. None when it must not go out: the user has been told why, or has said so.
std::optional<JobRequest> DialogWindow::finishedJob()
{
    if (m_savedJob)
        return savedJobToSend();
    if (m_isExchanged) {
        openExchanged(exchangedPPD(job().source().queue.queue).sentence);
        return std::nullopt;
    }
    const Result<FinishedJob> finished = m_controller.finish();
    if (m_isEnding) // dismissed, not answered
        return std::nullopt;
    m_events.noteOwn();
    tellEvent(); // what saving has changed, before what is told of the job
    if (finished && isAgreed(finished->doubts))
        return finished->request;
    if (!finished.sentence().isNull())
        tell(NoticeBar::Kind::Error, finished.sentence());
    return std::nullopt;
}

bool DialogWindow::isAgreed(const QStringList &doubts)
{
    if (doubts.isEmpty())
        return true;
    AlertContent question;
    question.style = AlertStyle::Warning;
    question.text = tr("Go on with this job?");
    question.informative = doubts.join(u'\n');
    question.buttons = {tr("Go On"), tr("Cancel")};
    question.defaultButton = kCancel;
    return askOwn(question) == kYes && !m_isEnding;
}

void DialogWindow::print()
{
    const std::optional<JobRequest> request = finishedJob();
    if (!request)
        return;
    if (m_wishes.output.isNull())
        send(*request);
    else if (const auto terms = agreedTerms(m_wishes.output))
        writeFile(m_wishes.output, *request, *terms);
}

/// The terms on which the file may be written. None when the user wants to keep the one that stands
/// there.
std::optional<OutputTerms> DialogWindow::agreedTerms(const QString &path)
{
    OutputTerms terms = m_controller.outputTerms();
    if (verdictAt(path, terms) != OutputVerdict::Exists)
        return terms;
    AlertContent question;
    question.style = AlertStyle::Warning;
    question.text = tr("%1 exists already. Replace it?").arg(shownPath(path));
    question.buttons = {tr("Replace"), tr("Cancel")};
    question.defaultButton = kCancel;
    terms.mayReplace = askOwn(question) != kCancel;
    return terms.mayReplace ? std::optional(terms) : std::nullopt;
}

void DialogWindow::saveToFile()
{
    const std::optional<JobRequest> request = finishedJob();
    if (!request)
        return;
    // The file dialog's own question would take a file's name for rich text.
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save Job"), job().title() + u".velkaro-job"_s,
                                     tr("Print jobs (*.velkaro-job);;All files (*)"), nullptr,
                                     QFileDialog::DontConfirmOverwrite);
    if (path.isEmpty() || m_isEnding)
        return;
    if (const auto terms = agreedTerms(path))
        writeFile(path, *request, *terms);
}

void DialogWindow::writeFile(const QString &path, const JobRequest &request,
                             const OutputTerms &terms)
{
    beginSending(tr("Writing the job to %1…").arg(path),
                 m_controller.write(path, request, terms, [this](const Result<QStringList> &notes) {
                     endSending(notes ? Result<>() : notes.fault(),
                                notes ? joinedSentences(*notes) : QString());
                 }));
}

void DialogWindow::send(const JobRequest &request)
{
    beginSending(tr("Sending the job to %1…").arg(request.queue),
                 m_controller.send(request, [this, place = JobPlace{request.server, request.queue}](
                                                const Result<JobReceipt> &receipt) {
                     if (receipt && receipt->isOnTrial)
                         judge({place.server, place.queue, receipt->id}, *receipt);
                     else
                         takeReceipt(receipt);
                 }));
}

/// The server would print the job otherwise than it was shown, and holds it until the user has said
/// what becomes of it.
void DialogWindow::judge(const JobPlace &place, const JobReceipt &receipt)
{
    AlertContent question;
    question.style = AlertStyle::Warning;
    question.text = tr("Print job %1 all the same?").arg(receipt.id);
    question.informative = receipt.notes.join(u'\n');
    question.buttons = {tr("Print"), tr("Cancel Job")};
    question.defaultButton = kCancel;
    const bool isAgreed = !m_isEnding && askOwn(question) == kYes && !m_isEnding;
    m_controller.endTrial(
        place, isAgreed ? TrialVerdict::Release : TrialVerdict::Cancel,
        [this, isAgreed, id = receipt.id](const Result<> &ended) {
            if (!ended)
                endSending(ended.fault(), {});
            else if (isAgreed)
                takeReceipt(JobReceipt{id, {}});
            else
                endSending(Fault{FaultKind::Cancelled, tr("Job %1 was cancelled.").arg(id)}, {});
        });
}

void DialogWindow::takeReceipt(const Result<JobReceipt> &receipt)
{
    if (receipt.faultKind() == FaultKind::Exchanged && !m_isEnding) {
        m_progress->end();
        openExchanged(receipt.sentence());
        return;
    }
    if (receipt) {
        const QueueName queue = job().source().queue;
        rememberPrinter(m_wishes.server, queue);
        m_sent = {receipt->queue.isNull() ? queue.queue : receipt->queue, receipt->id,
                  m_savedJob ? 0 : printedPages(job().settings(), m_pageCount)};
    }
    const bool hasNote = receipt && !receipt->notes.isEmpty();
    endSending(receipt ? Result<>() : receipt.fault(),
               hasNote ? tr("Job %1 was accepted. %2")
                             .arg(QString::number(receipt->id), joinedSentences(receipt->notes))
                       : QString());
}

/// The job is on its way. Cancel stops it.
void DialogWindow::beginSending(const QString &sentence,
                                const std::shared_ptr<JobProgress> &progress)
{
    m_mayHavePrinted = false;
    setState(State::Sending);
    tell(NoticeBar::Kind::Information, sentence);
    m_progress->follow(progress, totalSize(job().documents()));
}

/// What became of the job. The dialog closes, unless there is something to tell.
void DialogWindow::endSending(const Result<> &outcome, const QString &note)
{
    m_mayHavePrinted = outcome.faultKind() == FaultKind::Unsettled;
    const QString paper = job().sheet().value_or(PMPaper()).ppdName;
    if (outcome && !paper.isEmpty())
        rememberPaper(job().printerKey(), paper);
    if (outcome || m_mayHavePrinted)
        m_outcome = outcome;
    m_progress->end();
    if (outcome && !m_savedJob)
        rememberLastUsed(job().source().server, job().source().queue.queue,
                         lastingOptions(job(), job().options().options));
    setState(outcome ? State::Done : State::Ready);
    if (m_isEnding)
        QTimer::singleShot(0, this, &DialogWindow::end);
    if (!outcome)
        tell(outcome.faultKind() == FaultKind::Cancelled ? NoticeBar::Kind::Information
                                                         : NoticeBar::Kind::Error,
             outcome.sentence(), offersAfter(outcome.fault().kind));
    else if (note.isNull())
        accept();
    else
        tell(NoticeBar::Kind::Warning, note);
}
