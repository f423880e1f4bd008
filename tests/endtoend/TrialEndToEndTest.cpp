// Queues with defaults of their own, and what becomes of a job that says otherwise.
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/PrintServerFixture.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <cups/ipp.h>

using namespace Qt::StringLiterals;

namespace {

struct OwnDefault
{
    const char *behaviour;
    const char *option; ///< of the queue
    QStringList wishes;
    int status;
    int state; ///< of the job afterwards
    const char *attribute;
    const char *value;  ///< that the job has of it; null: none
    const char *errors; ///< %1: the job's number
};

void PrintTo(const OwnDefault &row, std::ostream *out)
{
    *out << row.behaviour;
}

class AQueueWithADefault : public PrintServerFixture, public testing::WithParamInterface<OwnDefault>
{
protected:
    const QString kQueue = u"own"_s;

    void SetUp() override
    {
        PrintServerFixture::SetUp();
        ASSERT_TRUE(server().addQueue(kQueue, samplePPD(u"velkaro-px-t900"_s)));
        ASSERT_TRUE(server().lpadmin({u"-p"_s, kQueue, u"-o"_s, QLatin1String(GetParam().option)}));
    }
    void TearDown() override { EXPECT_TRUE(server().lpadmin({u"-x"_s, kQueue})); }
};

TEST_P(AQueueWithADefault, PrintsWhatWasShown)
{
    const ProgramRun run =
        runProgram(QStringList{u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, kQueue} +
                   GetParam().wishes + QStringList{pdf()});
    EXPECT_EQ(run.status, GetParam().status);
    const QList<int> jobs = server().jobs(kQueue);
    ASSERT_EQ(jobs.size(), 1) << run.errors.toStdString();
    EXPECT_EQ(run.errors,
              QString::fromUtf8(GetParam().errors).replace(u"%1"_s, QString::number(jobs[0])));
    EXPECT_EQ(run.output,
              run.status == 0 ? u"request id is own-%1 (1 file(s))\n"_s.arg(jobs[0]) : QString());
    const QMap<QString, QString> job = server().jobAttributes(kQueue, jobs[0]);
    EXPECT_EQ(job.value(QLatin1String(GetParam().attribute)), QLatin1String(GetParam().value));
    if (GetParam().state == IPP_JSTATE_HELD)
        EXPECT_EQ(job.value(u"job-state"_s).toInt(), GetParam().state);
    else
        EXPECT_EQ(server().waitForJob(kQueue, jobs[0]), GetParam().state);
}

OwnDefault settled(const char *behaviour, const char *option, const char *attribute,
                   const char *value)
{
    return {behaviour, option, {}, 0, IPP_JSTATE_COMPLETED, attribute, value, ""};
}

constexpr auto kOtherPaper =
    "velkaro-print: The server set media to A5, which was not shown. Job %1 on own was cancelled; "
    "--yes prints it all the same.\n";

INSTANTIATE_TEST_SUITE_P(
    Table, AQueueWithADefault,
    testing::Values(
        settled("OfSeveralCopies", "copies-default=3", "copies", "1"),
        settled("OfSeveralPagesASheet", "number-up-default=2", "number-up", "1"),
        settled("OfAQuality", "print-quality-default=5", "print-quality", "4"),
        settled("OfGrey", "print-color-mode-default=monochrome", "print-color-mode", "color"),
        settled("OfTwoSides", "sides-default=two-sided-long-edge", "sides", "one-sided"),
        settled("OfAMedium", "VKMediaType-default=Glossy", "VKMediaType", "Plain"),
        settled("OfItsOwnPaper", "PageSize-default=A5", "PageSize", "A4"),
        settled("OfAScaling", "print-scaling-default=fill", "print-scaling", "auto"),
        settled("OfTurnedPages", "orientation-requested-default=4", "orientation-requested", "3"),
        settled("OfABorder", "page-border-default=double", "page-border", "none"),
        settled("ThatNobodyIsShown", "foo-default=bar", "foo", "bar"),
        settled("OfTheJobsPaper", "media-default=A4", "media", "A4"),
        OwnDefault{"OfAnotherPaper",
                   "media-default=A5",
                   {},
                   3,
                   IPP_JSTATE_CANCELED,
                   "media",
                   "A5",
                   kOtherPaper},
        OwnDefault{"OfAnotherPaperThatIsAgreedTo",
                   "media-default=A5",
                   {u"--yes"_s},
                   0,
                   IPP_JSTATE_COMPLETED,
                   "PageSize",
                   "A4",
                   "velkaro-print: The server set media to A5, which was not shown.\n"},
        OwnDefault{"OfAnotherPaperForAJobThatWaits",
                   "media-default=A5",
                   {u"-H"_s, u"hold"_s},
                   0,
                   IPP_JSTATE_HELD,
                   "job-hold-until",
                   "indefinite",
                   "velkaro-print: The server set media to A5, which was not shown.\n"},
        OwnDefault{"OfPages",
                   "page-ranges-default=2",
                   {},
                   3,
                   IPP_JSTATE_CANCELED,
                   "page-ranges",
                   "2",
                   "velkaro-print: The server set page-ranges to 2, which was not shown. Job %1 on "
                   "own was cancelled; --yes prints it all the same.\n"},
        OwnDefault{"ForThePlugIn",
                   "com.velkaro.print.Secret-default=9",
                   {},
                   3,
                   IPP_JSTATE_CANCELED,
                   "com.velkaro.print.Secret",
                   "9",
                   "velkaro-print: The server set com.velkaro.print.Secret to 9, which was not "
                   "shown. Job %1 on own was cancelled; --yes prints it all the same.\n"}),
    CaseName());

} // namespace
