#include "dialog/files/PathBytes.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/PrinterDoubts.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/NoDialogRun.h"
#include "dialog/program/RequestChecks.h"
#include "dialog/work/Sentences.h"

#include <QtCore/QCoreApplication>

namespace {

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

} // namespace

void NoDialogRun::finish()
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
void NoDialogRun::decide(const FinishedJob &finished)
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

void NoDialogRun::deliver(const JobRequest &request)
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
void NoDialogRun::checkCovers(const JobRequest &request)
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
void NoDialogRun::askPrinter(const JobRequest &request)
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
QList<OutgoingJob> NoDialogRun::outgoing(const JobRequest &request)
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

void NoDialogRun::send(const JobRequest &request)
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
void NoDialogRun::rehearse(const QList<OutgoingJob> &jobs)
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

void NoDialogRun::write(const JobRequest &request)
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
