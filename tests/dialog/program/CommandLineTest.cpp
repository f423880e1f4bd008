#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/program/LauncherTexts.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

struct Refused
{
    const char *name;
    QStringList arguments;
    const char *sentence;
};

void PrintTo(const Refused &row, std::ostream *out)
{
    *out << row.name;
}

class RefusedCommandLine : public testing::TestWithParam<Refused>
{};

TEST_P(RefusedCommandLine, SaysWhatIsWrong)
{
    EXPECT_EQ(parseCommandLine(GetParam().arguments).sentence().toStdString(), GetParam().sentence);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedCommandLine,
    testing::Values(
        Refused{"UnknownLong", {u"--frob"_s}, "There is no option --frob."},
        Refused{"UnknownShort", {u"-x"_s}, "There is no option -x."},
        Refused{"UnknownWithValue", {u"--frob=1"_s}, "There is no option --frob."},
        Refused{"MissingValue", {u"a.pdf"_s, u"-d"_s}, "-d needs a value."},
        Refused{"EmptyValue", {u"--ppd="_s}, "--ppd needs a value."},
        Refused{"FlagWithValue", {u"--yes=1"_s}, "--yes takes no value."},
        Refused{
            "ChoiceWithoutEquals", {u"-o"_s, u"Glossy"_s}, "-o needs KEY=VALUE, not \"Glossy\"."},
        Refused{"TextWithoutEquals",
                {u"-o"_s, u"Glossy paper"_s},
                "-o needs KEY=VALUE, not \"Glossy paper\"."},
        Refused{"ChoiceWithoutKey", {u"-o"_s, u"=x"_s}, "-o needs KEY=VALUE, not \"=x\"."},
        Refused{"ChoiceWithoutValue", {u"-o"_s, u"x="_s}, "-o needs KEY=VALUE, not \"x=\"."},
        Refused{"EmptyInstance", {u"-d"_s, u"q/"_s}, "\"q/\" is not the name of a queue."},
        Refused{"EmptyQueue", {u"-d"_s, u"/i"_s}, "\"/i\" is not the name of a queue."},
        Refused{"TwoQueues",
                {u"-d"_s, u"one"_s, u"--destination=two"_s},
                "--destination may be given only once."},
        Refused{"TwoServers", {u"-hone"_s, u"-h"_s, u"two"_s}, "-h may be given only once."},
        Refused{
            "TwoPrinters", {u"--ppd=a.ppd"_s, u"--ppd=b.ppd"_s}, "--ppd may be given only once."},
        Refused{"TwoPapers", {u"--paper=A4"_s, u"--paper=A4"_s}, "--paper may be given only once."},
        Refused{
            "TwoOutputs", {u"--output=a"_s, u"--output=-"_s}, "--output may be given only once."},
        Refused{"TwoPictures",
                {u"--screenshot=a"_s, u"--screenshot=b"_s},
                "--screenshot may be given only once."},
        Refused{"TwoParts", {u"--panel=a"_s, u"--panel=b"_s}, "--panel may be given only once."},
        Refused{
            "TwoScripts", {u"--replay=a"_s, u"--replay=b"_s}, "--replay may be given only once."},
        Refused{"TwoRecordings",
                {u"--record=a"_s, u"--record=b"_s},
                "--record may be given only once."},
        Refused{"TwoChecks",
                {u"--check-ppd=a"_s, u"--check-ppd=b"_s},
                "--check-ppd may be given only once."},
        Refused{"TwoPlugIns",
                {u"--plug-in=a"_s, u"--plug-in=b"_s},
                "--plug-in may be given only once."},
        Refused{"ReplayAndRecord",
                {u"--replay=a"_s, u"--record=b"_s},
                "--replay and --record do not go together."},
        Refused{"CheckAndADocument",
                {u"--check-ppd=a.ppd"_s, u"a.pdf"_s},
                "--check-ppd only looks at a PPD: it prints and replays nothing."},
        Refused{"CheckAndReplay",
                {u"--check-ppd=a.ppd"_s, u"--replay=a"_s},
                "--check-ppd only looks at a PPD: it prints and replays nothing."},
        Refused{"CheckAndOutput",
                {u"--check-ppd=a.ppd"_s, u"--output=-"_s},
                "--check-ppd only looks at a PPD: it prints and replays nothing."},
        Refused{
            "WhyWithoutAChoice", {u"--why=VKBiDir"_s}, "--why needs KEY=VALUE, not \"VKBiDir\"."},
        Refused{"WhyTwice", {u"--why=A=1"_s, u"--why=B=1"_s}, "--why may be given only once."},
        Refused{"WhyAndADocument",
                {u"--why=A=1"_s, u"a.pdf"_s},
                "--why only tells of a setting: it prints and replays nothing."},
        Refused{"JsonOfNothing", {u"--json"_s}, "--json is for --why."},
        Refused{"ExplainTheDialog", {u"--explain"_s}, "--explain is for --no-dialog."},
        Refused{"DryDialog", {u"--dry-run"_s}, "--dry-run is for --no-dialog."},
        Refused{"DryRunThatIsNoted",
                {u"--no-dialog"_s, u"--dry-run"_s, u"--record=a"_s, u"a.pdf"_s},
                "--dry-run and --record do not go together."},
        Refused{"NoDialogAndAPanel",
                {u"--no-dialog"_s, u"--panel=print"_s, u"a.pdf"_s},
                "--no-dialog and --panel do not go together."},
        Refused{"NothingToPrint", {u"--no-dialog"_s}, "--no-dialog needs a document to print."},
        Refused{"PictureOfNoDialog",
                {u"--no-dialog"_s, u"--screenshot=a.png"_s, u"a.pdf"_s},
                "--no-dialog and --screenshot do not go together."},
        Refused{
            "StandardInputTwice", {u"-"_s, u"-"_s}, "Standard input, -, may be given only once."},
        Refused{"YesInTheDialog", {u"--yes"_s, u"a.pdf"_s}, "--yes is for --no-dialog."},
        Refused{"WaitInTheDialog",
                {u"--wait"_s, u"a.pdf"_s},
                "--wait is for --no-dialog, where the job is sent to a printer."},
        Refused{"WaitForAFile",
                {u"--no-dialog"_s, u"--wait"_s, u"--output=a.job"_s, u"a.pdf"_s},
                "--wait is for --no-dialog, where the job is sent to a printer."},
        Refused{"EachInTheDialog",
                {u"--each"_s, u"a.pdf"_s},
                "--each is for --no-dialog, where the jobs are sent to a printer."},
        Refused{"EachIntoAFile",
                {u"--no-dialog"_s, u"--each"_s, u"--output=a.job"_s, u"a.pdf"_s},
                "--each is for --no-dialog, where the jobs are sent to a printer."},
        Refused{"ATimeoutWithoutAWait",
                {u"--no-dialog"_s, u"--timeout=5"_s, u"a.pdf"_s},
                "--timeout is for --wait."},
        Refused{"ATimeoutThatIsNoTime",
                {u"--no-dialog"_s, u"--wait"_s, u"--timeout=soon"_s, u"a.pdf"_s},
                "--timeout needs a number of seconds from 0 to 1000000, not \"soon\"."},
        Refused{"ATimeoutBelowNothing",
                {u"--no-dialog"_s, u"--wait"_s, u"--timeout=-1"_s, u"a.pdf"_s},
                "--timeout needs a number of seconds from 0 to 1000000, not \"-1\"."}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(CommandLine, TakesEveryOption)
{
    const Result<CommandLine> parsed = parseCommandLine(
        {u"-d"_s,       u"photo/glossy"_s, u"-h"_s,          u"host:8631"_s,
         u"--ppd"_s,    u"a.ppd"_s,        u"-o"_s,          u"A=b=c"_s,
         u"-oD=e"_s,    u"-o"_s,           u"fit-to-page"_s, u"--paper=Custom.100x150mm"_s,
         u"--output"_s, u"out"_s,          u"--no-dialog"_s, u"--yes"_s,
         u"--force"_s,  u"--record"_s,     u"r"_s,           u"--plug-in"_s,
         u"p.bundle"_s, u"one.pdf"_s,      u"--"_s,          u"-two.pdf"_s});
    ASSERT_TRUE(parsed) << parsed.sentence().toStdString();
    const CommandLine &line = *parsed;
    EXPECT_EQ(line.queue, u"photo"_s);
    EXPECT_EQ(line.instance, u"glossy"_s);
    EXPECT_EQ(line.server, u"host:8631"_s);
    EXPECT_EQ(line.ppd, u"a.ppd"_s);
    EXPECT_EQ(line.choices,
              (QList<RequestedChoice>{
                  {u"A"_s, u"b=c"_s}, {u"D"_s, u"e"_s}, {u"fit-to-page"_s, u"true"_s}}));
    EXPECT_EQ(line.paper, u"Custom.100x150mm"_s);
    EXPECT_EQ(line.output, u"out"_s);
    EXPECT_TRUE(line.noDialog);
    EXPECT_TRUE(line.yes);
    EXPECT_TRUE(line.force);
    EXPECT_EQ(line.record, u"r"_s);
    EXPECT_EQ(line.plugIn, u"p.bundle"_s);
    EXPECT_EQ(line.files, (QStringList{u"one.pdf"_s, u"-two.pdf"_s}));
}

TEST(CommandLine, TakesAPartToShow)
{
    EXPECT_EQ(parseCommandLine({u"--panel"_s, u"summary"_s})->panel, u"summary"_s);
}

TEST(CommandLine, TakesTheOptionsOfLp)
{
    const CommandLine line =
        *parseCommandLine({u"-n2"_s, u"-P"_s, u"1-3,5"_s, u"-t"_s, u"A title"_s, u"-H"_s,
                           u"immediate"_s, u"-q70"_s, u"-m"_s});
    EXPECT_EQ(line.choices, (QList<RequestedChoice>{{u"copies"_s, u"2"_s},
                                                    {u"page-ranges"_s, u"1-3,5"_s},
                                                    {u"job-hold-until"_s, u"no-hold"_s},
                                                    {u"job-priority"_s, u"70"_s}}));
    EXPECT_EQ(line.title, u"A title"_s);
    EXPECT_TRUE(line.mail);
    const auto hold = [](const QString &when) {
        return parseCommandLine({u"-H"_s, when})->choices[0].choice;
    };
    EXPECT_EQ(hold(u"hold"_s), u"indefinite"_s);
    EXPECT_EQ(hold(u"23:30"_s), u"23:30"_s);
}

TEST(CommandLine, TakesSeveralSettingsInOneOption)
{
    const CommandLine line =
        *parseCommandLine({u"-o"_s, u"A=b landscape C='d e'"_s, u"-o"_s, u"F=Custom.g h"_s});
    EXPECT_EQ(line.choices, (QList<RequestedChoice>{{u"A"_s, u"b"_s},
                                                    {u"C"_s, u"d e"_s},
                                                    {u"landscape"_s, u"true"_s},
                                                    {u"F"_s, u"Custom.g h"_s}}))
        << "libcups has those of one option in the order of their names";
}

TEST(CommandLine, TakesAPPDToCheckWithAPlugIn)
{
    const CommandLine line =
        *parseCommandLine({u"--check-ppd"_s, u"a.ppd"_s, u"--plug-in=p.bundle"_s});
    EXPECT_EQ(line.checkPPD, u"a.ppd"_s);
    EXPECT_EQ(line.plugIn, u"p.bundle"_s);
}

TEST(CommandLine, LeavesWhatWasNotGivenNull)
{
    const CommandLine line = *parseCommandLine({u"-dphoto"_s, u"-"_s});
    EXPECT_EQ(line.queue, u"photo"_s);
    EXPECT_TRUE(line.instance.isNull());
    EXPECT_TRUE(line.server.isNull());
    EXPECT_TRUE(line.paper.isNull());
    EXPECT_EQ(line.files, QStringList{u"-"_s});
}

TEST(CommandLine, TakesAHyphenForStandardOutput)
{
    for (const QStringList &arguments :
         {QStringList{u"--output"_s, u"-"_s}, QStringList{u"--output=-"_s}})
        EXPECT_EQ(parseCommandLine(arguments)->output, u"/dev/stdout"_s);
}

TEST(CommandLine, GivesHelpAndVersionDespiteFaults)
{
    const Result<CommandLine> parsed =
        parseCommandLine({u"--frob"_s, u"--help"_s, u"--version"_s, u"--no-dialog"_s});
    ASSERT_TRUE(parsed);
    EXPECT_TRUE(parsed->help);
    EXPECT_TRUE(parsed->version);
}

TEST(HelpText, NamesEveryOptionAndEveryStatus)
{
    const QString text = QString::fromUtf8(kEnglishTexts.help);
    for (const char *option : {"-d,", "-h,", "-o,", "--ppd", "--paper", "--output", "--force",
                               "--no-dialog", "--yes", "--screenshot", "--panel", "--record",
                               "--replay", "--check-ppd", "--plug-in", "--version", "--help"})
        EXPECT_TRUE(text.contains(QLatin1String(option))) << option;
    for (int status = exitCode(ExitStatus::Done); status <= exitCode(ExitStatus::PlugIn); ++status)
        EXPECT_TRUE(text.contains(QStringLiteral("\n  %1  ").arg(status))) << status;
    EXPECT_STREQ(versionText(), "velkaro-print 1.0.0\n");
}

} // namespace
