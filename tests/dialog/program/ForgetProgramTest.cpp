// Warnings that were hidden are shown again, by the program as it is installed.
#include "tests/built/BuiltFiles.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QProcess>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ForgetAlerts : public testing::Test
{
protected:
    QString memory() const { return m_home.filePath(u"velkaro-print/com.velkaro.print.pde.ini"_s); }

    int run(const QStringList &arguments)
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"QT_QPA_PLATFORM"_s);
        environment.remove(u"DISPLAY"_s);
        environment.insert(u"HOME"_s, m_home.path());
        environment.insert(u"XDG_CONFIG_HOME"_s, m_home.path());
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.insert(u"LANGUAGE"_s, u"en"_s);
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(PROGRAM), arguments);
        EXPECT_TRUE(program.waitForFinished());
        m_output = QString::fromUtf8(program.readAllStandardOutput());
        m_errors = QString::fromUtf8(program.readAllStandardError());
        return program.exitCode();
    }

    const QTemporaryDir m_home;
    QString m_output;
    QString m_errors;
};

TEST_F(ForgetAlerts, ShowsThemAgainAndSaysWhich)
{
    writeFile(memory(), "[General]\nBest%20Alert=false\nDuplex%20Alert=true\n");
    EXPECT_EQ(run({u"--forget-alerts"_s}), 0) << m_errors.toStdString();
    EXPECT_EQ(m_output, u"Shown again: Best quality takes longer to print\n"_s);
    const QSettings after(memory(), QSettings::IniFormat);
    EXPECT_EQ(after.allKeys(), QStringList{u"Duplex Alert"_s});
}

TEST_F(ForgetAlerts, SaysNothingWhereNoneAreHidden)
{
    EXPECT_EQ(run({u"--forget-alerts"_s}), 0);
    EXPECT_EQ(m_output, QString());
}

TEST_F(ForgetAlerts, PrintsNothing)
{
    EXPECT_EQ(run({u"--forget-alerts"_s, u"letter.pdf"_s}), 2);
    EXPECT_EQ(m_errors, u"velkaro-print: --forget-alerts only has the warnings shown again: it "
                        "prints nothing.\n"_s);
}

TEST_F(ForgetAlerts, OfNoPlugInAreRefused)
{
    EXPECT_EQ(run({u"--forget-alerts"_s, u"--plug-in"_s, m_home.path()}), 7);
    EXPECT_EQ(m_errors, u"velkaro-print: %1 is no plug-in.\n"_s.arg(m_home.path()));
}

} // namespace
