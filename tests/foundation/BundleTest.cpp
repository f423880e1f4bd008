#include "platform/foundation/Bundle.h"

#include "platform/foundation/PreferredLanguages.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class BundleTest : public testing::Test
{
protected:
    ~BundleTest() override
    {
        setPreferredLanguages({});
        Bundle::setMainBundle(nullptr);
    }

    QTemporaryDir folder;
};

struct InfoCase
{
    const char *behaviour;
    QByteArray info;
    bool dictionary;
    QString identifier;
};

class InfoDictionary : public BundleTest, public testing::WithParamInterface<InfoCase>
{};

const InfoCase kInfoCases[] = {
    {"Ordinary", R"({"CFBundleIdentifier": "com.velkaro.test"})", true, u"com.velkaro.test"_s},
    {"WithoutIdentifier", R"({"CFBundleName": "Test"})", true, QString()},
    {"EmptyIdentifier", R"({"CFBundleIdentifier": ""})", true, QString()},
    {"IdentifierThatIsNoText", R"({"CFBundleIdentifier": ["a"]})", true, QString()},
    {"BrokenOff", R"({"CFBundleIdentifier": "com.vel)", false, QString()},
    {"AnArray", R"(["CFBundleIdentifier"])", false, QString()},
    {"EmptyFile", "", false, QString()},
    {"BinaryRubbish", QByteArray("\0\xff\x01", 3), false, QString()},
    {"TooLarge", R"({"CFBundleIdentifier": ")" + QByteArray(2 << 20, 'x') + R"("})", false,
     QString()},
};

TEST_P(InfoDictionary, IsReadFromTheFile)
{
    writeFile(folder.filePath(u"Info.json"_s), GetParam().info);
    const auto bundle = Bundle::open(folder.path());
    EXPECT_EQ(bundle->infoDictionary().has_value(), GetParam().dictionary);
    EXPECT_EQ(bundle->bundleIdentifier(), GetParam().identifier);
    EXPECT_EQ(bundle->bundleIdentifier().isNull(), GetParam().identifier.isNull());
}

INSTANTIATE_TEST_SUITE_P(Cases, InfoDictionary, testing::ValuesIn(kInfoCases), CaseName());

TEST_F(BundleTest, WaitsForNobodyWhoWritesIntoAPipe)
{
    const QByteArray pipe = QFile::encodeName(folder.filePath(u"Info.json"_s));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    EXPECT_FALSE(Bundle::open(folder.path())->infoDictionary().has_value());
}

TEST_F(BundleTest, IsNeverNullForAMissingFolder)
{
    const auto bundle = Bundle::open(folder.filePath(u"missing"_s));
    ASSERT_NE(bundle, nullptr);
    EXPECT_FALSE(bundle->infoDictionary().has_value());
    EXPECT_FALSE(bundle->infoValue(u"CFBundleName"_s).isValid());
    EXPECT_TRUE(bundle->pathForResource(u"Plain"_s, u"tiff"_s).isNull());
    EXPECT_EQ(bundle->localizedString(u"OK"_s), u"OK"_s);
}

TEST_F(BundleTest, HasAnAbsolutePathWithoutDetours)
{
    const QString relative = QDir::current().relativeFilePath(folder.path());
    EXPECT_EQ(Bundle::open(relative + u"/x/../"_s)->bundlePath(), folder.path());
}

TEST_F(BundleTest, PutsOtherEntriesOverItsOwn)
{
    writeFile(folder.filePath(u"Info.json"_s), R"({"CFBundleName": "Test", "Kept": 1})");
    const auto bundle = Bundle::open(folder.path());
    bundle->overrideInfo({{u"CFBundleName"_s, u"Other"_s}, {u"New"_s, true}});
    EXPECT_EQ(bundle->infoValue(u"CFBundleName"_s), u"Other"_s);
    EXPECT_EQ(bundle->infoValue(u"Kept"_s).toInt(), 1);
    EXPECT_EQ(bundle->infoValue(u"New"_s), true);
}

struct ResourceCase
{
    const char *behaviour;
    QString name;
    QString type;
    bool found;
};

class Resource : public BundleTest, public testing::WithParamInterface<ResourceCase>
{};

const ResourceCase kResourceCases[] = {
    {"ThatIsThere", u"Plain"_s, u"tiff"_s, true},
    {"OfAnotherType", u"Plain"_s, u"pdf"_s, false},
    {"InAnotherCase", u"plain"_s, u"tiff"_s, false},
    {"WithoutName", QString(), u"tiff"_s, false},
    {"AboveTheFolder", u"../Secret"_s, u"tiff"_s, false},
    {"InAFolderBelow", u"Sub/Plain"_s, u"tiff"_s, false},
    {"WithAnAbsolutePath", u"/etc/passwd"_s, u"tiff"_s, false},
    {"CutByANullCharacter", QStringLiteral("Plain.tiff\0x"), u"tiff"_s, false},
    {"ThatIsAFolder", u"Folder"_s, u"tiff"_s, false},
};

TEST_P(Resource, IsFoundByItsNameInTheBundle)
{
    writeFile(folder.filePath(u"Secret.tiff"_s), "x");
    writeFile(folder.filePath(u"Resources/Plain.tiff"_s), "x");
    writeFile(folder.filePath(u"Resources/Sub/Plain.tiff"_s), "x");
    writeFile(folder.filePath(u"Resources/Folder.tiff/x"_s), "x");
    const QString path =
        Bundle::open(folder.path())->pathForResource(GetParam().name, GetParam().type);
    EXPECT_EQ(path, GetParam().found ? folder.filePath(u"Resources/Plain.tiff"_s) : QString());
    EXPECT_EQ(path.isNull(), !GetParam().found);
}

INSTANTIATE_TEST_SUITE_P(Cases, Resource, testing::ValuesIn(kResourceCases), CaseName());

struct TextCase
{
    const char *behaviour;
    QStringList languages;
    Bundle::Strings strings;
    QString text;
};

class StringTable : public BundleTest, public testing::WithParamInterface<TextCase>
{};

const TextCase kTextCases[] = {
    {"English", {u"en"_s}, Bundle::Strings::Tables, u"Cancel"_s},
    {"Japanese", {u"ja"_s}, Bundle::Strings::Tables, u"キャンセル"_s},
    {"German", {u"de"_s}, Bundle::Strings::Tables, u"Abbrechen"_s},
    {"GermanOfARegion", {u"de-CH"_s}, Bundle::Strings::Tables, u"Abbrechen"_s},
    {"French", {u"fr"_s}, Bundle::Strings::Tables, u"Annuler"_s},
    {"JapaneseOfARegion", {u"ja-US"_s}, Bundle::Strings::Tables, u"キャンセル"_s},
    {"TheFirstLanguageThatHasATable", {u"it"_s, u"ja"_s}, Bundle::Strings::Tables, u"キャンセル"_s},
    {"EnglishWhereNoneHasATable", {u"es"_s, u"it"_s}, Bundle::Strings::Tables, u"Cancel"_s},
    {"TheKeysThemselves", {u"ja"_s}, Bundle::Strings::Keys, u"Cancel"_s},
};

TEST_P(StringTable, IsThatOfTheUsersLanguage)
{
    setPreferredLanguages(GetParam().languages);
    const auto bundle = Bundle::open(builtBundle());
    bundle->setStrings(GetParam().strings);
    EXPECT_EQ(bundle->localizedString(u"Cancel"_s), GetParam().text);
    EXPECT_EQ(bundle->localizedString(u"No such key"_s), u"No such key"_s);
}

INSTANTIATE_TEST_SUITE_P(Cases, StringTable, testing::ValuesIn(kTextCases), CaseName());

TEST_F(BundleTest, GivesTheKeyInKeysModeWhereTheTableHasAnotherText)
{
    setPreferredLanguages({u"en"_s});
    const auto bundle = Bundle::open(builtBundle());
    EXPECT_EQ(bundle->localizedString(u"ON"_s), u"On"_s);
    bundle->setStrings(Bundle::Strings::Keys);
    EXPECT_EQ(bundle->localizedString(u"ON"_s), u"ON"_s);
}

TEST_F(BundleTest, FollowsAChangeOfTheLanguages)
{
    const auto bundle = Bundle::open(builtBundle());
    setPreferredLanguages({u"it"_s, u"ja"_s});
    EXPECT_EQ(bundle->localizedString(u"Cancel"_s), u"キャンセル"_s);
    setPreferredLanguages({u"it"_s, u"en"_s});
    EXPECT_EQ(bundle->localizedString(u"Cancel"_s), u"Cancel"_s);
}

TEST_F(BundleTest, LooksInTheTablesOfSomeLanguagesAloneWhereToldSo)
{
    const auto bundle = Bundle::open(builtBundle());
    setPreferredLanguages({u"fr"_s, u"ja"_s});
    EXPECT_EQ(bundle->localizedString(u"Cancel"_s), u"Annuler"_s);
    bundle->setTableLanguages({u"ja"_s});
    EXPECT_EQ(bundle->localizedString(u"Cancel"_s), u"キャンセル"_s);
    setPreferredLanguages({u"fr"_s});
    EXPECT_EQ(bundle->localizedString(u"Cancel"_s), u"Cancel"_s);
    bundle->setTableLanguages({});
    EXPECT_EQ(bundle->localizedString(u"Cancel"_s), u"Annuler"_s);
}

TEST_F(BundleTest, PassesOverADamagedStringTable)
{
    writeFile(folder.filePath(u"Resources/Localizable_ja.qm"_s), "no table");
    ASSERT_TRUE(QFile::copy(builtBundle() + u"/Resources/Localizable_en.qm"_s,
                            folder.filePath(u"Resources/Localizable_en.qm"_s)));
    setPreferredLanguages({u"ja"_s});
    EXPECT_EQ(Bundle::open(folder.path())->localizedString(u"ON"_s), u"On"_s);
}

TEST_F(BundleTest, ContainsTheCodeOfALibraryInItsFolder)
{
    // This program stands for the library: a bundle around its folder holds it.
    static const int code = 0;
    const QString here = QFileInfo(QCoreApplication::applicationFilePath()).path();
    const auto main = Bundle::open(folder.path());
    Bundle::setMainBundle(main);
    EXPECT_EQ(Bundle::bundleContaining(&code), main);
    auto outer = Bundle::open(here);
    EXPECT_EQ(Bundle::bundleContaining(&code), outer);
    const auto newest = Bundle::open(here + u"/../"_s + QFileInfo(here).fileName());
    EXPECT_EQ(Bundle::bundleContaining(&code), newest);
    // A folder whose name merely begins alike holds nothing.
    const auto alike = Bundle::open(here.chopped(1));
    EXPECT_EQ(Bundle::bundleContaining(&code), newest);
}

TEST_F(BundleTest, ContainsNoCodeAnyMoreOnceItIsClosed)
{
    static const int code = 0;
    auto around = Bundle::open(QFileInfo(QCoreApplication::applicationFilePath()).path());
    EXPECT_EQ(Bundle::bundleContaining(&code), around);
    around.reset();
    EXPECT_EQ(Bundle::bundleContaining(&code), nullptr);
}

TEST_F(BundleTest, IsFoundThroughASymbolicLink)
{
    static const int code = 0;
    const QString here = QFileInfo(QCoreApplication::applicationFilePath()).path();
    ASSERT_TRUE(QFile::link(here, folder.filePath(u"link"_s)));
    const auto linked = Bundle::open(folder.filePath(u"link"_s));
    EXPECT_EQ(Bundle::bundleContaining(&code), linked);
}

} // namespace
