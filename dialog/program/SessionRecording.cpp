#include "dialog/program/SessionRecording.h"

#include "dialog/printing/PrintController.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/replay/Recorder.h"

SessionRecording::SessionRecording() = default;

SessionRecording::~SessionRecording() = default;

Result<> SessionRecording::begin(const CommandLine &line, PrintController &controller)
{
    if (line.record.isNull())
        return {};
    m_recorder = std::make_unique<Recorder>();
    Result<> opened = m_recorder->open(line.record, outputTerms(line));
    if (opened)
        controller.addSessionHook(
            [this](HostSession &session) { return m_recorder->attach(session); });
    else
        m_recorder.reset();
    return opened;
}

ExitStatus SessionRecording::finish(ExitStatus status, const QString &told)
{
    if (!m_recorder)
        return status;
    const Result<> finished = m_recorder->finish();
    m_recorder.reset();
    if (finished)
        return status;
    if (finished.sentence() != told)
        warn(finished.sentence());
    const bool hasOtherFault = status != ExitStatus::Done && status != ExitStatus::Cancelled;
    return hasOtherFault ? status : statusOf(finished.fault().kind);
}
