#include "dialog/host/PlugInTrust.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t kUser = 1000;
constexpr uid_t kStranger = 1001;
constexpr bool kPrivate = true;
constexpr bool kShared = false;

struct Rights
{
    const char *behaviour;
    FileRights rights;
    bool mayBeChanged;
    bool mayBeRefilled;
};

class OthersRights : public testing::TestWithParam<Rights>
{};

TEST_P(OthersRights, AreTold)
{
    EXPECT_EQ(mayBeChangedByOthers(GetParam().rights, kUser), GetParam().mayBeChanged);
    EXPECT_EQ(mayBeRefilledByOthers(GetParam().rights, kUser), GetParam().mayBeRefilled);
}

const Rights kRights[] = {
    {"OfTheAdministrator", {0, kShared, S_IFDIR | 0755}, false, false},
    {"OfTheUser", {kUser, kShared, S_IFDIR | 0755}, false, false},
    {"OfAStranger", {kStranger, kShared, S_IFDIR | 0755}, true, true},
    {"OfAStrangerAlone", {kStranger, kShared, S_IFDIR | 0700}, true, true},
    {"OfThePrivateGroup", {kUser, kPrivate, S_IFDIR | 0775}, false, false},
    {"OfASharedGroup", {kUser, kShared, S_IFDIR | 0775}, true, true},
    {"OfASharedGroupOfTheAdministrator", {0, kShared, S_IFDIR | 0775}, true, true},
    {"OfEverybody", {kUser, kPrivate, S_IFDIR | 0777}, true, true},
    {"OfEverybodyWithEntriesOfTheirOwn", {0, kShared, S_IFDIR | S_ISVTX | 0777}, true, false},
    {"OfAStrangerWithEntriesOfTheirOwn",
     {kStranger, kShared, S_IFDIR | S_ISVTX | 0777},
     true,
     true},
};

INSTANTIATE_TEST_SUITE_P(Rights, OthersRights, testing::ValuesIn(kRights), CaseName());

/// A bundle in a folder of its own, under whatever umask the test runs.
class BundlePlaces : public testing::Test
{
protected:
    BundlePlaces()
    {
        QDir(m_folder.path()).mkpath(u"plug-ins/Some.bundle/Resources/Pictures"_s);
        for (const QString &file : {library(), info(), view(), picture()}) {
            writeFile(file, "something");
            allow(file, 0755);
            allow(QFileInfo(file).path(), 0755);
        }
        allow(plugIns(), 0755);
    }

    static void allow(const QString &path, mode_t mode)
    {
        ASSERT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0);
    }

    QString plugIns() const { return m_folder.filePath(u"plug-ins"_s); }
    QString bundle() const { return plugIns() + u"/Some.bundle"_s; }
    QString library() const { return bundle() + u"/plugin.so"_s; }
    QString info() const { return bundle() + u"/Info.json"_s; }
    QString view() const { return bundle() + u"/Resources/View.ui"_s; }
    QString picture() const { return bundle() + u"/Resources/Pictures/Tray.tiff"_s; }
    QString openPlace() const { return placeOpenToOthers(bundle(), library()); }

    QTemporaryDir m_folder;
};

TEST_F(BundlePlaces, AreClosedToOthers)
{
    EXPECT_EQ(openPlace(), QString());
}

TEST_F(BundlePlaces, AreOpenThroughTheLibrary)
{
    allow(library(), 0757);
    EXPECT_EQ(openPlace(), library());
}

TEST_F(BundlePlaces, AreOpenThroughWhatTheBundleSaysAndShows)
{
    for (const QString &path :
         {info(), QFileInfo(view()).path(), view(), QFileInfo(picture()).path(), picture()}) {
        allow(path, 0757);
        EXPECT_EQ(openPlace(), path);
        allow(path, 0755);
    }
}

TEST_F(BundlePlaces, NeedNoResources)
{
    ASSERT_TRUE(QDir(bundle() + u"/Resources"_s).removeRecursively());
    EXPECT_EQ(openPlace(), QString());
}

TEST_F(BundlePlaces, AreOpenThroughTheBundle)
{
    allow(bundle(), 0757);
    EXPECT_EQ(openPlace(), bundle());
}

TEST_F(BundlePlaces, AreOpenThroughTheFolderOfBundles)
{
    allow(plugIns(), 0757);
    EXPECT_EQ(openPlace(), plugIns());
    allow(plugIns(), 01777); // as /tmp: the bundle in it is still its owner's
    EXPECT_EQ(openPlace(), QString());
}

TEST_F(BundlePlaces, AreThoseThatALinkLeadsTo)
{
    const QString link = m_folder.filePath(u"Link.bundle"_s);
    ASSERT_TRUE(QFile::link(bundle(), link));
    allow(plugIns(), 0757);
    EXPECT_EQ(placeOpenToOthers(link, link + u"/plugin.so"_s), plugIns());
}

TEST_F(BundlePlaces, AreOpenWhereTheyCannotBeLookedAt)
{
    EXPECT_FALSE(placeOpenToOthers(bundle(), bundle() + u"/nothing.so"_s).isNull());
}

} // namespace
