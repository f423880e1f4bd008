#include "dialog/host/PlugInLoader.h"
#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPanel.h"
#include "platform/pde/PDEPlugIn.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString fixture(const char *name)
{
    return QLatin1String(FIXTURE_FOLDER) + u'/' + QLatin1String(name) + u".bundle"_s;
}

std::string text(const QString &string)
{
    return string.toStdString();
}

struct FaultyFixture
{
    const char *bundle;
    PlugInFaultReason reason;
    const char *sentence; // %1: the bundle's path
    const char *logged;
};

class FaultyPlugIn : public testing::TestWithParam<FaultyFixture>
{};

} // namespace

TEST_P(FaultyPlugIn, IsRefusedWithAReasonASentenceAndALog)
{
    unsetenv("VELKARO_FIXTURE_RAN");
    const QString path = fixture(GetParam().bundle);
    const PlugInLoad load = loadPlugIn(path);
    ASSERT_TRUE(load.fault);
    EXPECT_EQ(load.plugIn, nullptr);
    EXPECT_EQ(load.fault->reason, GetParam().reason);
    EXPECT_EQ(text(load.fault->sentence), text(QString::fromUtf8(GetParam().sentence).arg(path)));
    EXPECT_THAT(text(load.fault->log), testing::HasSubstr(GetParam().logged));
    EXPECT_EQ(getenv("VELKARO_FIXTURE_RAN"), nullptr);
}

TEST(PlugIn, IsLoadedFromWhereALinkLed)
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(u"Link.bundle"_s);
    ASSERT_TRUE(QFile::link(fixture("Spy"), link));
    const PlugInLoad load = loadPlugIn(link);
    ASSERT_FALSE(load.fault) << load.fault->sentence.toStdString();
    EXPECT_EQ(load.bundle->bundlePath(), QFileInfo(fixture("Spy")).canonicalFilePath());
}

INSTANTIATE_TEST_SUITE_P(
    Fixtures, FaultyPlugIn,
    testing::Values(
        FaultyFixture{"Absent", PlugInFaultReason::BundleMissing,
                      "The printer's settings are missing: there is no plug-in at %1. Install "
                      "Velkaro Print again.",
                      "no such folder: "},
        FaultyFixture{"No", PlugInFaultReason::NotAPlugIn,
                      "%1 is not a plug-in of this print dialog.",
                      "interface \"\", wanted \"com.velkaro.print.PDEPlugIn/2\""},
        FaultyFixture{"Foreign", PlugInFaultReason::NotAPlugIn,
                      "%1 is not a plug-in of this print dialog.",
                      "interface \"org.example.Toolbar/1\""},
        FaultyFixture{"Hollow", PlugInFaultReason::NotAPlugIn,
                      "%1 is not a plug-in of this print dialog.", "its object lacks"},
        FaultyFixture{"OtherVersion", PlugInFaultReason::OtherInterfaceVersion,
                      "The plug-in %1 was made for another version of this print dialog. Install "
                      "the same version of both.",
                      "interface \"com.velkaro.print.PDEPlugIn/3\""},
        FaultyFixture{"Unresolved", PlugInFaultReason::LoadFailed,
                      "The plug-in %1 could not be loaded.", "thereIsNoSuchVariable"},
        FaultyFixture{"Refusing", PlugInFaultReason::InitRefused,
                      "The plug-in %1 cannot be used with this print dialog.",
                      "initWithBundle answered no"}),
    [](const auto &testCase) { return std::string(testCase.param.bundle); });

namespace {

struct BrokenBundle
{
    const char *name;
    const char *info; // null: there is no Info.json
    PlugInFaultReason reason;
};

class IncompleteBundle : public testing::TestWithParam<BrokenBundle>
{};

} // namespace

TEST_P(IncompleteBundle, IsRefusedBeforeAnythingIsLoaded)
{
    const QTemporaryDir folder;
    if (GetParam().info)
        writeFile(folder.filePath(u"Info.json"_s), GetParam().info);
    const PlugInLoad load = loadPlugIn(folder.path());
    ASSERT_TRUE(load.fault);
    EXPECT_EQ(load.fault->reason, GetParam().reason);
    EXPECT_EQ(load.plugIn, nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Bundles, IncompleteBundle,
    testing::Values(BrokenBundle{"NoInfo", nullptr, PlugInFaultReason::NoInfoDictionary},
                    BrokenBundle{"InfoIsNoJson", "<plist/>", PlugInFaultReason::NoInfoDictionary},
                    BrokenBundle{"NamesNoLibrary", "{}", PlugInFaultReason::LibraryMissing},
                    BrokenBundle{"LibraryIsNotThere", R"({"CFBundleExecutable": "plugin.so"})",
                                 PlugInFaultReason::LibraryMissing},
                    BrokenBundle{"LibraryOutsideTheBundle",
                                 R"({"CFBundleExecutable": "../plugin.so"})",
                                 PlugInFaultReason::LibraryMissing},
                    BrokenBundle{"LibraryIsAFolder", R"({"CFBundleExecutable": "."})",
                                 PlugInFaultReason::LibraryMissing}),
    [](const auto &testCase) { return std::string(testCase.param.name); });

TEST(PlugInLoader, NamesAViewThatTheBundleHasLost)
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"Info.json"_s),
              R"({"CFBundleExecutable": "plugin.so", "PDEViews": ["Here", "Lost"]})");
    writeFile(folder.filePath(u"plugin.so"_s), "");
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"Resources"_s));
    writeFile(folder.filePath(u"Resources/Here.ui"_s), "");
    const PlugInLoad load = loadPlugIn(folder.path());
    ASSERT_TRUE(load.fault);
    EXPECT_EQ(load.fault->reason, PlugInFaultReason::ViewMissing);
    EXPECT_EQ(text(load.fault->sentence),
              "The plug-in is incomplete: " + text(folder.filePath(u"Resources/Lost.ui"_s)) +
                  " is missing. Install Velkaro Print again.");
    EXPECT_EQ(load.plugIn, nullptr);
}

TEST(PlugInLoader, NamesARowOfTheStandardAttributesThatIsNone)
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"Info.json"_s),
              R"({"CFBundleExecutable": "plugin.so", "PDEStandardAttributes": [
                  {"Keyword": "A", "Choice": "B", "Attribute": "sides", "Value": "one-sided"},
                  {"Keyword": "A", "Choice": "C", "Attribute": "media", "Value": "A4"}]})");
    writeFile(folder.filePath(u"plugin.so"_s), "");
    const PlugInLoad load = loadPlugIn(folder.path());
    ASSERT_TRUE(load.fault);
    EXPECT_EQ(load.fault->reason, PlugInFaultReason::WrongEntry);
    EXPECT_EQ(text(load.fault->sentence),
              "The plug-in cannot be used: " + text(folder.filePath(u"Info.json"_s)) +
                  ": PDEStandardAttributes[1] is no row of a keyword, a choice, a standard "
                  "attribute and its value.");
    EXPECT_EQ(load.plugIn, nullptr);
}

TEST(PlugInLoader, LoadsAPlugInTogetherWithItsBundle)
{
    const PlugInLoad load = loadPlugIn(fixture("Spy"));
    ASSERT_FALSE(load.fault);
    ASSERT_NE(load.plugIn, nullptr);
    EXPECT_EQ(load.bundle->bundleIdentifier(), u"com.velkaro.test.Spy"_s);
}

TEST(PlugInLoader, ReplacesInformationForOneLoadAlone)
{
    const PlugInLoad replaced =
        loadPlugIn(fixture("Spy"), {{u"CFBundleIdentifier"_s, u"com.velkaro.other"_s}});
    EXPECT_EQ(replaced.bundle->bundleIdentifier(), u"com.velkaro.other"_s);
    EXPECT_EQ(loadPlugIn(fixture("Spy")).bundle->bundleIdentifier(), u"com.velkaro.test.Spy"_s);
}

TEST(PlugInLoader, RefusesALibraryThatOthersMayChangeBeforeItsCodeRuns)
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"Info.json"_s), R"({"CFBundleExecutable": "plugin.so"})");
    QFile::copy(fixture("OtherVersion") + u"/plugin.so"_s, folder.filePath(u"plugin.so"_s));
    ASSERT_EQ(chmod(QFile::encodeName(folder.filePath(u"plugin.so"_s)).constData(), 0666), 0);
    const PlugInLoad load = loadPlugIn(folder.path());
    ASSERT_TRUE(load.fault);
    EXPECT_EQ(load.fault->reason, PlugInFaultReason::OpenToOthers);
    EXPECT_EQ(text(load.fault->sentence),
              "The plug-in is not used, because other users may change " +
                  text(folder.filePath(u"plugin.so"_s)) +
                  ". Let nobody but yourself and the administrator write there.");
    EXPECT_EQ(load.plugIn, nullptr);
}

namespace {

/// A folder of bundles that have nothing but an Info.json.
class InstalledBundles : public testing::Test
{
protected:
    void install(const QString &name, const QByteArray &info)
    {
        QDir(m_folder.path()).mkdir(name);
        writeFile(m_folder.filePath(name + u"/Info.json"_s), info);
    }

    BundleChoice choice() const { return chooseBundle(m_folder.path(), m_facts); }

    QTemporaryDir m_folder;
    PrinterFacts m_facts{u"Example"_s, u"Example 100"_s, {}, {}};
};

const QByteArray kForExample = R"({"PDEPrinters": [{"Manufacturer": "Example"}]})";
const QByteArray kForOthers = R"({"PDEPrinters": [{"Manufacturer": "Other"}]})";

} // namespace

TEST_F(InstalledBundles, AreAllLookedAt)
{
    install(u"A.bundle"_s, kForOthers);
    install(u"B.bundle"_s, kForExample);
    install(u"C.bundle"_s, kForOthers);
    EXPECT_EQ(choice().path, m_folder.filePath(u"B.bundle"_s));
    EXPECT_FALSE(choice().fault);
}

TEST_F(InstalledBundles, AreTakenByNameWhereTheyFitEquallyWell)
{
    install(u"B.bundle"_s, kForExample);
    install(u"A.bundle"_s, kForExample);
    EXPECT_EQ(choice().path, m_folder.filePath(u"A.bundle"_s));
}

TEST_F(InstalledBundles, NeedNotFit)
{
    install(u"A.bundle"_s, kForOthers);
    install(u"SaysNothing.bundle"_s, "{}");
    EXPECT_EQ(choice().path, QString());
    EXPECT_FALSE(choice().fault);
}

TEST_F(InstalledBundles, AreUsedThoughAnotherOneIsDamaged)
{
    install(u"A.bundle"_s, "{\"PDEPrinters\": [");
    install(u"B.bundle"_s, kForExample);
    EXPECT_EQ(choice().path, m_folder.filePath(u"B.bundle"_s));
    EXPECT_FALSE(choice().fault);
}

TEST_F(InstalledBundles, AreAFaultWhereTheDamagedOneMayBeTheRightOne)
{
    install(u"A.bundle"_s, kForOthers);
    install(u"B.bundle"_s, "");
    EXPECT_EQ(choice().path, QString());
    ASSERT_TRUE(choice().fault);
    EXPECT_EQ(choice().fault->reason, PlugInFaultReason::NoInfoDictionary);
    EXPECT_THAT(text(choice().fault->sentence), testing::HasSubstr("B.bundle is incomplete"));
}

TEST_F(InstalledBundles, AreAFaultWhereThereIsNone)
{
    QDir(m_folder.path()).mkdir(u"NoBundle"_s);
    ASSERT_TRUE(choice().fault);
    EXPECT_EQ(choice().fault->reason, PlugInFaultReason::BundleMissing);
    EXPECT_THAT(text(choice().fault->sentence),
                testing::HasSubstr("there is no plug-in at " + text(m_folder.path())));
}

TEST_F(InstalledBundles, MayBeMissingWithTheirFolder)
{
    const BundleChoice none = chooseBundle(m_folder.filePath(u"nowhere"_s), m_facts);
    ASSERT_TRUE(none.fault);
    EXPECT_EQ(none.fault->reason, PlugInFaultReason::BundleMissing);
}

namespace {

struct Printer
{
    const char *behaviour;
    PPDSource ppd;
    bool hasPanels;
};

class OwnBundle : public testing::TestWithParam<Printer>
{};

/// A later line of the same name counts.
PPDSource byMaker(const QByteArray &maker)
{
    return PPDSource().attribute("Manufacturer", maker);
}

} // namespace

TEST_P(OwnBundle, IsLoadedForItsPrinters)
{
    const PPDHandle ppd = GetParam().ppd.open();
    const PlugInLoad load = loadPlugInFor(ppd.get());
    EXPECT_FALSE(load.fault);
    EXPECT_EQ(load.bundle != nullptr, GetParam().hasPanels);
    EXPECT_EQ(load.plugIn != nullptr, GetParam().hasPanels);
    if (load.bundle) {
        EXPECT_EQ(load.bundle->bundlePath(), ownBundlePath());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Printers, OwnBundle,
    testing::Values(
        Printer{"OfItsMaker", byMaker("Velkaro"), true},
        Printer{"WithItsMedia", byMaker("Example").option("VKMediaType", {"Plain"}), true},
        Printer{"WithAnyOfItsKeywords", byMaker("Example").option("VKOutput", {"PRN"}), true},
        Printer{"WithTheMirror", byMaker("Example").option("MirrorPrint", {"False"}), true},
        Printer{"OfAnotherMaker", byMaker("Example").option("ExTray", {"A"}), false}),
    CaseName());

TEST(PlugInLoader, KnowsThePathOfItsOwnBundle)
{
    EXPECT_EQ(QDir(ownBundlePath()).dirName(), u"VKInkQuality14.bundle"_s);
    EXPECT_FALSE(loadPlugIn(ownBundlePath()).fault);
}
