#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/CommandFixture.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"

#include <QtNetwork/QTcpServer>

#include <cups/ipp.h>

using namespace Qt::StringLiterals;

namespace {

/// The vendor values of a job whose panels nobody has touched.
QMap<QString, QString> plainTicket()
{
    QMap<QString, QString> ticket;
    for (const char *name : {"Brightness", "Contrast", "Red", "Green", "Blue"})
        ticket.insert(u"com.velkaro.print.PrintSettings.T2T_"_s + QLatin1String(name), u"0"_s);
    return ticket;
}

TEST_F(Command, AChoiceArrivesInTheJobAndInThePrinter)
{
    const ProgramRun run = print({u"-o"_s, u"VKMediaType=Glossy"_s});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    EXPECT_EQ(run.errors, u""_s);
    const QList<int> jobs = newJobs();
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(run.output, u"request id is photo-%1 (1 file(s))\n"_s.arg(jobs[0]));

    QMap<QString, QString> expected = plainTicket();
    expected.insert(u"com.velkaro.print.PrintSettings.advancedItem"_s, u"false"_s);
    expected.insert(u"VKMediaType"_s, u"Glossy"_s);
    expected.insert(u"VKResolution"_s, u"Photo"_s);
    expected.insert(u"VKBiDir"_s, u"OFF"_s);
    expected.insert(u"VKColorMatching"_s, u"Natural"_s);
    EXPECT_EQ(settingsOf(jobs[0]), expected);

    EXPECT_EQ(server().waitForJob(u"photo"_s, jobs[0]), IPP_JSTATE_COMPLETED);
    EXPECT_TRUE(printed().contains("%% VKMediaType=Glossy"));
    EXPECT_FALSE(printed().contains("%% VKMediaType=Plain"));
}

TEST_F(Command, AJobHasTheNameThatTheServerHasForTheQueue)
{
    for (const QStringList &how : {QStringList(), QStringList{u"--each"_s, pdf(u"b.pdf"_s)}}) {
        const ProgramRun run = runProgram(
            QStringList{u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"PHOTO"_s, pdf()} +
            how);
        EXPECT_EQ(run.status, 0) << run.errors.toStdString();
        EXPECT_TRUE(run.output.startsWith(u"request id is photo-"_s)) << run.output.toStdString();
        EXPECT_FALSE(run.output.contains(u"PHOTO"_s)) << run.output.toStdString();
    }
}

/// A quality as every printer has it.
struct QualityCase
{
    const char *behaviour;
    QStringList options;
    QString quality; ///< in the job; null: it is refused
    QString sentence;
};

class CommandWithAQuality : public Command, public testing::WithParamInterface<QualityCase>
{};

TEST_P(CommandWithAQuality, TakesTheOneThatGoesWithTheMedium)
{
    QStringList options;
    for (const QString &option : GetParam().options)
        options += {u"-o"_s, option};
    const ProgramRun run = print(options);
    EXPECT_EQ(run.errors, GetParam().sentence);
    EXPECT_EQ(run.status, GetParam().quality.isNull() ? 2 : 0);
    const QString sent =
        newJobs().isEmpty()
            ? QString()
            : server().jobAttributes(u"photo"_s, newJobs()[0]).value(u"VKResolution"_s);
    EXPECT_EQ(sent, GetParam().quality);
}

INSTANTIATE_TEST_SUITE_P(
    Table, CommandWithAQuality,
    testing::Values(
        QualityCase{"OfPlainPaper", {u"print-quality=3"_s}, u"PlainFast"_s, {}},
        QualityCase{
            "OfPhotoPaper", {u"print-quality=5"_s, u"VKMediaType=Glossy"_s}, u"Photo"_s, {}},
        QualityCase{"OfPhotoPaperInTheOtherOrder",
                    {u"VKMediaType=Glossy"_s, u"print-quality=5"_s},
                    u"Photo"_s,
                    {}},
        QualityCase{"OfSeveral",
                    {u"print-quality=5"_s},
                    {},
                    u"velkaro-print: print-quality=5 stands for several choices of this printer. "
                    "It can be: VKResolution=High, VKResolution=Best.\n"_s}),
    CaseName());

TEST_F(Command, ASocketThatIsNotThereIsNamed)
{
    const QString socket = inFolder(u"no-socket"_s);
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, socket, u"-d"_s, u"photo"_s, pdf()});
    EXPECT_EQ(run.status, 6);
    EXPECT_EQ(run.errors, u"velkaro-print: The print server %1 cannot be reached.\n"_s.arg(socket));
}

const QString kNoteOnSides = u"velkaro-print: With several pages on a sheet, \"Pages\" and \"Even "
                             "and Odd\" count the printed sides.\n"_s;

TEST_F(Command, TheNamesOfLpArriveInTheJob)
{
    const ProgramRun run = print({u"-n"_s, u"2"_s, u"-t"_s, u"Mine"_s, u"-P1"_s, u"-Hhold"_s,
                                  u"-q"_s, u"70"_s, u"-m"_s, u"-o"_s, u"number-up=2"_s, u"-o"_s,
                                  u"page-set=odd"_s, u"-o"_s, u"job-sheets=standard"_s, u"-o"_s,
                                  u"sides=two-sided-short-edge"_s, u"-o"_s, u"media=A5"_s});
    ASSERT_EQ(run.status, 0) << run.errors.toStdString();
    EXPECT_EQ(run.errors, kNoteOnSides) << "that it is held was asked for";
    ASSERT_EQ(newJobs().size(), 1);
    const QMap<QString, QString> job = server().jobAttributes(u"photo"_s, newJobs()[0]);
    const QMap<QString, QString> expected{{u"copies"_s, u"2"_s},
                                          {u"job-name"_s, u"Mine"_s},
                                          {u"page-ranges"_s, u"1"_s},
                                          {u"job-hold-until"_s, u"indefinite"_s},
                                          {u"job-priority"_s, u"70"_s},
                                          {u"number-up"_s, u"2"_s},
                                          {u"page-set"_s, u"odd"_s},
                                          {u"job-sheets"_s, u"standard,none"_s},
                                          {u"Duplex"_s, u"DuplexTumble"_s},
                                          {u"sides"_s, u"two-sided-short-edge"_s},
                                          {u"VKMediaType"_s, u"PlainDuplex"_s},
                                          {u"PageSize"_s, u"A5"_s}};
    for (auto one = expected.cbegin(); one != expected.cend(); ++one)
        EXPECT_EQ(job.value(one.key()), one.value()) << one.key().toStdString();
    for (const char *name : {"media", "notify-recipient-uri"})
        EXPECT_FALSE(job.contains(QLatin1String(name))) << name;
    EXPECT_TRUE(server().command(u"cancel"_s, {u"-a"_s, u"photo"_s}));
}

TEST_F(Command, PagesBeyondTheDocumentAreRefusedBeforeAnythingIsSent)
{
    const ProgramRun run = print({u"-P"_s, u"99"_s});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, u"velkaro-print: Page 99 is beyond the document's last page, 1.\n"_s);
    EXPECT_EQ(newJobs(), QList<int>());
}

TEST_F(Command, PagesAreSidesWhereSeveralStandOnOne)
{
    const ProgramRun beyond = print({u"-P"_s, u"2"_s, u"-o"_s, u"number-up=2"_s});
    EXPECT_EQ(beyond.status, 2);
    EXPECT_EQ(beyond.errors,
              kNoteOnSides + u"velkaro-print: 2 is beyond the last side that is printed, 1.\n"_s);
    EXPECT_EQ(newJobs(), QList<int>());
    const ProgramRun run = print({u"-P"_s, u"1"_s, u"-o"_s, u"number-up=2"_s});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, kNoteOnSides);
    EXPECT_EQ(newJobs().size(), 1);
}

TEST_F(Command, AWrongValueIsToldBeforeAnyServerIsAsked)
{
    for (const QStringList &options :
         {QStringList{u"-o"_s, u"number-up=3"_s}, QStringList{u"-q"_s, u"0"_s},
          QStringList{u"-n"_s, u"many"_s}, QStringList{u"-H"_s, u"someday"_s},
          QStringList{u"-P"_s, u"x"_s}}) {
        const ProgramRun run = runProgram(
            QStringList{u"--no-dialog"_s, u"-h"_s, u"127.0.0.1:1"_s, u"-d"_s, u"photo"_s} +
            options + QStringList{pdf()});
        EXPECT_EQ(run.status, 2) << run.errors.toStdString();
    }
}

TEST_F(Command, ARecordingOnAQueueKeepsItsPPDAndCanBeReplayed)
{
    const QString script = inFolder(u"session.jsonl"_s);
    const ProgramRun run = print({u"--record"_s, script, u"-o"_s, u"VKMediaType=Glossy"_s});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    EXPECT_TRUE(readFile(inFolder(u"session.ppd"_s)).contains("*NickName: \"Velkaro PX-T900"));
    const ProgramRun replay = runProgram({u"--replay"_s, script});
    EXPECT_EQ(replay.status, 0) << replay.errors.toStdString();
    EXPECT_TRUE(replay.output.contains(u"\"VKMediaType\":\"Glossy\""_s));
}

TEST_F(Command, TwoSidedPlainPaperArrivesAsTheTwoSidedMedium)
{
    ASSERT_EQ(print({u"-o"_s, u"Duplex=DuplexNoTumble"_s}).status, 0);
    ASSERT_EQ(newJobs().size(), 1);
    QMap<QString, QString> expected = plainTicket();
    expected.insert(u"Duplex"_s, u"DuplexNoTumble"_s);
    expected.insert(u"VKMediaType"_s, u"PlainDuplex"_s);
    EXPECT_EQ(settingsOf(newJobs()[0]), expected);
}

TEST_F(Command, AnEnvelopeIsPrintedWithAWordAboutItsTray)
{
    const ProgramRun run = print({u"--paper"_s, u"EnvDL"_s});
    ASSERT_EQ(run.status, 0) << run.errors.toStdString();
    EXPECT_TRUE(
        run.errors.contains(u"For Envelope DL there is \"Paper Source: Multi-Purpose Tray\"."_s))
        << run.errors.toStdString();
    const ProgramRun advised = print({u"--paper"_s, u"EnvDL"_s, u"-o"_s, u"VKInputSlot=MPTray"_s});
    EXPECT_EQ(advised.errors, QString());
    EXPECT_EQ(newJobs().size(), 2);
}

TEST_F(Command, ABorderlessPhotoJobArrivesAsPicked)
{
    const ProgramRun run =
        print({u"--paper"_s, u"A4.Fullbleed"_s, u"-o"_s, u"VKMediaType=Glossy"_s, u"-o"_s,
               u"VKColorEnhancement=ON"_s, u"-o"_s, u"VKBrightness=-7"_s, u"-o"_s, u"copies=2"_s});
    ASSERT_EQ(run.status, 0) << run.errors.toStdString();
    ASSERT_EQ(newJobs().size(), 1);
    const QMap<QString, QString> job = server().jobAttributes(u"photo"_s, newJobs()[0]);
    EXPECT_EQ(job.value(u"PageSize"_s), u"A4.Fullbleed"_s);
    EXPECT_FALSE(job.contains(u"media"_s));
    EXPECT_EQ(job.value(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(job.value(u"VKColorEnhancement"_s), u"ON"_s);
    EXPECT_EQ(job.value(u"com.velkaro.print.PrintSettings.T2T_Brightness"_s), u"-7"_s);
    EXPECT_EQ(job.value(u"copies"_s), u"2"_s);
}

TEST_F(Command, AJobThatACheckVetoesIsNotInTheQueue)
{
    const ProgramRun run = print({u"--paper"_s, u"120x120mm"_s});
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.output, u""_s);
    EXPECT_TRUE(run.errors.startsWith(u"velkaro-print: Is the disc in the disc tray?"_s))
        << run.errors.toStdString();
    EXPECT_EQ(run.errors.count(u'\n'), 1);
    EXPECT_EQ(newJobs(), QList<int>());
}

TEST_F(Command, YesAnswersTheCheck)
{
    ASSERT_EQ(print({u"--paper"_s, u"120x120mm"_s, u"--yes"_s}).status, 0);
    ASSERT_EQ(newJobs().size(), 1);
    const QMap<QString, QString> settings = settingsOf(newJobs()[0]);
    EXPECT_EQ(settings.value(u"PageSize"_s), u"120x120mm"_s);
    EXPECT_EQ(settings.value(u"VKMediaType"_s), u"PrintableDisc"_s);
}

TEST_F(Command, ASettingThatIsLostIsToldAndPrintedWithoutAfterAYes)
{
    const ProgramRun run =
        print({u"-o"_s, u"VKResolution=High"_s, u"-o"_s, u"VKMediaType=Glossy"_s, u"--yes"_s});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, u"velkaro-print: VKResolution=High cannot be chosen while the other "
                          "settings are as they are. Print Quality is Photo instead.\n"_s);
    const QList<int> jobs = newJobs();
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(settingsOf(jobs[0]).value(u"VKResolution"_s), u"Photo"_s);
}

TEST_F(Command, AMediumThatIsLostTakesAwayWhatItHadBrought)
{
    const QStringList twoSided{u"-o"_s, u"Duplex=DuplexNoTumble"_s};
    ASSERT_EQ(print(twoSided).status, 0);
    const ProgramRun run =
        print(twoSided + QStringList{u"-o"_s, u"VKMediaType=Glossy"_s, u"--yes"_s});
    ASSERT_EQ(run.status, 0) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.contains(u"VKMediaType=Glossy"_s)) << run.errors.toStdString();
    const QList<int> jobs = newJobs();
    ASSERT_EQ(jobs.size(), 2);
    EXPECT_EQ(settingsOf(jobs[1]), settingsOf(jobs[0]));
}

TEST_F(Command, ABookletThatCannotBeAsItWasAskedForIsTold)
{
    const ProgramRun run = print({u"-o"_s, u"booklet=on number-up=4"_s});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors,
              u"velkaro-print: A booklet has two pages on a side, not 4.\n"
              "velkaro-print: A booklet needs both sides of the paper; this job is printed on "
              "one.\n"_s);
}

TEST_F(Command, AQueueWithoutAPPDPrintsWithTheHostsOwnSettings)
{
    ASSERT_TRUE(server().addQueue(u"raw"_s, QString()));
    const ProgramRun run = runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s,
                                       u"raw"_s, u"-o"_s, u"copies=3"_s, pdf()});
    ASSERT_EQ(run.status, 0) << run.errors.toStdString();
    ASSERT_EQ(server().jobs(u"raw"_s).size(), 1);
    EXPECT_EQ(server().jobAttributes(u"raw"_s, server().jobs(u"raw"_s)[0]).value(u"copies"_s),
              u"3"_s);
    const ProgramRun refused = runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s,
                                           u"raw"_s, u"-o"_s, u"VKMediaType=Glossy"_s, pdf()});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.errors,
              u"velkaro-print: VKMediaType cannot be set: the queue has no PPD.\n"_s);
}

struct Fault
{
    const char *name;
    QStringList options;
    int status;
    const char *sentence;
};

void PrintTo(const Fault &row, std::ostream *out)
{
    *out << row.name;
}

class FaultyCommand : public Command, public testing::WithParamInterface<Fault>
{};

TEST_P(FaultyCommand, IsSaidInOneSentenceAndPrintsNothing)
{
    const ProgramRun run = print(GetParam().options);
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_EQ(run.output, u""_s);
    EXPECT_EQ(run.errors.toStdString(),
              std::string("velkaro-print: ") + GetParam().sentence + '\n');
    EXPECT_EQ(newJobs(), QList<int>());
}

INSTANTIATE_TEST_SUITE_P(
    Table, FaultyCommand,
    testing::Values(
        Fault{"UnknownSetting", {u"-o"_s, u"NoSuch=1"_s}, 2, "The printer has no setting NoSuch."},
        Fault{"UnknownChoice",
              {u"-o"_s, u"VKMediaType=NoSuch"_s},
              2,
              "NoSuch is no value for VKMediaType. It can be: Plain, PlainDuplex, Inkjet, "
              "VelkaroGlossy, VelkaroGlossyR, VelkaroQM41Matte, Glossy, HagakiAtena and 4 more."},
        Fault{"UnknownPaper",
              {u"--paper"_s, u"NoSuch"_s},
              2,
              "The printer has no paper NoSuch. It can be: A4, A4.Fullbleed, Letter, "
              "Letter.Fullbleed, "
              "Legal, Executive, Folio, A5 and 40 more."},
        Fault{"DisabledSlider",
              {u"-o"_s, u"VKBrightness=3"_s},
              3,
              "VKBrightness=3 cannot be chosen while the other settings are as they are. "
              "Brightness is 0 instead."},
        Fault{"PaperThatIsNotForBothSides",
              {u"-o"_s, u"Duplex=DuplexNoTumble"_s, u"--paper"_s, u"A4.Fullbleed"_s},
              3,
              "The printer cannot print on both sides of this paper: A4 (Borderless)."},
        Fault{
            "BadCopies", {u"-n"_s, u"0"_s}, 2, "0 is no value for copies (-n). It can be: 1-999."},
        Fault{"TooManyCopies",
              {u"-o"_s, u"copies=99999"_s},
              2,
              "99999 is no value for copies (-n). It can be: 1-999."},
        Fault{"OddNumberUp",
              {u"-o"_s, u"number-up=7"_s},
              2,
              "7 is no value for number-up. It can be: 1, 2, 4, 6, 9, 16."},
        Fault{"LateHold",
              {u"-H"_s, u"25:00"_s},
              2,
              "25:00 is no value for job-hold-until (-H). It can be: HH:MM, no-hold, "
              "indefinite, day-time, evening, night, second-shift, third-shift and 1 more."},
        Fault{"UnknownQueue",
              {u"--ppd"_s, u"/nonexistent.ppd"_s},
              2,
              "The PPD file /nonexistent.ppd does not exist."},
        Fault{"NoPlugIn",
              {u"--plug-in"_s, u"/nonexistent.bundle"_s},
              7,
              "The printer's settings are missing: there is no plug-in at /nonexistent.bundle. "
              "Install Velkaro Print again."},
        Fault{"MissingDocument",
              {u"/nonexistent.pdf"_s},
              4,
              "The document /nonexistent.pdf does not exist."},
        Fault{"OutputFolderMissing",
              {u"--output"_s, u"/nonexistent/job"_s},
              5,
              "The file /nonexistent/job cannot be written: No such file or directory."}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(Command, AServerThatIsDownIsSaid)
{
    const QString address = u"127.0.0.1:%1"_s.arg(freePort());
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, address, u"-d"_s, u"photo"_s, pdf()});
    EXPECT_EQ(run.status, 6);
    EXPECT_EQ(run.errors,
              u"velkaro-print: The print server %1 cannot be reached.\n"_s.arg(address));
}

TEST_F(Command, AServerThatIsDownWhenTheJobIsReadyIsSaid)
{
    const QString address = u"127.0.0.1:%1"_s.arg(freePort());
    const ProgramRun run = runProgram({u"--no-dialog"_s, u"-h"_s, address, u"-d"_s, u"photo"_s,
                                       u"--ppd"_s, samplePPD(u"velkaro-px-t900"_s), pdf()});
    EXPECT_EQ(run.status, 6);
    EXPECT_EQ(
        run.errors,
        u"velkaro-print: Nothing was printed on photo: The print server %1 cannot be reached.\n"_s
            .arg(address));
}

TEST_F(Command, AServerThatNeverAnswersIsGivenUp)
{
    QTcpServer silent; // the system accepts connections, nobody answers
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
    const QString address = u"127.0.0.1:%1"_s.arg(silent.serverPort());
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, address, u"-d"_s, u"photo"_s, pdf()});
    EXPECT_EQ(run.status, 6);
    EXPECT_EQ(run.errors, u"velkaro-print: The print server %1 does not answer.\n"_s.arg(address));
}

TEST_F(Command, AnUnknownQueueIsSaid)
{
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"nobody"_s, pdf()});
    EXPECT_EQ(run.status, 6);
    EXPECT_EQ(run.errors, u"velkaro-print: The print server %1 has no queue nobody.\n"_s.arg(
                              server().address()));
}

TEST_F(Command, WithoutAnyDefaultQueueAQueueMustBeNamed)
{
    const ProgramRun run = runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), pdf()});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, u"velkaro-print: No printer was chosen and there is no default one; -d "
                          "QUEUE names one.\n"_s);
}

struct DryRun
{
    const char *behaviour;
    QStringList options;
    int status;
    QString says; ///< with and without --dry-run
};

class Rehearsal : public Command, public testing::WithParamInterface<DryRun>
{};

TEST_P(Rehearsal, EndsAsTheRunDoes)
{
    const ProgramRun real = print(GetParam().options);
    const qsizetype sent = newJobs().size();
    const ProgramRun dry = print(GetParam().options + QStringList(u"--dry-run"_s));
    EXPECT_EQ(newJobs().size(), sent);
    EXPECT_EQ(sent, GetParam().status == 0 ? 1 : 0);
    for (const ProgramRun &run : {real, dry}) {
        EXPECT_EQ(run.status, GetParam().status);
        EXPECT_EQ(run.errors, GetParam().says);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, Rehearsal,
    testing::Values(
        DryRun{"CoverPagesThatAreThere", {u"-o"_s, u"job-sheets=standard,none"_s}, 0, {}},
        DryRun{"CoverPagesThatAreNot",
               {u"-o"_s, u"job-sheets=none,fancy"_s},
               2,
               u"velkaro-print: fancy is no value for job-sheets. It can be: none, "
               "classified, confidential, form, secret, standard, topsecret, unclassified.\n"_s}),
    CaseName());

TEST_F(Command, ARehearsalEndsAsTheRunDoesAtAQueueThatTakesNoJobs)
{
    ASSERT_TRUE(server().command(u"cupsreject"_s, {u"photo"_s}));
    const ProgramRun real = print({});
    const ProgramRun dry = print({u"--dry-run"_s});
    ASSERT_TRUE(server().command(u"cupsaccept"_s, {u"photo"_s}));
    EXPECT_EQ(real.status, 6) << real.errors.toStdString();
    EXPECT_EQ(dry.status, 6);
    EXPECT_EQ(dry.errors, u"velkaro-print: Nothing was printed on photo: The queue photo takes no "
                          "jobs at present.\n"_s);
}

} // namespace
