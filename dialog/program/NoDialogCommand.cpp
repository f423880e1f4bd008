#include "dialog/program/NoDialogCommand.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/job/JobFileReader.h"
#include "dialog/job/PipeDocuments.h"
#include "dialog/printing/JobDelivery.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/replay/Recorder.h"
#include "dialog/work/CommandWait.h"

#include <QtCore/QCoreApplication>

#include <utility>

using enum ExitStatus;

namespace {

QString sentence(const char *text)
{
    return QCoreApplication::translate("NoDialogCommand", text);
}

/// One run of the command. Each step gives Done when the next one may follow.
class Run
{
public:
    Run(const CommandLine &line, const Documents &documents, EndSignals &signals)
        : m_line(line), m_signals(signals), m_answers(line.yes), m_job(documents)
    {}

    ExitStatus print();

private:
    ExitStatus record();
    ExitStatus findPrinter();
    ExitStatus open();
    ExitStatus makeSettings();
    ExitStatus askPanels();
    ExitStatus finish();
    ExitStatus takeSteps();

    const CommandLine &m_line;
    EndSignals &m_signals;
    ScriptedAnswers m_answers;
    std::unique_ptr<Recorder> m_recorder; // hands alerts on to the answers
    Refusal m_refusal;
    FetchedPrinter m_printer;
    PrintJob m_job;
};

PrinterSource sourceOf(const CommandLine &line)
{
    PrinterSource source;
    source.server = line.server;
    source.ppdPath = line.ppd;
    if (line.ppd.isNull() || !line.queue.isNull())
        source.queue = wantedQueue(line.queue, line.instance);
    return source;
}

ExitStatus Run::record()
{
    if (m_line.record.isNull())
        return Done;
    m_recorder = std::make_unique<Recorder>();
    QString error;
    return m_recorder->open(m_line.record, outputTerms(m_line), &error) ? Done
                                                                        : failWith(Output, error);
}

ExitStatus Run::findPrinter()
{
    const PrinterSource source = sourceOf(m_line);
    auto fetched =
        waitUnlessEnded<FetchedPrinter>(m_signals, kServerTimeout, [source](CallGuard &guard) {
            return fetchPrinter(source, guard);
        });
    m_printer = fetched ? std::move(*fetched) : givenUpPrinter(source);
    if (!source.ppdPath.isNull())
        return Done;
    if (!m_printer.ppd.answer.isGood())
        return failWith(statusOf(m_printer.ppd.answer), m_printer.ppd.answer.sentence);
    if (m_printer.queue.queue.isEmpty())
        return failWith(Usage, sentence(QT_TRANSLATE_NOOP("NoDialogCommand",
                                                          "No printer was chosen and there is no "
                                                          "default one; -d QUEUE names one.")));
    return Done;
}

ExitStatus Run::open()
{
    PrinterSource source = sourceOf(m_line);
    source.queue = m_printer.queue;
    const QList<JobOption> saved = savedOptions(source.queue);
    if (m_printer.ppdPath.isNull()) {
        m_job.setPrinter(source, {nullptr, applySavedOptions(nullptr, saved), {}});
        return Done;
    }
    SessionOptions options;
    options.ppdPath = m_printer.ppdPath;
    options.bundlePath = m_line.plugIn;
    options.callObserver = [this](const HostCallback::Call &call) {
        if (call.kind == HostCallback::Call::Kind::WillChangePPDOptionKeyValue && !call.accepted)
            m_refusal = {call.keyword, call.choice};
    };
    QString recordError;
    OpenedPrinter printer =
        openPrinter(options, std::move(m_printer.opened), saved, [&](HostSession &session) {
            if (m_recorder)
                m_recorder->attach(session, &recordError);
        });
    if (!printer.session)
        return failWith(Usage,
                        source.ppdPath.isNull()
                            ? errorOfQueue(printer.error, options.ppdPath, source.queue.queue)
                            : printer.error);
    if (!recordError.isNull())
        return failWith(Output, recordError);
    const std::optional<PlugInFault> fault = printer.session->plugInFault();
    m_job.setPrinter(source, std::move(printer));
    return fault ? failWith(PlugIn, fault->sentence) : Done;
}

ExitStatus Run::makeSettings()
{
    if (!m_line.paper.isNull()) {
        const QString error = choosePaper(m_job, m_line.paper);
        if (!error.isNull())
            return failWith(Usage, error);
    }
    for (const RequestedChoice &wanted : m_line.choices) {
        const QString error = makeSetting(m_job, wanted.keyword, wanted.choice, m_refusal);
        m_answers.answerSheets();
        if (!error.isNull())
            return failWith(Usage, error);
    }
    for (const QString &said : m_answers.takeSentences())
        warn(said);
    return Done;
}

ExitStatus Run::askPanels()
{
    if (!m_job.session())
        return Done;
    const bool proceed = m_job.session()->askShouldPrint().proceed;
    m_answers.answerSheets();
    const QStringList said = m_answers.takeSentences();
    if (proceed)
        return Done;
    return failWith(Vetoed, said.isEmpty() ? sentence(QT_TRANSLATE_NOOP(
                                                 "NoDialogCommand",
                                                 "The printer's settings do not allow this job."))
                                           : said.constLast());
}

ExitStatus Run::finish()
{
    const JobOptions options = m_job.options();
    if (!options.faults.isEmpty())
        return failWith(Vetoed, options.faults.constFirst());
    const JobRequest request = m_job.request(options.options);
    return m_line.output.isNull()
               ? sendJob(request, m_signals)
               : keepJob(m_line.output, request, jobFileTerms(m_line), m_signals);
}

ExitStatus Run::takeSteps()
{
    using Step = ExitStatus (Run::*)();
    for (const Step step : {&Run::record, &Run::findPrinter, &Run::open, &Run::makeSettings,
                            &Run::askPanels, &Run::finish}) {
        if (EndSignals::haveCome())
            return failWith(Cancelled, sentence(QT_TRANSLATE_NOOP("NoDialogCommand",
                                                                  "Printing was cancelled.")));
        const ExitStatus status = (this->*step)();
        if (status != Done)
            return status;
    }
    return Done;
}

ExitStatus Run::print()
{
    const ExitStatus status = takeSteps();
    m_job.closePrinter(); // is noted, too
    const QString fault = m_recorder ? m_recorder->finish() : QString();
    return status != Done || fault.isNull() ? status : failWith(Output, fault);
}

ReadDocuments readDocuments(const Documents &documents, EndSignals &signals)
{
    if (!hasPipes(documents))
        return {documents, {}};
    return waitUnlessEnded<ReadDocuments>(
               signals, kFileTimeout,
               [documents](CallGuard &guard) { return readPipes(documents, guard); })
        .value_or(ReadDocuments());
}

} // namespace

ExitStatus runNoDialogCommand(const CommandLine &line)
{
    EndSignals signals;
    const OpenedDocuments opened = openDocuments(line.files);
    if (!opened.error.isNull())
        return failWith(ExitStatus::Document, opened.error);
    const ReadDocuments read = readDocuments(opened.documents, signals);
    if (!read.answer.isGood())
        return failWith(statusOf(read.answer), read.answer.sentence);
    const Documents &documents = read.documents;
    if (documents.size() == 1 && isJobFile(documents.front()))
        return sendJobFile(line, documents.front(), signals);
    return Run(line, documents, signals).print();
}
