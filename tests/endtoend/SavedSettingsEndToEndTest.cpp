// What is saved: settings of a queue and of its instances, and jobs in files.
#include "tests/endtoend/CommandFixture.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/CaseName.h"

#include <QtCore/QFileInfo>

using namespace Qt::StringLiterals;

namespace {

TEST_F(Command, SavedOptionsOfALayoutArriveInTheJob)
{
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"photo"_s, pdf()},
                   "Dest photo number-up=4 page-border=single job-sheets=none,standard\n");
    ASSERT_EQ(run.status, 0) << run.errors.toStdString();
    const QMap<QString, QString> job = server().jobAttributes(u"photo"_s, newJobs()[0]);
    EXPECT_EQ(job.value(u"number-up"_s), u"4"_s);
    EXPECT_EQ(job.value(u"page-border"_s), u"single"_s);
    EXPECT_EQ(job.value(u"job-sheets"_s), u"none,standard"_s);
}

TEST_F(Command, AnInstancePrintsWithItsSavedSettings)
{
    const ProgramRun run = runProgram(
        {u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"photo/borderless"_s, pdf()},
        "Dest photo copies=2\nDest photo/borderless PageSize=A4.Fullbleed "
        "VKMediaType=VelkaroQM41Matte\n");
    ASSERT_EQ(run.status, 0) << run.errors.toStdString();
    ASSERT_EQ(newJobs().size(), 1);
    const QMap<QString, QString> job = server().jobAttributes(u"photo"_s, newJobs()[0]);
    EXPECT_EQ(job.value(u"PageSize"_s), u"A4.Fullbleed"_s);
    EXPECT_EQ(job.value(u"VKMediaType"_s), u"VelkaroQM41Matte"_s);
    EXPECT_EQ(job.value(u"copies"_s), u"2"_s);
}

TEST_F(Command, MoreSavedSettingsThanAnybodyHasAreNotSent)
{
    QByteArray lines;
    for (int number = 0; number <= 1000; ++number)
        lines += "Dest photo x" + QByteArray::number(number) + "=1\n";
    const ProgramRun run = runProgram(
        {u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"photo"_s, pdf()}, lines);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, u"velkaro-print: There are more settings saved for photo than the 1000 "
                          "that can be used.\n"_s);
    EXPECT_EQ(newJobs(), QList<int>());
}

TEST_F(Command, SavedSettingsThatCannotBeReadAreToldOfAndTheJobGoesWithoutThem)
{
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"photo"_s, pdf()},
                   "Dest photo copies=2\n" + QByteArray(5 * 1024 * 1024, '#'));
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.errors.startsWith(u"velkaro-print: The saved settings in "_s) &&
                run.errors.endsWith(u"/lpoptions cannot be read: it has more than 4 MB.\n"_s))
        << run.errors.toStdString();
    ASSERT_EQ(newJobs().size(), 1);
    EXPECT_EQ(server().jobAttributes(u"photo"_s, newJobs()[0]).value(u"copies"_s, u"1"_s), u"1"_s);
}

TEST_F(Command, AJobInAFileIsSentLater)
{
    const QString file = inFolder(u"later.velkaro-job"_s);
    ASSERT_EQ(print({u"-o"_s, u"VKMediaType=Glossy"_s, u"--output"_s, file}).status, 0);
    EXPECT_EQ(newJobs(), QList<int>());
    const ProgramRun run = runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), file});
    ASSERT_EQ(run.status, 0) << run.errors.toStdString();
    ASSERT_EQ(newJobs().size(), 1);
    EXPECT_TRUE(run.errors.startsWith(u"velkaro-print: Sending \"document.pdf\" to photo.\n"
                                      "velkaro-print: Document: document.pdf (%1 bytes)\n"_s.arg(
                                          QFileInfo(inFolder(u"document.pdf"_s)).size())))
        << run.errors.toStdString();
    EXPECT_TRUE(run.errors.contains(u"\nvelkaro-print: Setting: VKMediaType=Glossy\n"_s))
        << run.errors.toStdString();
    EXPECT_EQ(settingsOf(newJobs()[0]).value(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(server().jobAttributes(u"photo"_s, newJobs()[0]).value(u"job-name"_s),
              u"document.pdf"_s);
}

TEST_F(Command, ASavedJobKeepsTheHoldThatTheUserSaved)
{
    const QString file = inFolder(u"held.job"_s);
    const ProgramRun saved = runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s,
                                         u"photo"_s, u"--output"_s, file, pdf()},
                                        "Dest photo job-hold-until=indefinite number-up=2\n");
    ASSERT_EQ(saved.status, 0) << saved.errors.toStdString();
    const ProgramRun run = runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), file});
    ASSERT_EQ(run.status, 0) << run.errors.toStdString();
    ASSERT_EQ(newJobs().size(), 1);
    const QMap<QString, QString> job = server().jobAttributes(u"photo"_s, newJobs()[0]);
    EXPECT_EQ(job.value(u"job-hold-until"_s), u"indefinite"_s);
    EXPECT_EQ(job.value(u"number-up"_s), u"2"_s);
}

TEST_F(Command, ASavedJobTellsOfSettingsThatThePrinterDoesNotHave)
{
    const QString file = inFolder(u"other.job"_s);
    writeFile(
        file,
        "Velkaro-Print-Job: 1\nTitle: A\nOption: VKMediaType=Bronze\nOption: VKGloss=ON\n"
        "Option: copies=2\nOption: PageSize=Custom.566.93x566.93\nDocument: 5 a.ps\n\n%!PS\n");
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"photo"_s, file});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors.section(u'\n', -2),
              u"velkaro-print: The printer does not have some of the settings that the job was "
              "saved with: VKMediaType=Bronze, VKGloss=ON.\n"_s);
    EXPECT_EQ(newJobs().size(), 1);
}

struct SavedJob
{
    const char *behaviour;
    QByteArray header; ///< between the first line and the document
    QStringList options;
    int status;
    const char *says; ///< the first line on standard error; %1 is the file
};

void PrintTo(const SavedJob &row, std::ostream *out)
{
    *out << row.behaviour;
}

class CommandWithSavedJob : public Command, public testing::WithParamInterface<SavedJob>
{};

TEST_P(CommandWithSavedJob, SendsWhatThisProgramWritesAndSaysIt)
{
    const QString file = inFolder(u"the.job"_s);
    writeFile(file, "Velkaro-Print-Job: 1\n" + GetParam().header + "Document: 5 a.ps\n\n%!PS\n");
    const ProgramRun run =
        runProgram(QStringList{u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"photo"_s} +
                   GetParam().options + QStringList{file});
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_EQ(run.errors.section(u'\n', 0, 0),
              u"velkaro-print: "_s + QString::fromUtf8(GetParam().says).replace(u"%1"_s, file));
    EXPECT_EQ(newJobs().size(), GetParam().status == 0 ? 1 : 0);
}

constexpr auto kForeign = "%1 is not sent: it sets job-sheets-col, which Velkaro Print does not "
                          "write; --yes sends it all the same.";

INSTANTIATE_TEST_SUITE_P(
    Table, CommandWithSavedJob,
    testing::Values(SavedJob{"Settings",
                             "Title: A\nOption: copies=2\nOption: VKMediaType=Glossy\n",
                             {},
                             0,
                             "Sending \"A\" to photo."},
                    SavedJob{"NamesWithControlCharacters",
                             "Title: A\x1B[2J\xE2\x80\xAE\n",
                             {},
                             0,
                             "Sending \"A [2J\" to photo."},
                    SavedJob{"NoTitle", "", {}, 0, "Sending \"Untitled\" to photo."},
                    SavedJob{"ForeignSetting", "Option: job-sheets-col=x\n", {}, 3, kForeign},
                    SavedJob{"ForeignSettingWithYes",
                             "Title: A\nOption: job-sheets-col=x\n",
                             {u"--yes"_s},
                             0,
                             "Sending \"A\" to photo."},
                    SavedJob{"PastTheFilters",
                             "Option: raw=true\n",
                             {},
                             3,
                             "%1 is not sent: it sets raw, which no saved job may."},
                    SavedJob{"PastTheFiltersWithYes",
                             "Option: Raw=true\n",
                             {u"--yes"_s},
                             3,
                             "%1 is not sent: it sets Raw, which no saved job may."},
                    SavedJob{"ToAnotherQueueWithYes",
                             "Option: printer-uri=x\n",
                             {u"--yes"_s},
                             3,
                             "%1 is not sent: it sets printer-uri, which no saved job may."},
                    SavedJob{"TooManyDocuments",
                             QByteArray("Document: 1 a\n").repeated(100000),
                             {},
                             4,
                             "The saved job %1 has too many documents: 1000 are the most."},
                    SavedJob{"CutShort",
                             "Document: 99 a\n",
                             {},
                             4,
                             "The saved job %1 is cut short: its end is missing."}),
    CaseName());

TEST_F(Command, ASavedChoiceYieldsToAnOptionAndIsTold)
{
    const ProgramRun run = runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s,
                                       u"photo/mine"_s, u"-o"_s, u"VKMediaType=Plain"_s, pdf()},
                                      "Dest photo/mine VKMediaType=Glossy VKResolution=Photo\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors,
              u"velkaro-print: Saved for this printer: VKResolution=Photo cannot be chosen while "
              "the other settings are as they are. Print Quality is Normal instead.\n"_s);
    const QList<int> jobs = newJobs();
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(server().jobAttributes(u"photo"_s, jobs[0]).value(u"VKMediaType"_s), u"Plain"_s);
}

// Both asked for would be refused.
TEST_F(Command, ASavedChoiceThatAnOptionDoesNotGoWithIsTold)
{
    for (const QString &queue : {u"photo"_s, u"photo/mine"_s}) {
        const ProgramRun run =
            runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, queue, u"-o"_s,
                        u"Duplex=DuplexNoTumble"_s, pdf()},
                       "Dest " + queue.toUtf8() + " VKMediaType=Glossy VKMirror=ON\n");
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.errors,
                  u"velkaro-print: Saved for this printer: VKMediaType=Glossy cannot be chosen "
                  "together with what was asked for; it is sent as it was saved.\n"_s);
    }
    const QList<int> jobs = newJobs();
    ASSERT_EQ(jobs.size(), 2);
    for (const int job : jobs) {
        const auto sent = server().jobAttributes(u"photo"_s, job);
        EXPECT_EQ(sent.value(u"VKMediaType"_s), u"Glossy"_s);
        EXPECT_EQ(sent.value(u"Duplex"_s), u"DuplexNoTumble"_s);
    }
}

TEST_F(Command, ASavedNumberThatTheSettingCannotHaveIsRefused)
{
    const std::pair<QByteArray, QString> saved[] = {
        {"copies=99999", u"99999 is no value for copies (-n). It can be: 1-999."_s},
        {"number-up=7", u"7 is no value for number-up. It can be: 1, 2, 4, 6, 9, 16."_s}};
    for (const auto &[option, sentence] : saved) {
        const ProgramRun run = runProgram(
            {u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"photo/mine"_s, pdf()},
            "Dest photo/mine " + option + '\n');
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.errors, u"velkaro-print: Saved for this printer: "_s + sentence + u'\n');
    }
    EXPECT_EQ(newJobs(), QList<int>());
}

} // namespace
