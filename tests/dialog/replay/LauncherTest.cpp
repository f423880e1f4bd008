// The program's own answers, before anything of the dialog is loaded and after.
#include "dialog/commandline/HelpText.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Result
{
    int status = -1;
    std::string output;
    std::string error;
};

Result runProgram(const QString &program, const QStringList &arguments,
                  const QString &language = u"en"_s)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LANGUAGE"_s, language);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    for (const QString &display : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(display);
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
        const Result result = runProgram(QStringLiteral(PROGRAM), arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.output, text);
        EXPECT_EQ(result.error, "");
    }
}

TEST(Launcher, RefusesAnUnknownOption)
{
    const Result result = runProgram(QStringLiteral(PROGRAM), {u"--nonsense"_s});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error, "velkaro-print: There is no option --nonsense.\n");
}

TEST(Launcher, RefusesInTheUsersLanguage)
{
    const Result result = runProgram(QStringLiteral(PROGRAM), {u"--nonsense"_s}, u"ja"_s);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error, "velkaro-print: --nonsense というオプションはありません。\n");
}

TEST(Launcher, SaysSoWhenThereIsNoDisplayForTheDialog)
{
    const Result result = runProgram(QStringLiteral(PROGRAM), {u"--ppd"_s, u"small.ppd"_s});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error, "velkaro-print: There is no display for the dialog; --no-dialog prints "
                            "without it.\n");
}

TEST(Launcher, SaysSoWhenTheInstallationIsIncomplete)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"bin"_s));
    const QString copy = folder.filePath(u"bin/velkaro-print"_s);
    ASSERT_TRUE(QFile::copy(QStringLiteral(PROGRAM), copy));
    EXPECT_EQ(runProgram(copy, {u"--version"_s}).output, versionText());
    const Result result = runProgram(copy, {u"--replay"_s, u"-"_s});
    EXPECT_EQ(result.status, 7);
    EXPECT_THAT(result.error, testing::HasSubstr("the installation is incomplete: "));
    EXPECT_THAT(result.error, testing::HasSubstr("libvelkaro-dialog.so"));
}
