#include "dialog/commandline/CommandLine.h"
#include "dialog/commandline/ExitStatus.h"
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

} // namespace

/// What the launcher calls: the whole program but --help and --version.
extern "C" Q_DECL_EXPORT int velkaroPrintMain(int argc, char **argv)
{
    const ParsedCommandLine parsed = parseCommandLine(argumentsOf(argc, argv));
    if (!parsed.error.isNull())
        return refuse(parsed.error);
    const CommandLine &line = parsed.commandLine;
    if (!line.replay.isNull())
        return runReplayCommand(argc, argv, line.replay, line.plugIn);
    return runDialogCommand(argc, argv, line);
}
