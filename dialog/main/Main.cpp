// The program itself answers --help and --version at once; whatever needs the dialog is in a
// library of its own, so that nobody waits for widgets who sees none.
#include "dialog/commandline/CommandLine.h"
#include "dialog/commandline/ExitStatus.h"
#include "dialog/commandline/HelpText.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstdio>
#include <dlfcn.h>

namespace {

using EntryPoint = int (*)(int, char **);

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments << QFile::decodeName(argv[index]);
    return arguments;
}

int print(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
    return exitCode(std::fflush(stdout) == 0 ? ExitStatus::Done : ExitStatus::Output);
}

int runDialogLibrary(int argc, char **argv)
{
    const QString program = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    const QString path = QFileInfo(program).path() +
                         QStringLiteral("/" VELKARO_PRIVATE_FROM_BIN "/libvelkaro-dialog.so");
    void *library = dlopen(QFile::encodeName(path).constData(), RTLD_LAZY);
    void *entry = library ? dlsym(library, "velkaroPrintMain") : nullptr;
    if (!entry) {
        std::fprintf(stderr, "velkaro-print: the installation is incomplete: %s\n", dlerror());
        return exitCode(ExitStatus::PlugIn);
    }
    return reinterpret_cast<EntryPoint>(entry)(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    const CommandLine line = parseCommandLine(argumentsOf(argc, argv)).commandLine;
    if (line.help)
        return print(helpText());
    if (line.version)
        return print(versionText());
    return runDialogLibrary(argc, argv);
}
