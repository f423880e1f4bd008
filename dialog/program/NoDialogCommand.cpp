#include "dialog/program/NoDialogCommand.h"

#include "dialog/program/CommandOutput.h"
#include "dialog/program/LauncherOutput.h"
#include "dialog/program/NoDialogRun.h"
#include "dialog/program/PasswordPrompt.h"

#include <QtCore/QCoreApplication>

NoDialogRun::NoDialogRun(const CommandLine &line)
    : m_line(line),
      m_answers(line.yes),
      m_controller(line),
      m_signals([this] { m_controller.cancel(); }),
      m_dispatch(line, m_controller, m_signals, [this](ExitStatus status, const QString &told) {
          m_told = told;
          end(status);
      })
{}

/// Whether the next step may follow. If not, the run ends, and the user is told why.
bool NoDialogRun::goOn(const Result<> &done)
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

void NoDialogRun::didFail(PanelOperation, const HostPanel &, const QString &sentence)
{
    if (!sentence.isEmpty())
        warn(sentence);
}

/// What has come of the run, on standard output. Where that takes nothing, the run ends, and the
/// line is not lost: it may be the number of a job.
bool NoDialogRun::tell(const QString &sentence)
{
    if (report(m_line, sentence))
        return true;
    end(failWithoutOutput());
    warn(sentence);
    return false;
}

/// Everything was looked at, and nothing is done.
void NoDialogRun::endDryRun(const QString &sentence)
{
    if (tell(sentence))
        end(ExitStatus::Done);
}

ExitStatus NoDialogRun::print()
{
    setPasswordAsker(m_line.passwordDescriptor ? newPasswordReader(*m_line.passwordDescriptor)
                                               : newPasswordPrompt());
    QMetaObject::invokeMethod(
        &m_controller, [this] { readDocuments(); }, Qt::QueuedConnection);
    const auto status = static_cast<ExitStatus>(m_loop.exec());
    m_controller.closePrinter(); // is noted, too
    return m_recording.finish(status, m_told);
}

ExitStatus runNoDialogCommand(const CommandLine &line)
{
    return NoDialogRun(line).print();
}
