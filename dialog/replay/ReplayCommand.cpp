#include "dialog/replay/ReplayCommand.h"

#include "dialog/commandline/ExitStatus.h"
#include "dialog/replay/ReplayScript.h"
#include "dialog/replay/ReplaySession.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// One line, whatever a file name or a script has in it.
ExitStatus fail(const QString &what)
{
    const QByteArray line = "velkaro-print: " + displayText(what).toUtf8() + '\n';
    std::fputs(line.constData(), stderr);
    return ExitStatus::Usage;
}

bool openScript(QFile &file, const QString &script)
{
    if (script == "-"_L1)
        return file.open(STDIN_FILENO, QIODevice::ReadOnly);
    file.setFileName(script);
    return file.open(QIODevice::ReadOnly);
}

QDir folderOf(const QString &script)
{
    return script == "-"_L1 ? QDir::current() : QFileInfo(script).absoluteDir();
}

bool print(const QByteArray &line)
{
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout);
    std::fputc('\n', stdout);
    return std::fflush(stdout) == 0;
}

ExitStatus runLines(QFile &file, const QString &name, const QDir &folder, ReplaySession &session)
{
    for (int number = 1;; ++number) {
        const QString place = u"%1, line %2: "_s.arg(name, QString::number(number));
        const QByteArray text = file.readLine();
        if (text.isEmpty() && file.error() != QFileDevice::NoError)
            return fail(place + file.errorString());
        if (text.isEmpty())
            return ExitStatus::Done;
        const ReplayLine line = readReplayLine(text, folder);
        if (!line.error.isNull())
            return fail(place + line.error);
        if (!line.event)
            continue;
        const ReplaySession::Outcome outcome = session.run(*line.event);
        if (!outcome.fatal.isNull())
            return fail(place + outcome.fatal);
        if (!print(outcome.line))
            return fail(u"the output cannot be written"_s);
    }
}

} // namespace

int runReplay(const QString &script, const QString &bundlePath, bool force)
{
    QFile file;
    if (!openScript(file, script))
        return exitCode(
            fail(u"the script %1 cannot be read: %2"_s.arg(script, file.errorString())));
    const QString name = script == "-"_L1 ? u"standard input"_s : script;
    OutputTerms terms;
    terms.addInput(script);
    terms.mayReplace = force;
    ReplaySession session(bundlePath, terms);
    return exitCode(runLines(file, name, folderOf(script), session));
}

int runReplayCommand(int &argc, char **argv, const CommandLine &line)
{
    // Whatever a desktop's session names: its display may be out of reach, which Qt does not
    // survive.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return runReplay(line.replay, line.plugIn, line.force);
}
