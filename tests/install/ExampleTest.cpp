// The example plug-in, in an installed program beside our own.
#include "tests/built/BuiltFiles.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeout = 60000; // ms

struct ProgramRun
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

class InstalledExample : public testing::Test
{
protected:
    InstalledExample() { writeFile(m_folder.filePath(u"page.ps"_s), "%!PS\n"); }

    ProgramRun run(const QStringList &arguments, const QString &language = u"C.UTF-8"_s)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_folder.path());
        environment.insert(u"LC_ALL"_s, language);
        environment.remove(u"XDG_CONFIG_HOME"_s);
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(m_folder.path());
        program.start(prefix() + u'/' + QLatin1String(BIN_FOLDER) + u"/velkaro-print"_s, arguments);
        const bool hasEnded = program.waitForFinished(kTimeout);
        EXPECT_TRUE(hasEnded) << program.errorString().toStdString();
        return {hasEnded ? program.exitCode() : -1, program.readAllStandardOutput(),
                program.readAllStandardError()};
    }

    /// The options in the header of the job that is made for the PPD.
    QByteArrayList jobOptions(const QString &ppd, const QStringList &choices)
    {
        QStringList arguments{u"--no-dialog"_s, u"--force"_s, u"--ppd"_s,  ppd,
                              u"--output"_s,    u"the.job"_s, u"page.ps"_s};
        for (const QString &choice : choices)
            arguments << u"-o"_s << choice;
        const ProgramRun made = run(arguments);
        EXPECT_EQ(made.status, 0) << made.errors.toStdString();
        QByteArrayList options;
        for (const QByteArray &line : readFile(m_folder.filePath(u"the.job"_s)).split('\n')) {
            if (line.isEmpty())
                break;
            if (line.startsWith("Option: "))
                options << line.mid(8);
        }
        return options;
    }

    static QString prefix() { return QLatin1String(PREFIX); }
    static QString example(const QString &file) { return QLatin1String(EXAMPLE) + u'/' + file; }
    static QString examplePPD() { return example(u"printer/example-printstar-100.ppd"_s); }
    static QString exampleBundle()
    {
        return prefix() + u'/' + QLatin1String(PLUGINS_FOLDER) + u"/Example.bundle"_s;
    }

    QTemporaryDir m_folder;
};

TEST_F(InstalledExample, RunsItsSessionAsRecorded)
{
    QFile::copy(examplePPD(), m_folder.filePath(u"example-printstar-100.ppd"_s));
    QFile::copy(example(u"session/session.jsonl"_s), m_folder.filePath(u"session.jsonl"_s));
    const ProgramRun replay =
        run({u"--replay"_s, u"session.jsonl"_s, u"--plug-in"_s, exampleBundle()});
    EXPECT_EQ(replay.status, 0) << replay.errors.toStdString();
    const QByteArrayList lines = replay.output.split('\n');
    const QByteArrayList expected = readFile(example(u"session/expected.jsonl"_s)).split('\n');
    ASSERT_EQ(lines.size(), expected.size()) << replay.output.toStdString();
    for (qsizetype line = 0; line < lines.size(); ++line)
        EXPECT_EQ(lines[line].toStdString(), expected[line].toStdString()) << "line " << line + 1;
}

TEST_F(InstalledExample, PutsItsSettingsIntoTheJob)
{
    EXPECT_EQ(jobOptions(examplePPD(), {u"PageSize=A7"_s, u"ExMedium=Card"_s, u"ExSaveToner=Yes"_s,
                                        u"ExDarkness=2"_s}),
              (QByteArrayList{"PageSize=A7", "ExMedium=Card", "ExSaveToner=Yes",
                              "print-scaling=auto", "com.example.print.Darkness=2"}));
}

TEST_F(InstalledExample, SaysItselfWhyAChoiceIsNotThere)
{
    const ProgramRun why = run({u"--ppd"_s, examplePPD(), u"--why"_s, u"ExMedium=Card"_s});
    EXPECT_EQ(why.status, 0) << why.errors.toStdString();
    EXPECT_THAT(why.output.toStdString(),
                testing::StartsWith("Cards are printed one by one from the rear, where only small "
                                    "paper fits. Card is not there for "));
}

TEST_F(InstalledExample, IsNotUsedForAPrinterOfOurs)
{
    const QByteArrayList options =
        jobOptions(samplePPD(u"velkaro-px-t900"_s), {u"VKMediaType=Glossy"_s});
    EXPECT_TRUE(options.contains("VKMediaType=Glossy"));
    EXPECT_TRUE(options.contains("com.velkaro.print.PrintSettings.T2T_Red=0"));
}

TEST_F(InstalledExample, HasTheOnlyPanelOfItsPrinter)
{
    EXPECT_FALSE(jobOptions(examplePPD(), {}).join(' ').contains("com.velkaro"));
    const ProgramRun shown = run(
        {u"--ppd"_s, examplePPD(), u"--panel"_s, u"example"_s, u"--screenshot"_s, u"panel.png"_s});
    EXPECT_EQ(shown.status, 0) << shown.errors.toStdString();
    const ProgramRun ours =
        run({u"--ppd"_s, examplePPD(), u"--panel"_s, u"print"_s, u"--screenshot"_s, u"ours.png"_s});
    EXPECT_EQ(ours.status, 2);
    EXPECT_THAT(ours.errors.toStdString(), testing::HasSubstr("There is no panel print."));
}

TEST_F(InstalledExample, LeavesAPrinterOfAnotherMakerWithoutPanels)
{
    const QString ppd = m_folder.filePath(u"other.ppd"_s);
    writeFile(ppd, readFile(examplePPD()).replace("\"Example", "\"Other"));
    EXPECT_EQ(jobOptions(ppd, {u"ExMedium=Labels"_s}),
              (QByteArrayList{"PageSize=A4", "ExMedium=Labels", "ExSaveToner=No", "ExDarkness=0",
                              "print-scaling=auto"}));
}

TEST_F(InstalledExample, IsRefusedWhereOthersMayChangeIt)
{
    const QByteArray bundle = QFile::encodeName(exampleBundle());
    ASSERT_EQ(chmod(bundle.constData(), 0777), 0);
    const ProgramRun refused = run(
        {u"--no-dialog"_s, u"--ppd"_s, examplePPD(), u"--output"_s, u"the.job"_s, u"page.ps"_s});
    ASSERT_EQ(chmod(bundle.constData(), 0755), 0);
    EXPECT_EQ(refused.status, 7);
    EXPECT_EQ(refused.errors.toStdString(),
              "velkaro-print: The plug-in is not used, because other users may change " +
                  bundle.toStdString() +
                  ". Let nobody but yourself and the administrator write there.\n");
}

} // namespace
