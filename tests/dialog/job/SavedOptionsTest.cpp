#include "dialog/job/SavedOptions.h"
#include "dialog/host/PPDFile.h"
#include "dialog/job/SavedFiles.h"
#include "dialog/job/SavedSettings.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The lpoptions files of a system and of a user, in folders of the test's own.
class SavedOptions : public testing::Test
{
protected:
    SavedOptions()
    {
        qputenv("CUPS_SERVERROOT", QFile::encodeName(m_folder.filePath(u"etc"_s)));
        qputenv("HOME", QFile::encodeName(m_folder.filePath(u"home"_s)));
        qunsetenv("LPDEST");
        qunsetenv("PRINTER");
    }

    void writeSystem(const QByteArray &text) { write(u"etc"_s, text); }
    void writeUser(const QByteArray &text) { write(u"home/.cups"_s, text); }

private:
    void write(const QString &folder, const QByteArray &text)
    {
        writeFile(m_folder.filePath(folder + u"/lpoptions"_s), text);
    }

    QTemporaryDir m_folder;
};

TEST_F(SavedOptions, OfAnInstanceLieAboveThoseOfItsQueue)
{
    writeSystem("Dest photo copies=2 VKMediaType=Plain\n");
    writeUser("# mine\nDest photo/glossy VKMediaType=Glossy PageSize=A4.Fullbleed\n"
              "Default photo VKMediaType=HiRes\n"
              "Dest other VKMediaType=Matte\n");
    EXPECT_EQ(savedOptions({u"photo"_s, {}}),
              (QList<JobOption>{{u"copies"_s, u"2"_s}, {u"VKMediaType"_s, u"HiRes"_s}}));
    EXPECT_EQ(savedOptions({u"photo"_s, u"glossy"_s}),
              (QList<JobOption>{{u"copies"_s, u"2"_s},
                                {u"PageSize"_s, u"A4.Fullbleed"_s},
                                {u"VKMediaType"_s, u"Glossy"_s}}));
    EXPECT_EQ(savedOptions({u"nobody"_s, {}}), QList<JobOption>());
}

TEST_F(SavedOptions, OfALongLineAreThoseThatLibcupsReads)
{
    const QByteArray padding(8192, 'y');
    writeUser("Dest photo one=1 x=" + padding + " two=2\nDest photo three=3\n");
    QStringList names;
    for (const JobOption &option : savedOptions({u"photo"_s, {}}))
        names += option.name;
    EXPECT_EQ(names, QStringList({u"one"_s, u"x"_s, u"three"_s}));
}

struct UnreadableFile
{
    const char *behaviour;
    void (*make)(const QByteArray &path);
    const char *reason;
};

class SavedFile : public SavedOptions, public testing::WithParamInterface<UnreadableFile>
{};

TEST_P(SavedFile, ThatCannotBeReadIsToldOfAndHasNoSettings)
{
    writeUser("Dest photo/glossy x=1\n");
    const QString path = lpoptionsFiles().constLast();
    ASSERT_TRUE(QFile::remove(path));
    GetParam().make(QFile::encodeName(path));
    const QString sentence = u"The saved settings in %1 cannot be read: %2."_s.arg(
        path, QLatin1String(GetParam().reason));
    EXPECT_EQ(notesOnLpoptions(), QStringList(sentence));
    EXPECT_EQ(savedOptions({u"photo"_s, {}}), QList<JobOption>());
    EXPECT_EQ(savedInstances(), QList<QueueName>());
    EXPECT_EQ(checkInstance({u"photo"_s, u"glossy"_s}).sentence(), sentence);
    EXPECT_TRUE(checkInstance({u"photo"_s, {}}));
}

INSTANTIATE_TEST_SUITE_P(
    All, SavedFile,
    testing::Values(UnreadableFile{"APipeThatNobodyWritesTo",
                                   [](const QByteArray &path) { mkfifo(path.constData(), 0600); },
                                   "it is no ordinary file"},
                    UnreadableFile{"AFolder",
                                   [](const QByteArray &path) { mkdir(path.constData(), 0700); },
                                   "it is no ordinary file"},
                    UnreadableFile{"ALinkToNowhere",
                                   [](const QByteArray &path) {
                                       EXPECT_EQ(
                                           symlink("/nonexistent/lpoptions", path.constData()), 0);
                                   },
                                   "it is no ordinary file"},
                    UnreadableFile{"AFileWithoutEnd",
                                   [](const QByteArray &path) {
                                       writeFile(QFile::decodeName(path), "Dest photo x=1\n");
                                       EXPECT_EQ(truncate(path.constData(), 100'000'000'000), 0);
                                   },
                                   "it has more than 4 MB"}),
    CaseName());

TEST_F(SavedOptions, AreWhatWasSaidLast)
{
    writeUser("Dest photo a=1 b=1 c=1\nDest Photo b=2\nDest photo/x c=3 a=4\n");
    EXPECT_EQ(savedOptions({u"photo"_s, u"X"_s}),
              (QList<JobOption>{{u"b"_s, u"2"_s}, {u"a"_s, u"4"_s}, {u"c"_s, u"3"_s}}));
    EXPECT_TRUE(notesOnLpoptions().isEmpty());
}

TEST_F(SavedOptions, AreNoneWithoutFiles)
{
    EXPECT_EQ(savedOptions({u"photo"_s, {}}), QList<JobOption>());
    EXPECT_EQ(usualQueue(), QueueName());
}

TEST_F(SavedOptions, NameTheUsualQueue)
{
    writeSystem("Default office\n");
    EXPECT_EQ(usualQueue(), (QueueName{u"office"_s, {}}));
    writeUser("Default photo/glossy VKMediaType=Glossy\n");
    EXPECT_EQ(usualQueue(), (QueueName{u"photo"_s, u"glossy"_s}));
    qputenv("PRINTER", "lp");
    EXPECT_EQ(usualQueue(), (QueueName{u"photo"_s, u"glossy"_s}));
    qputenv("PRINTER", "second");
    EXPECT_EQ(usualQueue(), (QueueName{u"second"_s, {}}));
    qputenv("LPDEST", "third/x");
    EXPECT_EQ(usualQueue(), (QueueName{u"third"_s, u"x"_s}));
}

TEST(SavedLine, UnderstandsQuotesAndSkipsTheRest)
{
    const SavedLine line = parseSavedLine("Dest  a/b  title=\"two words\" x=1\n");
    EXPECT_EQ(line.name, (QueueName{u"a"_s, u"b"_s}));
    EXPECT_FALSE(line.isDefault);
    EXPECT_EQ(line.options, (QList<JobOption>{{u"title"_s, u"two words"_s}, {u"x"_s, u"1"_s}}));
    EXPECT_TRUE(parseSavedLine("# Dest a x=1").name.queue.isEmpty());
    EXPECT_TRUE(parseSavedLine("").name.queue.isEmpty());
    EXPECT_TRUE(parseSavedLine("Dest").name.queue.isEmpty());
}

TEST(SavedSettings, BecomeMarksSettingsAndTheRest)
{
    const auto opened = openPPD(samplePPD(u"velkaro-px-t900"_s));
    ASSERT_TRUE(opened) << opened.sentence().toStdString();
    const SavedSettings settings =
        applySavedOptions(opened->ppd.get(), {{u"VKMediaType"_s, u"Glossy"_s},
                                              {u"PageSize"_s, u"A4.Fullbleed"_s},
                                              {u"VKResolution"_s, u"NoSuchChoice"_s},
                                              {u"sides"_s, u"two-sided-long-edge"_s},
                                              {u"copies"_s, u"3"_s},
                                              {u"page-ranges"_s, u"2-4"_s},
                                              {u"orientation-requested"_s, u"5"_s},
                                              {u"number-up"_s, u"2"_s},
                                              {u"number-up-layout"_s, u"zigzag"_s},
                                              {u"job-sheets"_s, u"standard"_s},
                                              {u"mirror"_s, u"true"_s}});
    EXPECT_EQ(markedChoice(opened->ppd.get(), u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(markedChoice(opened->ppd.get(), u"PageSize"_s), u"A4.Fullbleed"_s);
    EXPECT_EQ(markedChoice(opened->ppd.get(), u"Duplex"_s), u"DuplexNoTumble"_s);
    EXPECT_EQ(settings.settings.copies, 3);
    EXPECT_EQ(settings.settings.pageRanges, u"2-4"_s);
    EXPECT_EQ(settings.orientation, PMOrientation::Landscape);
    EXPECT_EQ(settings.settings.layout.pagesPerSheet, u"2"_s);
    EXPECT_EQ(settings.settings.layout.coverPages, u"standard,none"_s);
    EXPECT_EQ(settings.others,
              (QList<JobOption>{{u"number-up-layout"_s, u"zigzag"_s}, {u"mirror"_s, u"true"_s}}));
}

TEST(OptionsForOthers, AreThoseThatThePrinterDoesNotTake)
{
    const auto opened = openPPD(samplePPD(u"velkaro-px-t900"_s));
    ASSERT_TRUE(opened) << opened.sentence().toStdString();
    const QList<JobOption> taken{{u"VKMediaType"_s, u"glossy"_s},
                                 {u"PageSize"_s, u"A4.Fullbleed"_s},
                                 {u"PageSize"_s, u"Custom.566.93x566.93"_s},
                                 {u"PageSize"_s, u"Custom.200x200mm"_s},
                                 {u"com.example.own"_s, u"1"_s},
                                 {u"job-sheets"_s, u"standard"_s},
                                 {u"copies"_s, u"3"_s}};
    const QList<JobOption> others{{u"VKMediaType"_s, u"Bronze"_s},
                                  {u"PageSize"_s, u"A9"_s},
                                  {u"PageSize"_s, u"Custom.2000x2000mm"_s},
                                  {u"VKGloss"_s, u"ON"_s}};
    EXPECT_EQ(optionsForOthers(opened->ppd.get(), taken + others), others);
    EXPECT_EQ(optionsForOthers(nullptr, others), QList<JobOption>());
}

struct UnusableValue
{
    const char *behaviour;
    JobOption saved;
};

class UnusableSavedValue : public testing::TestWithParam<UnusableValue>
{};

TEST_P(UnusableSavedValue, IsNamedAndLeavesTheUsualOne)
{
    const SavedSettings settings = applySavedOptions(nullptr, {GetParam().saved});
    EXPECT_EQ(settings.missing, QList<JobOption>{GetParam().saved});
    EXPECT_EQ(settings.settings.copies, 1);
    EXPECT_EQ(settings.settings.pageRanges, QString());
    EXPECT_EQ(settings.settings.scaling, PrintScaling::Automatic);
    EXPECT_EQ(settings.orientation, PMOrientation::Portrait);
    EXPECT_EQ(settings.others, QList<JobOption>());
}

INSTANTIATE_TEST_SUITE_P(
    Table, UnusableSavedValue,
    testing::Values(UnusableValue{"NoNumberOfCopies", {u"copies"_s, u"many"_s}},
                    UnusableValue{"NoPages", {u"page-ranges"_s, u"7-x"_s}},
                    UnusableValue{"NoOrientation", {u"orientation-requested"_s, u"upright"_s}},
                    UnusableValue{"NoScaling", {u"print-scaling"_s, u"zoom"_s}},
                    UnusableValue{"ANeitherTrueNorFalseFit", {u"fitplot"_s, u"80"_s}}),
    CaseName());

TEST(SavedSettings, WithoutAPPDKeepEverythingElse)
{
    const SavedSettings settings = applySavedOptions(
        nullptr, {{u"media"_s, u"a4"_s}, {u"copies"_s, u"0"_s}, {u"sides"_s, u"one-sided"_s}});
    EXPECT_EQ(settings.settings.copies, 1);
    EXPECT_EQ(settings.others,
              (QList<JobOption>{{u"media"_s, u"a4"_s}, {u"sides"_s, u"one-sided"_s}}));
}

} // namespace
