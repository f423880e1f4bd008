#include "tests/dialog/program/RunAlone.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

ProgramEnd runAlone(const QStringList &arguments, const QByteArray &input, const QString &language)
{
    const QTemporaryDir home;
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"QT_QPA_PLATFORM"_s);
    environment.remove(u"DISPLAY"_s);
    environment.insert(u"HOME"_s, home.path());
    environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
    environment.insert(u"XDG_RUNTIME_DIR"_s, home.path());
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"LANGUAGE"_s, language);
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(PROGRAM), arguments);
    program.write(input);
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished(120'000));
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}
