// The program's own answers, before anything of the dialog is loaded and after.
#include "dialog/program/HelpText.h"
#include "tests/support/ClashingPPD.h"
#include "tests/support/Files.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct LauncherOutcome
{
    int status = -1;
    std::string output;
    std::string error;
};

LauncherOutcome runProgram(const QString &program, const QStringList &arguments,
                           const QMap<QString, QString> &variables = {})
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LANGUAGE"_s, u"en"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    for (const QString &display : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(display);
    for (auto variable = variables.cbegin(); variable != variables.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished());
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

} // namespace

TEST(Launcher, AnswersHelpAndVersion)
{
    const std::pair<QStringList, const char *> cases[] = {
        {{u"--help"_s}, helpText()},
        {{u"--version"_s}, versionText()},
        {{u"-d"_s, u"queue"_s, u"--help"_s}, helpText()},
        {{u"--ppd=x"_s, u"--version"_s}, versionText()},
        {{u"--nonsense"_s, u"--help"_s}, helpText()},
    };
    for (const auto &[arguments, text] : cases) {
        const LauncherOutcome result = runProgram(QStringLiteral(PROGRAM), arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.output, text);
        EXPECT_EQ(result.error, "");
    }
}

TEST(Launcher, RefusesAnUnknownOption)
{
    const LauncherOutcome result = runProgram(QStringLiteral(PROGRAM), {u"--nonsense"_s});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error, "velkaro-print: There is no option --nonsense.\n");
}

TEST(Launcher, RefusesInTheUsersLanguage)
{
    const std::pair<QString, const char *> cases[] = {
        {u"de"_s, "velkaro-print: Die Option --nonsense gibt es nicht.\n"},
        {u"de_CH"_s, "velkaro-print: Die Option --nonsense gibt es nicht.\n"},
        {u"fr"_s, "velkaro-print: L’option --nonsense n’existe pas.\n"},
        {u"it:fr"_s, "velkaro-print: L’option --nonsense n’existe pas.\n"},
        {u"ja"_s, "velkaro-print: --nonsense というオプションはありません。\n"},
    };
    for (const auto &[language, sentence] : cases) {
        const LauncherOutcome result =
            runProgram(QStringLiteral(PROGRAM), {u"--nonsense"_s}, {{u"LANGUAGE"_s, language}});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.error, sentence);
    }
}

TEST(Launcher, NamesSettingsThatClashAsJapaneseIsWritten)
{
    const ClashingPPD printer;
    const QStringList arguments{u"--no-dialog"_s,
                                u"--ppd"_s,
                                printer.path(),
                                u"-o"_s,
                                u"Duplex=DuplexTumble"_s,
                                u"-o"_s,
                                u"VKMediaType=Transparencies"_s,
                                u"--output"_s,
                                u"job"_s,
                                printer.path()};
    const LauncherOutcome result =
        runProgram(QStringLiteral(PROGRAM), arguments,
                   {{u"LC_ALL"_s, u"ja_JP.UTF-8"_s}, {u"LANGUAGE"_s, u"ja"_s}});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error,
              "velkaro-print: 「用紙種類: OHPフィルム」は選べません。このプリンターでは「両面印刷: "
              "短辺とじ」と同時に使えません。\n");
}

TEST(Launcher, SaysSoWhenThereIsNoDisplayForTheDialog)
{
    const QMap<QString, QString> cases[] = {
        {},
        {{u"DISPLAY"_s, u":12345"_s}},
        {{u"QT_QPA_PLATFORM"_s, u"nonsense"_s}},
    };
    for (const auto &environment : cases) {
        const LauncherOutcome result =
            runProgram(QStringLiteral(PROGRAM), {u"--ppd"_s, u"small.ppd"_s}, environment);
        EXPECT_EQ(result.status, 2) << environment.size();
        EXPECT_EQ(result.error, "velkaro-print: There is no display for the dialog; --no-dialog "
                                "prints without it.\n");
    }
}

TEST(Launcher, SaysInTheUsersLanguageThatThereIsNoDisplay)
{
    const LauncherOutcome result =
        runProgram(QStringLiteral(PROGRAM), {u"--ppd"_s, u"small.ppd"_s},
                   {{u"LANGUAGE"_s, u"ja"_s}, {u"DISPLAY"_s, u":12345"_s}});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.error, testing::HasSubstr("--no-dialog"));
    EXPECT_THAT(result.error, testing::Not(testing::HasSubstr("There is no display")));
}

TEST(Launcher, NeedsNoDisplayWhereNoWindowIsShown)
{
    const QTemporaryDir folder;
    const QString ppd = folder.filePath(u"small.ppd"_s);
    const QString script = folder.filePath(u"the.jsonl"_s);
    writeFile(ppd, smallPrinter().text());
    writeFile(script, "{\"do\": \"open\", \"ppd\": \"small.ppd\"}\n");
    const QMap<QString, QString> desktop = {{u"QT_QPA_PLATFORM"_s, u"xcb"_s},
                                            {u"DISPLAY"_s, u":12345"_s}};
    const QStringList cases[] = {
        {u"--replay"_s, script},
        {u"--ppd"_s, ppd, u"--screenshot"_s, folder.filePath(u"dialog.png"_s)},
        {u"--ppd"_s, ppd, u"--no-dialog"_s, u"--output"_s, folder.filePath(u"job"_s), ppd},
    };
    for (const QStringList &arguments : cases) {
        const LauncherOutcome result = runProgram(QStringLiteral(PROGRAM), arguments, desktop);
        EXPECT_EQ(result.status, 0) << arguments.join(u' ').toStdString();
        EXPECT_EQ(result.error, "");
    }
}

TEST(Launcher, ReplaysTheSameInEveryUsersLanguage)
{
    const QTemporaryDir folder;
    const QString script = folder.filePath(u"the.jsonl"_s);
    writeFile(folder.filePath(u"the.ppd"_s), sampleText(u"velkaro-px-t900"_s));
    writeFile(script, "{\"do\": \"open\", \"ppd\": \"the.ppd\"}\n"
                      "{\"do\": \"show\", \"panel\": \"print\"}\n"
                      "{\"do\": \"summary\", \"panel\": \"print\"}\n");
    const QMap<QString, QString> japanese = {{u"LC_ALL"_s, u"ja_JP.UTF-8"_s},
                                             {u"LANGUAGE"_s, u"ja"_s}};
    const QStringList arguments{u"--replay"_s, script};
    const LauncherOutcome here = runProgram(QStringLiteral(PROGRAM), arguments);
    EXPECT_THAT(here.output, testing::HasSubstr("\"Media Type\":\"Plain Paper\""));
    EXPECT_EQ(runProgram(QStringLiteral(PROGRAM), arguments, japanese).output, here.output);
}

TEST(Launcher, SaysSoWhenTheInstallationIsIncomplete)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"bin"_s));
    const QString copy = folder.filePath(u"bin/velkaro-print"_s);
    ASSERT_TRUE(QFile::copy(QStringLiteral(PROGRAM), copy));
    EXPECT_EQ(runProgram(copy, {u"--version"_s}).output, versionText());
    const LauncherOutcome result = runProgram(copy, {u"--replay"_s, u"-"_s});
    EXPECT_EQ(result.status, 7);
    EXPECT_THAT(result.error, testing::HasSubstr("the installation is incomplete: "));
    EXPECT_THAT(result.error, testing::HasSubstr("libvelkaro-dialog.so"));
}
