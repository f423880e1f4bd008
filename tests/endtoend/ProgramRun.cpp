#include "tests/endtoend/ProgramRun.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {

constexpr int kTimeout = 60000; // ms

} // namespace

ProgramRun runProgram(const QStringList &arguments, const QByteArray &lpoptions,
                      const std::function<void(QProcess &program)> &meanwhile)
{
    const QTemporaryDir home;
    QFile saved(home.filePath(QStringLiteral(".cups/lpoptions")));
    if (!QDir(home.path()).mkdir(QStringLiteral(".cups")) || !saved.open(QIODevice::WriteOnly) ||
        saved.write(lpoptions) != lpoptions.size())
        return {};
    saved.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(VELKARO_PROGRAM), arguments);
    if (meanwhile && process.waitForStarted(kTimeout))
        meanwhile(process);
    if (!process.waitForFinished(kTimeout) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished();
        return {-1, QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}
