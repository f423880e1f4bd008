#include "dialog/files/PathBytes.h"
#include "dialog/program/AdviseCommand.h"
#include "dialog/program/CheckCommand.h"
#include "dialog/program/CommandLine.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/DialogCommand.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/program/FollowCommand.h"
#include "dialog/program/ForgetCommand.h"
#include "dialog/program/LauncherOutput.h"
#include "dialog/program/LauncherTexts.h"
#include "dialog/program/ReplayCommand.h"
#include "dialog/program/ToolkitMessages.h"
#include "dialog/program/Translations.h"

#include <QtCore/QCoreApplication>

#include <string_view>

namespace {

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments << pathOfBytes(argv[index]);
    return arguments;
}

/// Reads the arguments once more, with the user's language at hand: only what is wrong needs
/// it.
int refuse(int argc, char **argv, const QStringList &arguments)
{
    const QCoreApplication application(argc, argv);
    installTranslations();
    return exitCode(failWith(ExitStatus::Usage, parseCommandLine(arguments).sentence()));
}

} // namespace

/// What the launcher calls: the whole program.
extern "C" Q_DECL_EXPORT int velkaroPrintMain(int argc, char **argv)
{
    if (argc > 1 && std::string_view(argv[1]) == kAdviseOption)
        return runAdviseCommand(argc, argv);
    if (argc > 1 && std::string_view(argv[1]) == kFollowOption)
        return runFollowCommand(argc, argv);
    const QStringList arguments = argumentsOf(argc, argv);
    const Result<CommandLine> parsed = parseCommandLine(arguments);
    if (!parsed)
        return refuse(argc, argv, arguments);
    const CommandLine &line = *parsed;
    if (line.help)
        return exitCode(printText(launcherTexts().help));
    if (line.version)
        return exitCode(printText(versionText()));
    tellToolkitFaultsOnly();
    if (line.forgetAlerts)
        return runForgetCommand(argc, argv, line);
    if (!line.checkPPD.isNull())
        return runCheckCommand(argc, argv, line);
    if (!line.replay.isNull())
        return runReplayCommand(argc, argv, line);
    return runDialogCommand(argc, argv, line);
}
