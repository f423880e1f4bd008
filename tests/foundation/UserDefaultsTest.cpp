#include "platform/foundation/UserDefaults.h"

#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kDomain = "com.velkaro.test"_L1;

class UserDefaultsTest : public testing::Test
{
protected:
    UserDefaultsTest() { defaults.setFolder(folder.path()); }
    ~UserDefaultsTest() override { defaults.setFolder(QString()); }

    QVariantMap read(const QString &domain = kDomain) const
    {
        return defaults.persistentDomainForName(domain);
    }

    QString path() const { return folder.filePath(kDomain + ".ini"_L1); }

    QTemporaryDir folder;
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
};

struct Obstacle
{
    const char *behaviour;
    const char *ending; ///< of the path at which it stands
    void (*make)(const QByteArray &path);
};

class UserDefaultsBeside : public UserDefaultsTest, public testing::WithParamInterface<Obstacle>
{};

TEST_P(UserDefaultsBeside, WhatWouldKeepThemWaitingAreEmptyAndCannotBeWritten)
{
    const QByteArray obstacle = QFile::encodeName(path()) + GetParam().ending;
    GetParam().make(obstacle);
    struct stat before = {};
    ASSERT_EQ(lstat(obstacle.constData(), &before), 0);
    EXPECT_EQ(read(), QVariantMap());
    defaults.setPersistentDomain({{u"alert"_s, false}}, kDomain);
    EXPECT_FALSE(defaults.synchronize());
    struct stat after = {};
    ASSERT_EQ(lstat(obstacle.constData(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
}

INSTANTIATE_TEST_SUITE_P(
    Table, UserDefaultsBeside,
    testing::Values(Obstacle{"APipe", "",
                             [](const QByteArray &path) { mkfifo(path.constData(), 0600); }},
                    Obstacle{"APipeInThePlaceOfTheLock", ".lock",
                             [](const QByteArray &path) { mkfifo(path.constData(), 0600); }},
                    Obstacle{"ADeviceWithoutEnd", "",
                             [](const QByteArray &path) {
                                 EXPECT_EQ(symlink("/dev/zero", path.constData()), 0);
                             }},
                    Obstacle{"AFileWithoutEnd", "",
                             [](const QByteArray &path) {
                                 writeFile(QFile::decodeName(path), "[a]\n");
                                 EXPECT_EQ(truncate(path.constData(), 100'000'000'000), 0);
                             }}),
    CaseName());

TEST_F(UserDefaultsTest, AreAsTheyWereAfterTransientOnes)
{
    defaults.setPersistentDomain({{u"alert"_s, false}}, kDomain);
    {
        const TransientDefaults transient;
        EXPECT_TRUE(read().isEmpty());
        defaults.setPersistentDomain({{u"alert"_s, true}, {u"other"_s, 1}}, kDomain);
        EXPECT_EQ(read().size(), 2);
    }
    EXPECT_EQ(read().value(u"alert"_s).toBool(), false);
    EXPECT_EQ(read().size(), 1);
}

TEST_F(UserDefaultsTest, HasAnEmptyDomainBeforeTheFirstWrite)
{
    EXPECT_TRUE(read().isEmpty());
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(UserDefaultsTest, IsOnTheDiskWhenSynchronizeReturns)
{
    defaults.setPersistentDomain({{u"Best Alert"_s, false}}, kDomain);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(readFile(path()), "[General]\nBest%20Alert=false\n");
}

struct ValueCase
{
    const char *behaviour;
    QString key;
    bool value;
};

class StoredBoolean : public UserDefaultsTest, public testing::WithParamInterface<ValueCase>
{};

const ValueCase kValueCases[] = {
    {"False", u"Best Alert"_s, false},
    {"True", u"Best Alert"_s, true},
    {"KeyWithASlash", u"a/b"_s, true},
    {"KeyInJapanese", u"印刷"_s, true},
    {"KeyWithSignsOfTheFormat", u"[x]=%;\\"_s, true},
};

TEST_P(StoredBoolean, ComesBackFromAnotherRunsFile)
{
    defaults.setPersistentDomain({{GetParam().key, GetParam().value}}, kDomain);
    ASSERT_TRUE(defaults.synchronize());
    // Another folder with a copy of the file: nothing of it can come from memory.
    const QTemporaryDir elsewhere;
    ASSERT_TRUE(
        QFile::copy(folder.filePath(kDomain + ".ini"_L1), elsewhere.filePath(kDomain + ".ini"_L1)));
    defaults.setFolder(elsewhere.path());
    ASSERT_EQ(read().keys(), QStringList{GetParam().key});
    EXPECT_EQ(read().value(GetParam().key).toBool(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Cases, StoredBoolean, testing::ValuesIn(kValueCases), CaseName());

TEST_F(UserDefaultsTest, ReplacesADomainAsAWhole)
{
    defaults.setPersistentDomain({{u"Best Alert"_s, false}, {u"Other"_s, true}}, kDomain);
    defaults.setPersistentDomain({{u"Other"_s, false}}, kDomain);
    EXPECT_EQ(read().keys(), QStringList{u"Other"_s});
    EXPECT_FALSE(read().value(u"Other"_s).toBool());
}

TEST_F(UserDefaultsTest, KeepsDomainsApart)
{
    defaults.setPersistentDomain({{u"Best Alert"_s, false}}, kDomain);
    EXPECT_TRUE(read(u"com.velkaro.other"_s).isEmpty());
}

TEST_F(UserDefaultsTest, MakesTheFolder)
{
    defaults.setFolder(folder.filePath(u"a/b"_s));
    defaults.setPersistentDomain({{u"Best Alert"_s, false}}, kDomain);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_TRUE(QFile::exists(folder.filePath(u"a/b/com.velkaro.test.ini"_s)));
}

TEST_F(UserDefaultsTest, SaysOnceThatItCannotWrite)
{
    // A file where the folder should be: not even an administrator can write below it.
    writeFile(folder.filePath(u"file"_s), {});
    defaults.setFolder(folder.filePath(u"file/below"_s));
    defaults.setPersistentDomain({{u"Best Alert"_s, false}}, kDomain);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_TRUE(defaults.synchronize());
}

TEST_F(UserDefaultsTest, RemembersAFailureUntilItIsAskedFor)
{
    writeFile(folder.filePath(u"file"_s), {});
    defaults.setFolder(folder.filePath(u"file/below"_s));
    defaults.setPersistentDomain({{u"Best Alert"_s, false}}, kDomain);
    defaults.setFolder(folder.path());
    defaults.setPersistentDomain({{u"Best Alert"_s, false}}, kDomain);
    EXPECT_FALSE(defaults.synchronize());
}

TEST_F(UserDefaultsTest, TakesADamagedFileForAnEmptyDomainAndReplacesIt)
{
    writeFile(path(), QByteArray("\x00\xff garbage without any sense\n[", 31));
    EXPECT_FALSE(read().value(u"Best Alert"_s).isValid());
    defaults.setPersistentDomain({{u"Best Alert"_s, false}}, kDomain);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(readFile(path()), "[General]\nBest%20Alert=false\n");
}

TEST_F(UserDefaultsTest, KeepsEverythingInMemoryWithoutAFolder)
{
    defaults.setFolder(QString());
    defaults.setPersistentDomain({{u"Best Alert"_s, false}}, kDomain);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(read(), (QVariantMap{{u"Best Alert"_s, false}}));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(UserDefaultsTest, ForgetsWhatWasInMemoryWhenTheFolderIsSetAgain)
{
    defaults.setFolder(QString());
    defaults.setPersistentDomain({{u"Best Alert"_s, false}}, kDomain);
    defaults.setFolder(QString());
    EXPECT_TRUE(read().isEmpty());
}

} // namespace
