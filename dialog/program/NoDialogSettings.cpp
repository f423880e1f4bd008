#include "dialog/host/HostSession.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/Explanation.h"
#include "dialog/program/NoDialogRun.h"
#include "dialog/program/RequestChecks.h"

#include <QtCore/QCoreApplication>

void NoDialogRun::findPrinter()
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

void NoDialogRun::takePrinter(const FoundPrinter &printer)
{
    if (!goOn(printer.shortcomings.isEmpty() ? Result<>() : printer.shortcomings.constFirst()))
        return;
    if (!goOn(printer.start))
        return;
    for (const QString &note : printer.notes)
        warn(note);
    makeSettings();
}

void NoDialogRun::makeSettings()
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
Result<> NoDialogRun::makeWithoutLost(const Result<> &made)
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
void NoDialogRun::countPages()
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
