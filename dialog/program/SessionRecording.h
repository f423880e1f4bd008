#pragma once

#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/work/Result.h"

#include <memory>

class PrintController;
class Recorder;

/// Notes the sessions of a controller where the command line asks for it (--record).
class SessionRecording
{
public:
    SessionRecording();
    ~SessionRecording();

    /// Before the controller's first session, which must not outlive this object. A fault when the
    /// script cannot be written.
    Result<> begin(const CommandLine &line, PrintController &controller);

    /// After the last session has closed: ends the script, and says on standard error when it is
    /// not whole, unless the sentence was `told` already. The status of the run, which had `status`
    /// before.
    ExitStatus finish(ExitStatus status, const QString &told = QString());

private:
    std::unique_ptr<Recorder> m_recorder; // null: nothing is noted
};
