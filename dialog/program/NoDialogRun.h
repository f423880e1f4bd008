#pragma once

#include "dialog/host/SessionObserver.h"
#include "dialog/printing/PrintController.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/program/JobDispatch.h"
#include "dialog/program/SessionRecording.h"
#include "dialog/work/EndSignals.h"

#include <QtCore/QEventLoop>

/// One run of the command: drives a controller from one step to the next, and answers in a person's
/// place.
class NoDialogRun : private SessionObserver
{
public:
    /// The command line must outlive the run.
    explicit NoDialogRun(const CommandLine &line);

    /// Runs to the end, in an event loop of its own.
    ExitStatus print();

private:
    // What is printed: NoDialogDocuments.cpp.
    void readDocuments();
    void takeDocuments();
    void lookAtSavedJob(const JobRequest &job);

    // Where, and with which settings: NoDialogSettings.cpp.
    void findPrinter();
    void takePrinter(const FoundPrinter &printer);
    void makeSettings();
    Result<> makeWithoutLost(const Result<> &made);
    void countPages();

    // What becomes of it: NoDialogDelivery.cpp.
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
    void didFail(PanelOperation, const HostPanel &, const QString &sentence) override;

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
