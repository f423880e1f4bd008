#include "platform/foundation/PreferredLanguages.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtCore/QHash>

using namespace Qt::StringLiterals;

namespace {

struct TagCase
{
    const char *behaviour;
    QString locale;
    QString tag;
};

class LanguageTag : public testing::TestWithParam<TagCase>
{};

const TagCase kTagCases[] = {
    // The language's own region goes without saying.
    {"Japanese", u"ja_JP.UTF-8"_s, u"ja"_s},
    {"JapaneseWithoutRegion", u"ja"_s, u"ja"_s},
    {"JapaneseInAnOldEncoding", u"ja_JP.eucJP"_s, u"ja"_s},
    {"JapaneseAsTag", u"ja-JP"_s, u"ja"_s},
    {"AmericanEnglish", u"en_US.UTF-8"_s, u"en"_s},
    {"German", u"de_DE@euro"_s, u"de"_s},
    // Another region stays.
    {"JapaneseInAmerica", u"ja_US"_s, u"ja-US"_s},
    {"BritishEnglish", u"en_GB.UTF-8"_s, u"en-GB"_s},
    {"BritishEnglishAsTag", u"en-GB"_s, u"en-GB"_s},
    {"SwissGerman", u"de_CH"_s, u"de-CH"_s},
    {"EnglishInJapan", u"en_JP"_s, u"en-JP"_s},
    {"ThreeLetters", u"haw_US"_s, u"haw"_s},
    // No language at all.
    {"C", u"C"_s, QString()},
    {"CWithEncoding", u"C.UTF-8"_s, QString()},
    {"Posix", u"POSIX"_s, QString()},
    {"Empty", u""_s, QString()},
    {"Nonsense", u"japanese"_s, QString()},
    {"CapitalLanguage", u"JA_JP"_s, QString()},
    {"SmallRegion", u"ja_jp"_s, QString()},
    {"NoRegionAfterTheUnderscore", u"ja_"_s, QString()},
    {"ModifierBeforeTheEncoding", u"ja@x.y"_s, u"ja"_s},
    {"Path", u"../ja"_s, QString()},
    {"OneLetter", u"j"_s, QString()},
    {"TrailingLineEnd", u"ja\n"_s, QString()},
};

TEST_P(LanguageTag, OfALocaleName)
{
    const QString tag = languageTag(GetParam().locale);
    EXPECT_EQ(tag, GetParam().tag);
    EXPECT_EQ(tag.isNull(), GetParam().tag.isNull());
}

INSTANTIATE_TEST_SUITE_P(Cases, LanguageTag, testing::ValuesIn(kTagCases), CaseName());

/// Sets the locale's environment for a test and puts it back.
class LocaleEnvironment
{
public:
    explicit LocaleEnvironment(const QHash<QByteArray, QByteArray> &environment)
    {
        for (const char *name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
            m_before.append({name, qgetenv(name)});
            qunsetenv(name);
        }
        for (auto entry = environment.cbegin(); entry != environment.cend(); ++entry)
            qputenv(entry.key().constData(), entry.value());
    }
    ~LocaleEnvironment()
    {
        for (const auto &[name, value] : m_before) {
            if (value.isNull())
                qunsetenv(name);
            else
                qputenv(name, value);
        }
    }
    LocaleEnvironment(const LocaleEnvironment &) = delete;
    LocaleEnvironment &operator=(const LocaleEnvironment &) = delete;

private:
    QList<std::pair<const char *, QByteArray>> m_before;
};

struct EnvironmentCase
{
    const char *behaviour;
    QHash<QByteArray, QByteArray> environment;
    QStringList languages;
};

class SystemLanguages : public testing::TestWithParam<EnvironmentCase>
{};

const EnvironmentCase kEnvironmentCases[] = {
    {"NothingSet", {}, {u"en"_s}},
    {"PlainC", {{"LC_ALL", "C"}}, {u"en"_s}},
    {"Lang", {{"LANG", "ja_JP.UTF-8"}}, {u"ja"_s}},
    {"MessagesOverLang", {{"LC_MESSAGES", "en_GB"}, {"LANG", "ja_JP.UTF-8"}}, {u"en-GB"_s}},
    {"AllOverMessages",
     {{"LC_ALL", "ja_JP.UTF-8"}, {"LC_MESSAGES", "en_GB"}, {"LANG", "de_DE"}},
     {u"ja"_s}},
    {"AListFirst",
     {{"LANGUAGE", "de_CH:ja"}, {"LANG", "en_US.UTF-8"}},
     {u"de-CH"_s, u"ja"_s, u"en"_s}},
    {"EachOnce", {{"LANGUAGE", "ja:ja_JP:en"}, {"LANG", "ja_JP.UTF-8"}}, {u"ja"_s, u"en"_s}},
    {"NonsenseIsPassedOver", {{"LANGUAGE", ":klingon::ja:"}, {"LANG", "xx!"}}, {u"ja"_s}},
    {"EmptyVariableIsNotSet", {{"LC_ALL", ""}, {"LANG", "ja_JP.UTF-8"}}, {u"ja"_s}},
};

TEST_P(SystemLanguages, ComeFromTheEnvironment)
{
    const LocaleEnvironment environment(GetParam().environment);
    EXPECT_EQ(preferredLanguages(), GetParam().languages);
}

INSTANTIATE_TEST_SUITE_P(Cases, SystemLanguages, testing::ValuesIn(kEnvironmentCases), CaseName());

TEST(PreferredLanguagesTest, CanBeReplacedAndBroughtBack)
{
    const LocaleEnvironment environment({{"LANG", "en_GB"}});
    setPreferredLanguages({u"ja"_s, u"fr-CA"_s});
    EXPECT_EQ(preferredLanguages(), (QStringList{u"ja"_s, u"fr-CA"_s}));
    setPreferredLanguages({});
    EXPECT_EQ(preferredLanguages(), QStringList{u"en-GB"_s});
}

} // namespace
