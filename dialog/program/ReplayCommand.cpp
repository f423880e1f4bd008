#include "dialog/program/ReplayCommand.h"

#include "dialog/advice/Advising.h"
#include "dialog/files/DescriptorPath.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/replay/ReplayScript.h"
#include "dialog/replay/ReplaySession.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLongestLine = 1'000'000; // bytes

// One line, whatever a file name or a script has in it.
ExitStatus fail(const QString &what, ExitStatus status = ExitStatus::Usage)
{
    const QByteArray line = "velkaro-print: " + displayText(what).toUtf8() + '\n';
    std::fputs(line.constData(), stderr);
    return status;
}

/// Why a file of this kind is no script; null when it is one.
const char *faultOfKind(mode_t mode)
{
    if (S_ISREG(mode))
        return nullptr;
    return S_ISDIR(mode) ? "it is a folder" : "it is no ordinary file";
}

/// A named pipe would keep whoever opens it waiting, and a device may have no end.
QString openByName(QFile &file, const QByteArray &path)
{
    const int descriptor = open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat status = {};
    if (descriptor < 0 ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) ||
        fstat(descriptor, &status) != 0)
        return QString::fromLocal8Bit(std::strerror(errno));
    return QString::fromLatin1(faultOfKind(status.st_mode));
}

/// Why it cannot be read; null when it can.
QString openScript(QFile &file, const QString &script)
{
    const std::optional<int> isOpen =
        script == "-"_L1 ? std::optional<int>(STDIN_FILENO) : descriptorOf(script);
    if (!isOpen)
        return openByName(file, QFile::encodeName(script));
    return file.open(*isOpen, QIODevice::ReadOnly) ? QString() : file.errorString();
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
        // One byte more tells a longer line, and Qt wants another one for its zero.
        const QByteArray text = file.readLine(kLongestLine + 2);
        if (text.isEmpty() && file.error() != QFileDevice::NoError)
            return fail(place + file.errorString());
        if (text.isEmpty())
            return ExitStatus::Done;
        if (text.size() > kLongestLine)
            return fail(place + u"the line has more than %1 bytes"_s.arg(kLongestLine));
        const Result<std::optional<ReplayEvent>> event = readReplayLine(text, folder);
        if (!event)
            return fail(place + event.sentence());
        if (!*event)
            continue;
        const Result<QByteArray> line = session.run(**event);
        if (!line)
            return fail(place + line.sentence());
        if (!print(*line))
            return fail(u"the output cannot be written"_s, ExitStatus::Output);
    }
}

Result<QJsonObject> explainChoice(HostSession &session, const QString &keyword,
                                  const QString &choice)
{
    const Result<PPDMark> wanted = choiceOfPPD(session, keyword, choice);
    if (!wanted)
        return wanted.fault();
    const std::optional<Advice> advice = adviceOn(session, *wanted);
    if (!advice)
        return Fault{FaultKind::Vetoed, u"the choice cannot be explained"_s};
    return adviceReport(*advice);
}

} // namespace

int runReplay(const QString &script, const QString &bundlePath, bool force)
{
    QFile file;
    const QString fault = openScript(file, script);
    if (!fault.isNull())
        return exitCode(fail(u"the script %1 cannot be read: %2"_s.arg(script, fault)));
    const QString name = script == "-"_L1 ? u"standard input"_s : script;
    OutputTerms terms;
    terms.addInput(script);
    terms.mayReplace = force;
    ReplaySession session(bundlePath, terms);
    session.setExplainer(explainChoice);
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
