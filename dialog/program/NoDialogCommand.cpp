#include "dialog/program/NoDialogCommand.h"

#include "dialog/files/PathBytes.h"
#include "dialog/host/HostSession.h"
#include "dialog/host/SessionObserver.h"
#include "dialog/job/JobFileReader.h"
#include "dialog/job/OutgoingText.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/PrintController.h"
#include "dialog/printing/PrinterDoubts.h"
#include "dialog/printing/SavedJob.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/Explanation.h"
#include "dialog/program/JobDispatch.h"
#include "dialog/program/LauncherOutput.h"
#include "dialog/program/PasswordPrompt.h"
#include "dialog/program/RequestChecks.h"
#include "dialog/program/SessionRecording.h"
#include "dialog/work/EndSignals.h"
#include "dialog/work/Sentences.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>

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

QString stoppedSentence(const QString &queue, const QString &reason)
{
    return reason.isEmpty()
               ? QCoreApplication::translate("NoDialogCommand",
                                             "The printer %1 is stopped: what is sent waits.")
                     .arg(queue)
               : QCoreApplication::translate("NoDialogCommand",
                                             "The printer %1 is stopped: what is sent waits. It "
                                             "says: %2")
                     .arg(queue, reason);
}

/// One run of the command: drives a controller from one step to the next, and answers in a person's
/// place.
class Run : private SessionObserver
{
public:
    explicit Run(const CommandLine &line)
        : m_line(line),
          m_answers(line.yes),
          m_controller(line),
          m_signals([this] { m_controller.cancel(); }),
          m_dispatch(line, m_controller, m_signals, [this](ExitStatus status, const QString &told) {
              m_told = told;
              end(status);
          })
    {}

    ExitStatus print();

private:
    void readDocuments();
    void takeDocuments();
    void lookAtSavedJob(const JobRequest &job);
    void findPrinter();
    void takePrinter(const FoundPrinter &printer);
    void makeSettings();
    Result<> makeWithoutLost(const Result<> &made);
    void countPages();
    void finish();
    void decide(const FinishedJob &finished);
    void deliver(const JobRequest &request);
    void checkCovers(const JobRequest &request);
    void askPrinter(const JobRequest &request);
    QList<OutgoingJob> outgoing(const JobRequest &request);
    void send(const JobRequest &request);
    void rehearse(const QList<OutgoingJob> &jobs);
    void write(const JobRequest &request);
    bool tell(const QString &sentence);
    void endDryRun(const QString &sentence);

    bool goOn(const Result<> &done);
    void end(ExitStatus status) { m_loop.exit(exitCode(status)); }
    void didFail(PanelOperation, const HostPanel &, const QString &sentence) override
    {
        if (!sentence.isEmpty())
            warn(sentence);
    }

    const CommandLine &m_line;
    ScriptedAnswers m_answers;
    SessionRecording m_recording; // hands alerts on to the answers; outlives the session
    PrintController m_controller;
    EndSignals m_signals;
    JobDispatch m_dispatch;
    PageCount m_count; ///< of the documents; nothing is known where it is not wanted
    QEventLoop m_loop;
    QString m_told; ///< the sentence of the fault that ended the run
};

/// Whether the next step may follow. If not, the run ends, and the user is told why.
bool Run::goOn(const Result<> &done)
{
    Result<> state = done;
    if (state && EndSignals::haveCome())
        state = Fault{FaultKind::Cancelled,
                      QCoreApplication::translate("NoDialogCommand", "Printing was cancelled.")};
    if (!state) {
        m_told = state.sentence();
        end(failWith(state.fault()));
    }
    return state.isGood();
}

void Run::readDocuments()
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

void Run::takeDocuments()
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
void Run::lookAtSavedJob(const JobRequest &job)
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

void Run::findPrinter()
{
    m_controller.addSessionHook([this](HostSession &session) {
        session.addObserver(this);
        return Result<>();
    });
    if (!goOn(m_recording.begin(m_line, m_controller)))
        return;
    m_controller.findPrinter(m_controller.wantedPrinter(), [this](
                                                               const Result<FoundPrinter> &found) {
        if (found.faultKind() == FaultKind::NoPrinter)
            goOn(Fault{FaultKind::NoPrinter,
                       QCoreApplication::translate("NoDialogCommand",
                                                   "No printer was chosen and there is no default "
                                                   "one; -d QUEUE names one.")});
        else if (goOn(found ? Result<>() : found.fault()))
            takePrinter(*found);
    });
}

void Run::takePrinter(const FoundPrinter &printer)
{
    if (!goOn(printer.shortcomings.isEmpty() ? Result<>() : printer.shortcomings.constFirst()))
        return;
    if (!goOn(printer.start))
        return;
    for (const QString &note : printer.notes)
        warn(note);
    makeSettings();
}

void Run::makeSettings()
{
    Explanation explanation(m_controller.job(), m_line.explain);
    explanation.begin();
    const Result<> made = m_controller.makeRequestedSettings([&](const RequestedChoice &setting) {
        m_answers.answerSheets();
        explanation.tellMade(setting);
    });
    if (made.faultKind() == FaultKind::Vetoed)
        explanation.tellLost(m_controller.lostSettings());
    const bool isAgreed = m_line.yes && made.faultKind() == FaultKind::Vetoed;
    if (!goOn(isAgreed ? makeWithoutLost(made) : made))
        return;
    for (const QString &said : m_answers.takeSentences() + m_controller.yieldedSettings() +
                                   notesOnLayout(m_controller.job()))
        warn(said);
    countPages();
}

/// As if those had not been asked for that are lost.
Result<> Run::makeWithoutLost(const Result<> &made)
{
    warn(made.sentence());
    static_cast<void>(m_answers.takeSentences()); // of what is made once more
    Result<> rest = m_controller.makeAgainWithout(m_controller.lostSettings());
    m_answers.answerSheets();
    if (rest.faultKind() != FaultKind::Vetoed)
        return rest;
    warn(rest.sentence());
    return {};
}

/// Pages that a document does not have would end in trouble on the server.
void Run::countPages()
{
    if (m_controller.job().settings().pageRanges.isEmpty() && !m_line.wait) {
        finish();
        return;
    }
    m_controller.countPages([this](const PageCount &count) {
        m_count = count;
        const PrintJob &job = m_controller.job();
        if (goOn(m_line.each ? checkPagesOfEach(job.settings(), count, job.documents())
                             : checkPages(job.settings(), count)))
            finish();
    });
}

void Run::finish()
{
    const Result<FinishedJob> finished = m_controller.finish();
    m_answers.answerSheets();
    const QStringList said = m_answers.takeSentences();
    if (finished)
        decide(*finished);
    else if (finished.sentence().isNull() && !said.isEmpty())
        goOn(Fault{finished.fault().kind, said.constLast()});
    else
        goOn(finished.fault());
}

/// Nobody is there to be asked: the answer to all doubts is that of the command line.
void Run::decide(const FinishedJob &finished)
{
    if (!finished.doubts.isEmpty() && !m_line.yes) {
        goOn(Fault{FaultKind::Vetoed, joinedSentences(finished.doubts)});
        return;
    }
    for (const QString &doubt : finished.doubts)
        warn(doubt);
    for (const JobAdvice &advice : adviceFor(m_controller.job()))
        warn(advice.sentence);
    deliver(finished.request);
}

void Run::deliver(const JobRequest &request)
{
    if (!goOn({}))
        return;
    if (!m_line.output.isNull())
        write(request);
    else if (request.queue.isEmpty())
        send(request);
    else
        checkCovers(request);
}

/// Only the server knows its cover pages. One that does not tell them says what is wrong with the
/// job itself.
void Run::checkCovers(const JobRequest &request)
{
    if (coversOf(request).isEmpty()) {
        askPrinter(request);
        return;
    }
    m_controller.listCoverPages([this, request](const Result<QStringList> &there) {
        if (goOn(::checkCovers(request, there ? *there : QStringList())))
            askPrinter(request);
    });
}

/// What the printer lacks is told, and stops nothing; nor does one that cannot be asked.
void Run::askPrinter(const JobRequest &request)
{
    m_controller.askCondition([this, request](const Result<PrinterCondition> &condition) {
        if (!goOn({}))
            return;
        JobRequest known = request;
        if (condition) {
            known.terms = condition->terms;
            if (condition->waiting.phase == JobPhase::Stopped && condition->isAccepting &&
                !m_line.wait) // which tells it
                warn(stoppedSentence(request.queue, condition->waiting.reason));
            for (const QString &doubt : doubtsAboutPrinter(m_controller.job(), *condition))
                warn(doubt);
        }
        send(known);
    });
}

/// The job, or one for each of its documents.
QList<OutgoingJob> Run::outgoing(const JobRequest &request)
{
    const HostSettings &settings = m_controller.job().settings();
    if (!m_line.each || m_controller.job().documents().size() < 2)
        return {{request, printedPages(settings, m_count)}};
    QList<OutgoingJob> jobs;
    for (JobRequest &one : m_controller.oneForEach()) {
        one.terms = request.terms;
        jobs += {one, printedPages(settings, {m_count.each.value(jobs.size()), {}})};
    }
    return jobs;
}

void Run::send(const JobRequest &request)
{
    if (request.queue.isEmpty()) {
        goOn(Fault{FaultKind::Request,
                   QCoreApplication::translate("NoDialogCommand",
                                               "No queue was named to print to; -d QUEUE names "
                                               "one, --output FILE keeps the job.")});
        return;
    }
    const QList<OutgoingJob> jobs = outgoing(request);
    if (m_line.dryRun)
        rehearse(jobs);
    else
        m_dispatch.send(jobs);
}

/// The jobs differ in their documents alone.
void Run::rehearse(const QList<OutgoingJob> &jobs)
{
    const JobRequest &first = jobs.constFirst().request;
    const QString sentence =
        jobs.size() == 1 ? QCoreApplication::translate("NoDialogCommand", "%1 would get the job.")
                               .arg(first.queue)
                         : QCoreApplication::translate("NoDialogCommand", "%1 would get %2 jobs.")
                               .arg(first.queue, QString::number(jobs.size()));
    m_controller.rehearse(first, [this, sentence](const Result<> &looked) {
        if (goOn(looked))
            endDryRun(sentence);
    });
}

void Run::write(const JobRequest &request)
{
    if (m_line.dryRun) {
        const OutputVerdict verdict = verdictAt(m_line.output, m_controller.outputTerms());
        const QString refusal = outputRefusal(verdict, m_line.output);
        if (goOn(refusal.isNull() ? Result<>() : Fault{FaultKind::Output, refusal}))
            endDryRun(
                QCoreApplication::translate("NoDialogCommand", "The job would be written to %1.")
                    .arg(shownPath(m_line.output)));
        return;
    }
    m_controller.write(
        m_line.output, request, m_controller.outputTerms(),
        [this](const Result<QStringList> &notes) {
            if (!notes) {
                goOn(notes.fault());
                return;
            }
            const bool isTold =
                tell(QCoreApplication::translate("NoDialogCommand", "The job was written to %1.")
                         .arg(shownPath(m_line.output)));
            for (const QString &note : *notes)
                warn(note);
            if (isTold)
                end(ExitStatus::Done);
        });
}

/// What has come of the run, on standard output. Where that takes nothing, the run ends, and the
/// line is not lost: it may be the number of a job.
bool Run::tell(const QString &sentence)
{
    if (report(m_line, sentence))
        return true;
    end(failWithoutOutput());
    warn(sentence);
    return false;
}

/// Everything was looked at, and nothing is done.
void Run::endDryRun(const QString &sentence)
{
    if (tell(sentence))
        end(ExitStatus::Done);
}

ExitStatus Run::print()
{
    setPasswordAsker(m_line.passwordDescriptor ? newPasswordReader(*m_line.passwordDescriptor)
                                               : newPasswordPrompt());
    QMetaObject::invokeMethod(
        &m_controller, [this] { readDocuments(); }, Qt::QueuedConnection);
    const auto status = static_cast<ExitStatus>(m_loop.exec());
    m_controller.closePrinter(); // is noted, too
    return m_recording.finish(status, m_told);
}

} // namespace

ExitStatus runNoDialogCommand(const CommandLine &line)
{
    return Run(line).print();
}
