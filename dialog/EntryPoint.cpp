#include "dialog/commandline/CommandLine.h"
#include "dialog/commandline/ExitStatus.h"
#include "dialog/commandline/HelpText.h"
#include "dialog/commandline/ToolkitMessages.h"
#include "dialog/replay/ReplayCommand.h"
#include "dialog/window/DialogCommand.h"

#include <QtCore/QFile>

#include <cstdio>

namespace {

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments << QFile::decodeName(argv[index]);
    return arguments;
}

int refuse(const QString &sentence)
{
    std::fprintf(stderr, "velkaro-print: %s\n", sentence.toLocal8Bit().constData());
    return exitCode(ExitStatus::Usage);
}

int print(const char *text)
{
    std::fputs(text, stdout);
    return exitCode(std::fflush(stdout) == 0 ? ExitStatus::Done : ExitStatus::Output);
}

} // namespace

/// What the launcher calls: the whole program.
extern "C" Q_DECL_EXPORT int velkaroPrintMain(int argc, char **argv)
{
    const ParsedCommandLine parsed = parseCommandLine(argumentsOf(argc, argv));
    if (!parsed.error.isNull())
        return refuse(parsed.error);
    const CommandLine &line = parsed.commandLine;
    if (line.help)
        return print(helpText());
    if (line.version)
        return print(versionText());
    tellToolkitFaultsOnly();
    if (!line.replay.isNull())
        return runReplayCommand(argc, argv, line.replay, line.plugIn);
    return runDialogCommand(argc, argv, line);
}
