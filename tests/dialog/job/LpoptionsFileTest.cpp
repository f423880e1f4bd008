#include "dialog/job/LpoptionsFile.h"

#include "tests/support/Files.h"
#include "tests/support/LpoptionsFolder.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <gtest/gtest.h>

#include <cups/cups.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QueueName kGlossy{u"photo"_s, u"glossy"_s};

// What a person, lpoptions and another program have left there.
constexpr char kForeign[] = "# mine, by hand\n"
                            "\tDest   photo   media=a4 \t\n"
                            "Default photo/glossy VKMediaType=Glossy\n"
                            "gibberish \xff\xfe here\r\n"
                            "dest PHOTO/Matte x=1 title=\"a b\"\n"
                            "Dest other/glossy y=2";

struct LineChange
{
    const char *what;
    QByteArray (*change)(const QByteArray &text);
    const char *before;
    const char *after;
};

void PrintTo(const LineChange &row, std::ostream *out)
{
    *out << row.what;
}

class LpoptionsText : public testing::TestWithParam<LineChange>
{};

TEST_P(LpoptionsText, ChangesInItsOwnLinesAlone)
{
    EXPECT_EQ(GetParam().change(GetParam().before).toStdString(), GetParam().after);
}

QByteArray saved(const QByteArray &text, const QueueName &name)
{
    return withSavedLine(text, name, {{u"VKMediaType"_s, u"Plain"_s}});
}

INSTANTIATE_TEST_SUITE_P(
    All, LpoptionsText,
    testing::Values(
        LineChange{"another preset goes to the end",
                   [](const QByteArray &text) {
                       return saved(text, {u"photo"_s, u"draft"_s});
                   },
                   kForeign,
                   "# mine, by hand\n"
                   "\tDest   photo   media=a4 \t\n"
                   "Default photo/glossy VKMediaType=Glossy\n"
                   "gibberish \xff\xfe here\r\n"
                   "dest PHOTO/Matte x=1 title=\"a b\"\n"
                   "Dest other/glossy y=2\n"
                   "Dest photo/draft VKMediaType=\"Plain\"\n"},
        LineChange{"a preset that is the usual printer stays it",
                   [](const QByteArray &text) { return saved(text, kGlossy); }, kForeign,
                   "# mine, by hand\n"
                   "\tDest   photo   media=a4 \t\n"
                   "Default photo/glossy VKMediaType=\"Plain\"\n"
                   "gibberish \xff\xfe here\r\n"
                   "dest PHOTO/Matte x=1 title=\"a b\"\n"
                   "Dest other/glossy y=2"},
        LineChange{"the case of letters is read over, as libcups does",
                   [](const QByteArray &text) {
                       return saved(text, {u"photo"_s, u"matte"_s});
                   },
                   "dest PHOTO/Matte x=1\nDest photo/matte z=2\n",
                   "Dest photo/matte VKMediaType=\"Plain\"\n"},
        LineChange{"an empty file gets its first line",
                   [](const QByteArray &text) { return saved(text, kGlossy); }, "",
                   "Dest photo/glossy VKMediaType=\"Plain\"\n"},
        LineChange{"a preset is taken out",
                   [](const QByteArray &text) {
                       return withoutSavedLine(text, {u"photo"_s, u"matte"_s});
                   },
                   "a\nDest photo/Matte x=1\nb\n", "a\nb\n"},
        LineChange{"the usual printer goes on without its preset",
                   [](const QByteArray &text) { return withoutSavedLine(text, kGlossy); },
                   "Default photo/glossy x=1\nDest photo y=2\n", "Default photo\nDest photo y=2\n"},
        LineChange{"another name leaves the settings as they were written",
                   [](const QByteArray &text) { return withRenamedLine(text, kGlossy, u"new"_s); },
                   "Default  photo/glossy\tx=\"photo/glossy\"  \nDest other/glossy y=2\n",
                   "Default  photo/new\tx=\"photo/glossy\"  \nDest other/glossy y=2\n"}));

/// The user's file, with libcups beside us.
class Lpoptions : public testing::Test
{
protected:
    static Result<> save(const QueueName &name, const QList<JobOption> &options)
    {
        return changeLpoptions([&](const QByteArray &text) {
            return Result<QByteArray>(withSavedLine(text, name, options));
        });
    }

    LpoptionsFolder m_folder;
};

TEST_F(Lpoptions, AreReadByLibcupsAndByUsAsTheyWereMeant)
{
    const QList<JobOption> options{{u"comment"_s, u"#1 \\# #"_s}, // libcups sorts them
                                   {u"japanese"_s, u"光沢紙"_s},
                                   {u"plain"_s, u"Glossy"_s},
                                   {u"quoted"_s, u"a \"b\" 'c' \\ d"_s},
                                   {u"Stamp"_s, u"{Text=\"x \\\"y\\\"\" Size=3}"_s}};
    ASSERT_TRUE(save(kGlossy, options));
    EXPECT_EQ(savedOptions(kGlossy), options);
    // libcups reads the same file for a queue that it is told of.
    cups_file_t *file = cupsFileOpen(m_folder.userFile().toLocal8Bit().constData(), "r");
    ASSERT_NE(file, nullptr);
    char line[8192];
    char *value = nullptr;
    int number = 0;
    ASSERT_NE(cupsFileGetConf(file, line, sizeof line, &value, &number), nullptr);
    cups_option_t *read = nullptr;
    const int count = cupsParseOptions(std::strchr(value, ' '), 0, &read);
    QList<JobOption> byCups;
    for (int index = 0; index < count; ++index)
        byCups +=
            JobOption{QString::fromUtf8(read[index].name), QString::fromUtf8(read[index].value)};
    cupsFreeOptions(count, read);
    cupsFileClose(file);
    EXPECT_EQ(byCups, options);
}

TEST_F(Lpoptions, MadeByTwoDialogsAtOnceLoseNothing)
{
    constexpr int kEach = 25;
    const auto work = [](const QString &name) {
        for (int index = 0; index < kEach; ++index)
            EXPECT_TRUE(save({u"photo"_s, name + QString::number(index)}, {{u"x"_s, u"1"_s}}));
    };
    std::thread other(work, u"other"_s);
    work(u"one"_s);
    other.join();
    EXPECT_EQ(savedInstances().size(), 2 * kEach);
}

TEST_F(Lpoptions, BehindALinkStayBehindIt)
{
    const QString target = m_folder.home() + u"/dotfiles"_s;
    writeFile(target, "# mine\n");
    ASSERT_EQ(symlink(QFile::encodeName(target).constData(),
                      QFile::encodeName(m_folder.userFile()).constData()),
              0);
    ASSERT_TRUE(save(kGlossy, {{u"x"_s, u"1"_s}}));
    EXPECT_TRUE(QFileInfo(m_folder.userFile()).isSymLink());
    EXPECT_EQ(QFileInfo(m_folder.userFile()).symLinkTarget(), target);
    EXPECT_EQ(m_folder.user(), "# mine\nDest photo/glossy x=\"1\"\n");
}

TEST_F(Lpoptions, ThatAreNoFileAreLeftAlone)
{
    QDir().mkpath(m_folder.userFile());
    const Result<> saved = save(kGlossy, {{u"x"_s, u"1"_s}});
    EXPECT_EQ(saved.faultKind(), FaultKind::Output);
    EXPECT_EQ(saved.sentence(),
              u"The saved settings in %1 cannot be read: it is no ordinary file."_s.arg(
                  m_folder.userFile()));
}

TEST_F(Lpoptions, WithAPipeInThePlaceOfTheLockAreLeftAlone)
{
    m_folder.writeUser("# kept\n");
    const QString lock = m_folder.userFile() + u".lock"_s;
    ASSERT_EQ(mkfifo(QFile::encodeName(lock).constData(), 0600), 0);
    const Result<> saved = save(kGlossy, {{u"x"_s, u"1"_s}});
    EXPECT_EQ(saved.sentence(),
              u"The saved settings in %1 cannot be read: it is no ordinary file."_s.arg(lock));
    EXPECT_EQ(m_folder.user(), "# kept\n");
}

TEST_F(Lpoptions, OfTooManySettingsAreRefused)
{
    m_folder.writeUser("# kept\n");
    const Result<> saved = save(kGlossy, {{u"x"_s, QString(8000, u'y')}});
    EXPECT_EQ(saved.sentence(), u"These are too many settings for one name."_s);
    EXPECT_EQ(m_folder.user(), "# kept\n");
}

TEST_F(Lpoptions, KeepTheirPermissions)
{
    m_folder.writeUser("# kept\n");
    ASSERT_EQ(chmod(QFile::encodeName(m_folder.userFile()).constData(), 0600), 0);
    ASSERT_TRUE(save(kGlossy, {{u"x"_s, u"1"_s}}));
    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(m_folder.userFile()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(Lpoptions, NameTheInstancesThatThereAre)
{
    m_folder.writeSystem("Dest photo/office x=1\n");
    m_folder.writeUser("Dest photo/glossy x=1\n");
    EXPECT_TRUE(checkInstance({u"photo"_s, {}}));
    EXPECT_TRUE(checkInstance({u"photo"_s, u"Glossy"_s}));
    EXPECT_TRUE(checkInstance({u"photo"_s, u"office"_s}));
    const Result<> unknown = checkInstance({u"photo"_s, u"nosuch"_s});
    EXPECT_EQ(unknown.faultKind(), FaultKind::Request);
    EXPECT_EQ(unknown.sentence(),
              u"There are no settings saved as \"nosuch\" for the printer photo."_s);
    EXPECT_FALSE(checkInstance({u"other"_s, u"glossy"_s}));
}

TEST_F(Lpoptions, WithoutAHomeAreTheSystems)
{
    EXPECT_EQ(ownLpoptionsFile(), m_folder.userFile());
    qunsetenv("HOME");
    EXPECT_TRUE(ownLpoptionsFile().endsWith(u"/etc/lpoptions"_s));
}

} // namespace
