#include "tests/endtoend/DeviceFixture.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QProcess>
#include <QtTest/QTest>

#include <cups/ipp.h>
#include <signal.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestWait = 30000; // ms

class Wait : public DeviceFixture
{
protected:
    ProgramRun printAndWait(const QString &queue, const QStringList &options,
                            const std::function<void(QProcess &)> &meanwhile = {})
    {
        return runProgram(QStringList{u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, queue,
                                      u"--wait"_s} +
                              options + QStringList{document()},
                          {}, meanwhile);
    }

    /// Waits until the program has said so.
    static bool comesTo(QProcess &program, const QByteArray &words)
    {
        QByteArray said;
        return QTest::qWaitFor(
            [&] {
                program.setReadChannel(QProcess::StandardError);
                said = program.peek(100000);
                return said.contains(words);
            },
            kLongestWait);
    }

    /// What is told of the only job: its number, out of what standard output says.
    static QString numberIn(const ProgramRun &run)
    {
        return run.output.section(u'-', 1).section(u' ', 0, 0);
    }

    int stateOf(const QString &queue, const ProgramRun &run)
    {
        return server().jobAttributes(queue, numberIn(run).toInt()).value(u"job-state"_s).toInt();
    }
};

struct EndOfWait
{
    const char *behaviour;
    const char *queue;
    QStringList options;
    int status;
    const char *last; ///< what standard error ends with; %1: the job's number
    int state;        ///< of the job afterwards
};

class WaitFor : public Wait, public testing::WithParamInterface<EndOfWait>
{};

TEST_P(WaitFor, EndsAsTheJobDoes)
{
    const QString queue = QLatin1String(GetParam().queue);
    const ProgramRun run = printAndWait(queue, GetParam().options);
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_EQ(run.output, u"request id is %1-%2 (1 file(s))\n"_s.arg(queue, numberIn(run)));
    const QString last =
        u"velkaro-print: "_s + QString::fromUtf8(GetParam().last).arg(numberIn(run)) + u'\n';
    EXPECT_TRUE(run.errors.endsWith(last)) << run.errors.toStdString();
    EXPECT_EQ(stateOf(queue, run), GetParam().state);
}

INSTANTIATE_TEST_SUITE_P(
    Table, WaitFor,
    testing::Values(EndOfWait{"AJobThatIsPrinted",
                              "finish",
                              {},
                              0,
                              "Job %1 on finish is printed.",
                              IPP_JSTATE_COMPLETED},
                    EndOfWait{"AJobThatIsCancelledElsewhere",
                              "cancel",
                              {},
                              6,
                              "Job %1 on cancel was cancelled.",
                              IPP_JSTATE_CANCELED},
                    EndOfWait{"AJobThatIsHeldForTooLong",
                              "hold",
                              {u"--timeout"_s, u"1"_s},
                              8,
                              "Job %1 on hold was not waited for any longer; it stays where it is.",
                              IPP_JSTATE_HELD},
                    EndOfWait{
                        "AJobWhosePrinterIsInTroubleForTooLong",
                        "empty",
                        {u"--timeout"_s, u"0"_s},
                        8,
                        "Job %1 on empty was not waited for any longer; it stays where it is.",
                        IPP_JSTATE_PROCESSING}),
    CaseName());

/// A printer that was stopped before, or is by the job; both tell so with and without --wait.
TEST_F(Wait, TellsThatThePrinterIsStoppedAndWhy)
{
    const ProgramRun stopping = printAndWait(u"stop"_s, {u"--timeout"_s, u"0"_s});
    EXPECT_EQ(stopping.status, 8);
    const QString stopped =
        u"velkaro-print: Job %1 on stop is waiting: the printer is stopped: The carriage is "
        "blocked.\nvelkaro-print: Job %1 on stop was not waited for any longer; it stays where it "
        "is.\n"_s;
    EXPECT_TRUE(stopping.errors.endsWith(stopped.arg(numberIn(stopping))))
        << stopping.errors.toStdString();
    EXPECT_EQ(stateOf(u"stop"_s, stopping), IPP_JSTATE_PENDING);
    const ProgramRun behind = printAndWait(u"stop"_s, {u"--timeout"_s, u"0"_s});
    EXPECT_EQ(behind.status, 8);
    EXPECT_EQ(behind.errors, stopped.arg(numberIn(behind)));
    const ProgramRun alone =
        runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"stop"_s, document()});
    EXPECT_EQ(alone.status, 0);
    EXPECT_EQ(alone.errors, u"velkaro-print: The printer stop is stopped: what is sent waits. It "
                            "says: The carriage is blocked\n"_s);
    ASSERT_TRUE(server().command(u"cancel"_s, {u"-a"_s, u"stop"_s}));
    ASSERT_TRUE(server().command(u"cupsenable"_s, {u"stop"_s}));
}

TEST_F(Wait, AStoppedPrinterThatTakesNoJobsIsSaidToTakeNone)
{
    const QString queue = u"stop"_s;
    ASSERT_TRUE(server().command(u"cupsdisable"_s, {queue}));
    ASSERT_TRUE(server().command(u"cupsreject"_s, {queue}));
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, queue, document()});
    EXPECT_TRUE(server().command(u"cupsaccept"_s, {queue}));
    EXPECT_TRUE(server().command(u"cupsenable"_s, {queue}));
    EXPECT_EQ(run.status, 6);
    EXPECT_EQ(
        run.errors,
        u"velkaro-print: Nothing was printed on stop: The print server %1 refused: Destination "
        "\"stop\" is not accepting jobs.\n"_s.arg(server().address()));
}

TEST_F(Wait, GoesOnWhenThePrinterIsLookedAfter)
{
    const ProgramRun run = printAndWait(u"empty"_s, {}, [this](QProcess &program) {
        EXPECT_TRUE(comesTo(program, "The multi-purpose tray is empty"));
        continueDevices();
    });
    EXPECT_EQ(run.status, 0);
    const QString number = numberIn(run);
    EXPECT_TRUE(run.errors.endsWith(
        u"velkaro-print: Job %1 on empty: the printer needs somebody: The multi-purpose tray is "
        "empty.\nvelkaro-print: Job %1 on empty is printed.\n"_s.arg(number)))
        << run.errors.toStdString();
}

TEST_F(Wait, IsEndedByAnInterruptWhichCancelsTheJob)
{
    const ProgramRun run = printAndWait(u"empty"_s, {}, [](QProcess &program) {
        EXPECT_TRUE(comesTo(program, "The multi-purpose tray is empty"));
        kill(static_cast<pid_t>(program.processId()), SIGINT);
    });
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.errors.endsWith(u"Job %1 on empty was cancelled.\n"_s.arg(numberIn(run))))
        << run.errors.toStdString();
    EXPECT_EQ(stateOf(u"empty"_s, run), IPP_JSTATE_CANCELED);
}

class WaitAndSignal : public Wait, public testing::WithParamInterface<int>
{};

TEST_P(WaitAndSignal, LeavesTheJob)
{
    const ProgramRun run = printAndWait(u"empty"_s, {}, [](QProcess &program) {
        EXPECT_TRUE(comesTo(program, "The multi-purpose tray is empty"));
        kill(static_cast<pid_t>(program.processId()), GetParam());
    });
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.errors.endsWith(
        u"Job %1 on empty goes on without being waited for.\n"_s.arg(numberIn(run))))
        << run.errors.toStdString();
    EXPECT_EQ(stateOf(u"empty"_s, run), IPP_JSTATE_PROCESSING);
    continueDevices();
    EXPECT_EQ(server().waitForJob(u"empty"_s, numberIn(run).toInt()), IPP_JSTATE_COMPLETED);
}

INSTANTIATE_TEST_SUITE_P(Ends, WaitAndSignal, testing::Values(SIGTERM, SIGHUP));

} // namespace
