// --help and the manual page in every language.
#include "dialog/program/LauncherTexts.h"
#include "dialog/program/ManPage.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;

namespace {

/// What stands on the left: the options with their values, then the statuses.
QStringList headsOf(const LauncherTexts &texts)
{
    static const QRegularExpression head(u"^ {2}(?: {4}(?=-))?(\\S+(?: \\S+)*)(?:  |$)"_s,
                                         QRegularExpression::MultilineOption);
    QStringList heads;
    for (const QRegularExpressionMatch &match : head.globalMatch(QString::fromUtf8(texts.help)))
        heads += match.captured(1);
    return heads;
}

/// Columns of a terminal: an ideograph takes two.
qsizetype widthOf(const QString &line)
{
    static const QRegularExpression wide(u"[\\x{3000}-\\x{9fff}\\x{ff00}-\\x{ff60}]"_s);
    return line.size() + line.count(wide);
}

TEST(HelpText, HasItsOptionsAndStatusesOnTheLeft)
{
    const QStringList heads = headsOf(kEnglishTexts);
    EXPECT_EQ(heads.first(), u"-d, --destination QUEUE[/INSTANCE]"_s);
    EXPECT_TRUE(heads.contains(u"--screenshot FILE.png"_s));
    EXPECT_TRUE(heads.contains(u"--yes"_s));
    EXPECT_EQ(heads.last(), u"8"_s);
}

class HelpTextOf : public testing::TestWithParam<ManualWords>
{};

TEST_P(HelpTextOf, NamesTheSameOptionsAndStatusesAsInEnglish)
{
    EXPECT_EQ(headsOf(GetParam().texts), headsOf(kEnglishTexts));
}

TEST_P(HelpTextOf, HasAsManySectionsAsInEnglish)
{
    const auto sections = [](const LauncherTexts &texts) {
        return QString::fromUtf8(texts.help).count(u"\n\n"_s);
    };
    EXPECT_EQ(sections(GetParam().texts), sections(kEnglishTexts));
}

TEST_P(HelpTextOf, FitsIntoATerminal)
{
    for (const QString &line : QString::fromUtf8(GetParam().texts.help).split(u'\n'))
        EXPECT_LE(widthOf(line), 79) << line.toStdString();
}

TEST_P(HelpTextOf, HasAPlaceForTheReasonInEachSentence)
{
    for (const char *sentence : {GetParam().texts.incomplete, GetParam().texts.outputFull})
        EXPECT_EQ(QString::fromUtf8(sentence).count(u"%s"_s), 1) << sentence;
}

TEST_P(HelpTextOf, StandsInTheManualPage)
{
    static const QRegularExpression entry(u"^\\.TP\n\\.B (.*)\n(.+)$"_s,
                                          QRegularExpression::MultilineOption);
    const QString page = QString::fromStdString(manualPage(GetParam()));
    EXPECT_TRUE(page.startsWith(u".TH VELKARO\\-PRINT 1 "_s));
    QStringList heads;
    for (const QRegularExpressionMatch &match : entry.globalMatch(page))
        heads += match.captured(1).replace(u"\\-"_s, u"-"_s);
    EXPECT_EQ(heads, headsOf(GetParam().texts));
    EXPECT_EQ(page.count(u"\n.SS "_s), 4);
    EXPECT_EQ(page.count(u"\n.SH "_s), 6);
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpTextOf, testing::ValuesIn(manualWords()),
                         [](const auto &words) {
                             return std::string(*words.param.language ? words.param.language
                                                                      : "en");
                         });

TEST(ManualPage, ReadsAsAPersonWritesIt)
{
    const QString english = QString::fromStdString(manualPage(manualWords().front()));
    EXPECT_TRUE(english.contains(u".SH SYNOPSIS\n.B velkaro\\-print [options] [FILE...]\n"_s));
    EXPECT_TRUE(english.contains(u"\n.SS Settings\n.TP\n.B \\-o, \\-\\-option KEY=VALUE\n"_s));
    EXPECT_TRUE(english.contains(u".TP\n.B \\-\\-force\nreplace files that exist already: those of "
                                 "\\-\\-output, \\-\\-screenshot, \\-\\-record and of a script's "
                                 "pictures\n"_s));
    EXPECT_TRUE(english.contains(u".SH Exit status\n.TP\n.B 0\nprinted, written, checked, or "
                                 "the script ran to its end\n"_s));
    const QString japanese = QString::fromStdString(manualPage(manualWords().back()));
    EXPECT_TRUE(japanese.contains(u"このキューに印刷する（INSTANCE に保存された設定を使う）\n"_s));
}

struct Environment
{
    const char *behaviour;
    std::map<const char *, const char *> variables;
    const LauncherTexts &texts;
};

class LauncherLanguage : public testing::TestWithParam<Environment>
{
protected:
    LauncherLanguage()
    {
        for (const char *name : kNames) {
            if (qEnvironmentVariableIsSet(name))
                m_before[name] = qgetenv(name);
            qunsetenv(name);
        }
    }
    ~LauncherLanguage() override
    {
        for (const char *name : kNames)
            qunsetenv(name);
        for (const auto &[name, value] : m_before)
            qputenv(name, value);
    }

    static constexpr const char *kNames[] = {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"};
    std::map<const char *, QByteArray> m_before;
};

TEST_P(LauncherLanguage, IsTheFirstThatThereIs)
{
    for (const auto &[name, value] : GetParam().variables)
        qputenv(name, value);
    EXPECT_EQ(&launcherTexts(), &GetParam().texts);
}

const Environment kEnvironments[] = {
    {"Nothing", {}, kEnglishTexts},
    {"Lang", {{"LANG", "de_DE.UTF-8"}}, kGermanTexts},
    {"OfAnotherRegion", {{"LANG", "fr_CA"}}, kFrenchTexts},
    {"AsATag", {{"LANG", "fr-BE"}}, kFrenchTexts},
    {"WithAModifier", {{"LANG", "de_DE@euro"}}, kGermanTexts},
    {"ListBeforeLocale", {{"LANG", "en_US.UTF-8"}, {"LANGUAGE", "ja"}}, kJapaneseTexts},
    {"ListInItsOrder", {{"LANGUAGE", "it:xx!::fr:de"}}, kFrenchTexts},
    {"EnglishInTheList", {{"LANG", "ja_JP.UTF-8"}, {"LANGUAGE", "en_GB:ja"}}, kEnglishTexts},
    {"LocaleAfterAListOfOthers", {{"LANG", "ja_JP.UTF-8"}, {"LANGUAGE", "it:es"}}, kJapaneseTexts},
    {"AllBeforeMessages", {{"LC_ALL", "de_DE"}, {"LC_MESSAGES", "fr_FR"}}, kGermanTexts},
    {"MessagesBeforeLang", {{"LC_MESSAGES", "fr_FR"}, {"LANG", "ja_JP"}}, kFrenchTexts},
    {"AllHidesLang", {{"LC_ALL", "C.UTF-8"}, {"LANG", "ja_JP.UTF-8"}}, kEnglishTexts},
    {"EmptyIsNotSet", {{"LC_ALL", ""}, {"LANG", "ja_JP.UTF-8"}}, kJapaneseTexts},
    {"NotTheLanguageItself", {{"LANG", "deu_DE"}}, kEnglishTexts},
    {"Nonsense", {{"LANG", "de!"}}, kEnglishTexts},
};

INSTANTIATE_TEST_SUITE_P(Cases, LauncherLanguage, testing::ValuesIn(kEnvironments), CaseName());

} // namespace
