#include "dialog/host/PlugInLoader.h"
#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPanel.h"
#include "platform/pde/PDEPlugIn.h"
#include "tests/support/Files.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

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

INSTANTIATE_TEST_SUITE_P(
    Fixtures, FaultyPlugIn,
    testing::Values(
        FaultyFixture{"Absent", PlugInFaultReason::BundleMissing,
                      "The printer's settings are missing: there is no plug-in at %1. Install "
                      "Velkaro Print again.",
                      "no such folder: "},
        FaultyFixture{"No", PlugInFaultReason::NotAPlugIn,
                      "%1 is not a plug-in of this print dialog.",
                      "interface \"\", wanted \"com.velkaro.print.PDEPlugIn/1\""},
        FaultyFixture{"Foreign", PlugInFaultReason::NotAPlugIn,
                      "%1 is not a plug-in of this print dialog.",
                      "interface \"org.example.Toolbar/1\""},
        FaultyFixture{"Hollow", PlugInFaultReason::NotAPlugIn,
                      "%1 is not a plug-in of this print dialog.", "its object lacks"},
        FaultyFixture{"OtherVersion", PlugInFaultReason::OtherInterfaceVersion,
                      "The plug-in %1 was made for another version of this print dialog. Install "
                      "the same version of both.",
                      "interface \"com.velkaro.print.PDEPlugIn/2\""},
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
              R"({"CFBundleExecutable": "plugin.so", "VKViews": ["Here", "Lost"]})");
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

TEST(PlugInLoader, TakesTheInstalledBundleWithoutAPath)
{
    const PlugInLoad load = loadPlugIn();
    ASSERT_FALSE(load.fault) << text(load.fault->log);
    EXPECT_EQ(load.bundle->bundlePath(), installedBundlePath());
    EXPECT_EQ(QDir(installedBundlePath()).dirName(), u"VKInkQuality14.bundle"_s);
}
