// The program's own answers, before anything of the dialog is loaded and after.
#include "dialog/program/LauncherTexts.h"
#include "tests/support/CaseName.h"
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

#include <algorithm>

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
        {{u"--help"_s}, kEnglishTexts.help},
        {{u"--version"_s}, versionText()},
        {{u"-d"_s, u"queue"_s, u"--help"_s}, kEnglishTexts.help},
        {{u"--ppd=x"_s, u"--version"_s}, versionText()},
        {{u"--nonsense"_s, u"--help"_s}, kEnglishTexts.help},
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

QStringList argumentsThatClash(const ClashingPPD &printer)
{
    return {u"--no-dialog"_s,
            u"--ppd"_s,
            printer.path(),
            u"-o"_s,
            u"Duplex=DuplexTumble"_s,
            u"-o"_s,
            u"VKMediaType=Transparencies"_s,
            u"--output"_s,
            u"job"_s,
            printer.path()};
}

// In whichever way the environment asks for it: help, refusal and the printer's own texts.
struct Wanted
{
    const char *behaviour;
    QMap<QString, QString> environment;
    const LauncherTexts &texts;
    const char *clash; ///< of settings that ClashingPPD does not allow together
};

class LanguageOfTheProgram : public testing::TestWithParam<Wanted>
{};

TEST_P(LanguageOfTheProgram, IsOneForEverythingThatItSays)
{
    const ClashingPPD printer;
    const auto saidTo = [&](const QStringList &line) {
        return runProgram(QStringLiteral(PROGRAM), line, GetParam().environment);
    };
    EXPECT_EQ(saidTo({u"--help"_s}).output, GetParam().texts.help);
    const LauncherOutcome result = saidTo(argumentsThatClash(printer));
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.error, GetParam().clash);
}

constexpr auto kEnglishClash =
    "velkaro-print: \"Media Type: Transparencies\" cannot be chosen: the printer does not allow it "
    "together with \"Two-Sided Printing: Short-Edge Binding\".\n";
constexpr auto kGermanClash =
    "velkaro-print: „Medientyp: Folien“ kann nicht gewählt werden: Der Drucker lässt es zusammen "
    "mit „Beidseitiger Druck: Bindung an der kurzen Seite“ nicht zu.\n";
constexpr auto kFrenchClash =
    "velkaro-print: «\u00a0Type de support\u00a0: Transparents\u00a0» ne peut pas être "
    "choisi\u00a0: l’imprimante ne l’accepte pas avec «\u00a0Impression recto verso\u00a0: "
    "Reliure sur le bord court\u00a0».\n";
constexpr auto kJapaneseClash =
    "velkaro-print: 「用紙種類: OHPフィルム」は選べません。このプリンターでは「両面印刷: "
    "短辺とじ」と同時に使えません。\n";

/// The variables that a desktop sets, and no others.
QMap<QString, QString> environmentOf(const QString &locale, const QString &languages)
{
    return {{u"LC_ALL"_s, QString()}, {u"LANG"_s, locale}, {u"LANGUAGE"_s, languages}};
}

const Wanted kWanted[] = {
    {"English", environmentOf(u"en_US.UTF-8"_s, {}), kEnglishTexts, kEnglishClash},
    {"German", environmentOf(u"de_DE.UTF-8"_s, {}), kGermanTexts, kGermanClash},
    {"French", environmentOf(u"fr_CA.UTF-8"_s, u"fr_CA:fr"_s), kFrenchTexts, kFrenchClash},
    {"Japanese", environmentOf(u"ja_JP.UTF-8"_s, {}), kJapaneseTexts, kJapaneseClash},
    {"JapaneseByTheListAlone", environmentOf(u"en_US.UTF-8"_s, u"ja"_s), kJapaneseTexts,
     kJapaneseClash},
    {"EnglishByTheListAlone", environmentOf(u"ja_JP.UTF-8"_s, u"en"_s), kEnglishTexts,
     kEnglishClash},
    {"ListBesideLC_ALL",
     {{u"LC_ALL"_s, u"C.UTF-8"_s}, {u"LANGUAGE"_s, u"it:de:fr"_s}},
     kGermanTexts,
     kGermanClash},
};

INSTANTIATE_TEST_SUITE_P(Environments, LanguageOfTheProgram, testing::ValuesIn(kWanted),
                         CaseName());

TEST(Launcher, NamesAChoiceWhoseTextIsEmptyInTheUsersLanguage)
{
    const ClashingPPD printer;
    QByteArray text = readFile(printer.path());
    ASSERT_EQ(text.count("Transparencies/OHPフィルム:"), 1);
    writeFile(printer.path(), text.replace("Transparencies/OHPフィルム:", "Transparencies/:"));
    const LauncherOutcome result = runProgram(QStringLiteral(PROGRAM), argumentsThatClash(printer),
                                              {{u"LANGUAGE"_s, u"ja"_s}});
    EXPECT_THAT(result.error, testing::StartsWith("velkaro-print: 「用紙種類: Transparencies」は"));
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

TEST(Launcher, SaysSoWhenStandardOutputTakesNothing)
{
    const QTemporaryDir folder;
    const QString ppd = folder.filePath(u"clashing.ppd"_s);
    const QString script = folder.filePath(u"the.jsonl"_s);
    // Of the choices, the panels do not know one: there is something to print.
    writeFile(
        ppd, sampleText(u"velkaro-px-t900"_s).replace("*VKMediaType Inkjet/", "*VKMediaType Ink/"));
    writeFile(script, "{\"do\": \"state\"}\n");
    const std::pair<QStringList, const char *> cases[] = {
        {{u"--help"_s}, "Standard output cannot be written: "},
        {{u"--version"_s}, "Standard output cannot be written: "},
        {{u"-d"_s, u"queue"_s, u"--help"_s}, "Standard output cannot be written: "},
        {{u"--check-ppd"_s, ppd}, "Standard output cannot be written: "},
        {{u"--replay"_s, script}, "the output cannot be written"},
    };
    for (const auto &[arguments, sentence] : cases)
        for (const QString &output : {u"/dev/full"_s, u"&-"_s}) {
            const QString command = u"exec \"$0\" \"$@\" >"_s + output;
            const LauncherOutcome result = runProgram(
                u"sh"_s, QStringList{u"-c"_s, command, QStringLiteral(PROGRAM)} + arguments);
            EXPECT_EQ(result.status, 5) << arguments.join(u' ').toStdString();
            EXPECT_EQ(result.error.rfind(std::string("velkaro-print: ") + sentence, 0), 0u)
                << result.error;
            EXPECT_EQ(std::ranges::count(result.error, '\n'), 1) << result.error;
        }
}

TEST(Launcher, SaysOnStandardErrorWhatStandardOutputDoesNotTake)
{
    const QTemporaryDir folder;
    const QString document = folder.filePath(u"the.ps"_s);
    writeFile(document, "%!PS\n");
    const LauncherOutcome result = runProgram(
        u"sh"_s, {u"-c"_s, u"exec \"$0\" \"$@\" >/dev/full"_s, QStringLiteral(PROGRAM),
                  u"--no-dialog"_s, u"--dry-run"_s, u"--ppd"_s, samplePPD(u"velkaro-px-t900"_s),
                  u"--output"_s, u"/dev/null"_s, document});
    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.error.rfind("velkaro-print: Standard output cannot be written: ", 0), 0u)
        << result.error;
    EXPECT_THAT(result.error,
                testing::HasSubstr("\nvelkaro-print: The job would be written to /dev/null.\n"));
}

TEST(Launcher, SaysInTheUsersLanguageThatStandardOutputTakesNothing)
{
    const LauncherOutcome result =
        runProgram(u"sh"_s, {u"-c"_s, u"exec \"$0\" --help >/dev/full"_s, QStringLiteral(PROGRAM)},
                   {{u"LANGUAGE"_s, u"de"_s}});
    EXPECT_EQ(result.error.rfind("velkaro-print: Die Standardausgabe kann nicht", 0), 0u)
        << result.error;
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
    EXPECT_THAT(result.error, testing::HasSubstr("The installation is incomplete: "));
    EXPECT_THAT(result.error, testing::HasSubstr("libvelkaro-dialog.so"));
}
