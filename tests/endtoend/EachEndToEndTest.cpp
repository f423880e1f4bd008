// Every document as a job of its own (--each).
#include "tests/endtoend/CommandFixture.h"
#include "tests/endtoend/DeviceFixture.h"
#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/IppBytes.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"

#include <QtTest/QTest>

#include <cups/ipp.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class Each : public Command
{
protected:
    ProgramRun printEach(const QStringList &options, const QStringList &files)
    {
        return printEachTo(server().address(), options, files);
    }

    static ProgramRun printEachTo(const QString &address, const QStringList &options,
                                  const QStringList &files)
    {
        return runProgram(
            QStringList{u"--no-dialog"_s, u"--each"_s, u"-h"_s, address, u"-d"_s, u"photo"_s} +
            options + files);
    }

    QString text(const QString &name)
    {
        writeFile(inFolder(name), "A page.\n");
        return inFolder(name);
    }
};

TEST_F(Each, DocumentIsAJobOfItsOwnWithTheSameSettings)
{
    const ProgramRun run = printEach({u"-o"_s, u"VKMediaType=Glossy"_s, u"-n"_s, u"2"_s},
                                     {pdf(u"a.pdf"_s), text(u"b.txt"_s), pdf(u"c.pdf"_s)});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, QString());
    const QList<int> jobs = newJobs();
    ASSERT_EQ(jobs.size(), 3);
    QString output;
    QStringList titles;
    for (const int id : jobs) {
        output += u"request id is photo-%1 (1 file(s))\n"_s.arg(id);
        const QMap<QString, QString> job = server().jobAttributes(u"photo"_s, id);
        titles += job.value(u"job-name"_s);
        EXPECT_EQ(job.value(u"VKMediaType"_s), u"Glossy"_s);
        EXPECT_EQ(job.value(u"copies"_s), u"2"_s);
        EXPECT_EQ(job.value(u"number-of-documents"_s), u"1"_s);
    }
    EXPECT_EQ(run.output, output);
    EXPECT_EQ(titles, (QStringList{u"a.pdf"_s, u"b.txt"_s, u"c.pdf"_s}));
}

TEST_F(Each, DocumentIsScaledAsItWouldBeAlone)
{
    const QStringList files{pdf(u"a.pdf"_s), text(u"b.txt"_s)};
    QList<QMap<QString, QString>> alone;
    for (const QString &file : files) {
        ASSERT_EQ(printEach({u"-o"_s, u"landscape"_s}, {file}).status, 0);
        alone += settingsOf(newJobs().constLast());
    }
    ASSERT_EQ(printEach({u"-o"_s, u"landscape"_s}, files).status, 0);
    const QList<int> jobs = newJobs();
    ASSERT_EQ(jobs.size(), 4);
    EXPECT_EQ(settingsOf(jobs[2]), alone[0]);
    EXPECT_EQ(settingsOf(jobs[3]), alone[1]);
    for (const char *name : {"orientation-requested", "print-scaling"})
        for (const int one : {0, 1})
            EXPECT_EQ(server().jobAttributes(u"photo"_s, jobs[one + 2]).value(QLatin1String(name)),
                      server().jobAttributes(u"photo"_s, jobs[one]).value(QLatin1String(name)));
}

/// Files of which one cannot be printed: nothing is, since that is known before.
struct Unprintable
{
    const char *behaviour;
    QStringList options;
    QString file; ///< beside a good one, in the test's folder unless it is a path
    int status;
    const char *sentence; ///< %1: the path of the file
};

class EachBeside : public Each, public testing::WithParamInterface<Unprintable>
{};

TEST_P(EachBeside, OneThatCannotBePrintedIsNotSent)
{
    const QString path = inFolder(GetParam().file);
    writeFile(inFolder(u"empty"_s), "");
    pdf(u"page.pdf"_s);
    const ProgramRun run = printEach(GetParam().options, {text(u"good.txt"_s), path});
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_EQ(run.output, QString());
    EXPECT_EQ(run.errors,
              u"velkaro-print: "_s + QString::fromUtf8(GetParam().sentence).arg(path) + u'\n');
    EXPECT_EQ(newJobs(), QList<int>());
}

INSTANTIATE_TEST_SUITE_P(
    Table, EachBeside,
    testing::Values(Unprintable{"Missing", {}, u"none.pdf"_s, 4, "The document %1 does not exist."},
                    Unprintable{"Empty", {}, u"empty"_s, 4, "The document %1 is empty."},
                    Unprintable{"WithoutThePage",
                                {u"-P"_s, u"9"_s},
                                u"page.pdf"_s,
                                2,
                                "%1: Page 9 is beyond the document's last page, 1."}),
    CaseName());

TEST_F(Each, DryRunSendsNothing)
{
    const ProgramRun run = printEach({u"--dry-run"_s}, {text(u"a"_s), text(u"b"_s), text(u"c"_s)});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, u"photo would get 3 jobs.\n"_s);
    EXPECT_EQ(newJobs(), QList<int>());
}

/// What a server does with the second of three jobs.
struct SecondJob
{
    const char *behaviour;
    const char *request; ///< that comes once for each job
    Steps steps;
    int taken;          ///< jobs that are told on standard output
    const char *errors; ///< %1: the server, %2 and %3: the second file and the third one
};

void PrintTo(const SecondJob &row, std::ostream *out)
{
    *out << row.behaviour;
}

class EachAfter : public Each, public testing::WithParamInterface<SecondJob>
{};

TEST_P(EachAfter, OneThatFails)
{
    const SecondJob &row = GetParam();
    const ScriptedServer front({{row.request, {}, 1}, {row.request, row.steps, 1}});
    const QStringList files{text(u"a"_s), text(u"b"_s), text(u"c"_s)};
    const ProgramRun run = printEachTo(front.address(), {}, files);
    EXPECT_EQ(run.status, 6);
    EXPECT_EQ(run.errors, QString::fromUtf8(row.errors)
                              .replace(u"%1"_s, front.address())
                              .replace(u"%2"_s, files[1])
                              .replace(u"%3"_s, files[2]));
    EXPECT_EQ(run.output,
              u"request id is photo-%1 (1 file(s))\n"_s.arg(kGoodJob).repeated(row.taken));
}

INSTANTIATE_TEST_SUITE_P(
    Table, EachAfter,
    testing::Values(
        SecondJob{"IsSentWhereTheJobWasRefused", "Create-Job",
                  answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_POSSIBLE).ended()), 2,
                  "velkaro-print: %2: Nothing was printed on photo: The print server %1 refused: "
                  "IPP 0x0404.\n"},
        SecondJob{"IsSentWhereTheDocumentWasRefused", "Send-Document",
                  answerIpp(IppBytes(IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED).ended()), 2,
                  "velkaro-print: %2: Job 7 on photo was cancelled: The print server %1 refused: "
                  "IPP 0x040a.\n"},
        SecondJob{"IsSentWhereTheConnectionWasClosed",
                  "Create-Job",
                  {closeConnection()},
                  2,
                  "velkaro-print: %2: Nothing was printed on photo: The print server %1 closed the "
                  "connection without an answer.\n"},
        SecondJob{"IsNotSentWhereTheQueueIsGone", "Create-Job",
                  answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_FOUND).ended()), 1,
                  "velkaro-print: %2: Nothing was printed on photo: The print server %1 has no "
                  "queue photo.\nvelkaro-print: Not sent: %3\n"}),
    CaseName());

TEST_F(Each, DocumentGoesOverOneConnectionAndTheQueueIsAskedOnce)
{
    const ScriptedServer front;
    ASSERT_EQ(printEachTo(front.address(), {}, {text(u"a"_s), text(u"b"_s)}).status, 0);
    // The PPD may be exchanged between two of them.
    const QStringList job{u"GET /printers/photo.ppd"_s, u"Create-Job"_s, u"Send-Document"_s,
                          u"Get-Job-Attributes"_s};
    EXPECT_EQ(front.requests(), QStringList({u"GET /printers/photo.ppd"_s,
                                             u"Get-Printer-Attributes"_s, u"Validate-Job"_s}) +
                                    job + job);
}

TEST_F(Each, DocumentAfterAnInterruptIsNotSent)
{
    const QString lookingBack = u"Get-Job-Attributes"_s;
    const ScriptedServer front({{lookingBack.toLatin1(), {hold()}, 1}});
    const QStringList files{text(u"a"_s), text(u"b"_s)};
    const ProgramRun run = runProgram(
        QStringList{u"--no-dialog"_s, u"--each"_s, u"-h"_s, front.address(), u"-d"_s, u"photo"_s} +
            files,
        {}, [&](const QProcess &program) {
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return front.requests().contains(lookingBack); }, 30000));
            kill(static_cast<pid_t>(program.processId()), SIGINT);
        });
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, u"request id is photo-%1 (1 file(s))\n"_s.arg(kGoodJob));
    EXPECT_TRUE(run.errors.endsWith(u"\nvelkaro-print: Not sent: %1\n"_s.arg(files[1])))
        << run.errors.toStdString();
}

// --- Followed to the end -------------------------------------------------------------------------

class EachFollowed : public DeviceFixture
{
protected:
    /// Two jobs to the queue, and what it came to.
    ProgramRun printTwo(const QString &queue, const QStringList &options,
                        const std::function<void(QProcess &)> &meanwhile = {})
    {
        return runProgram(QStringList{u"--no-dialog"_s, u"--each"_s, u"--wait"_s, u"-h"_s,
                                      server().address(), u"-d"_s, queue} +
                              options + QStringList{document(), document()},
                          {}, meanwhile);
    }

    /// The numbers of the jobs that are told on standard output.
    static QStringList numbersIn(const ProgramRun &run)
    {
        QStringList numbers;
        for (const QString &line : run.output.split(u'\n', Qt::SkipEmptyParts))
            numbers += line.section(u'-', 1).section(u' ', 0, 0);
        return numbers;
    }
};

TEST_F(EachFollowed, ToTheEndTellsOfEveryJob)
{
    const ProgramRun run = printTwo(u"finish"_s, {});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    const QStringList numbers = numbersIn(run);
    ASSERT_EQ(numbers.size(), 2);
    for (const QString &number : numbers)
        EXPECT_TRUE(
            run.errors.contains(u"velkaro-print: Job %1 on finish is printed.\n"_s.arg(number)))
            << run.errors.toStdString();
}

TEST_F(EachFollowed, ForTooLongEndsWithTheStatusOfTheFirst)
{
    const ProgramRun run = printTwo(u"hold"_s, {u"--timeout"_s, u"0"_s});
    EXPECT_EQ(run.status, 8);
    const QStringList numbers = numbersIn(run);
    ASSERT_EQ(numbers.size(), 2);
    for (const QString &number : numbers)
        EXPECT_TRUE(
            run.errors.contains(u"Job %1 on hold was not waited for any longer"_s.arg(number)))
            << run.errors.toStdString();
}

TEST_F(EachFollowed, AndInterruptedCancelsAll)
{
    const ProgramRun run = printTwo(u"empty"_s, {}, [](QProcess &program) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                program.setReadChannel(QProcess::StandardError);
                return program.peek(100000).contains("The multi-purpose tray is empty");
            },
            30000));
        kill(static_cast<pid_t>(program.processId()), SIGINT);
    });
    EXPECT_EQ(run.status, 1) << run.errors.toStdString();
    const QStringList numbers = numbersIn(run);
    ASSERT_EQ(numbers.size(), 2);
    for (const QString &number : numbers)
        EXPECT_EQ(server().jobAttributes(u"empty"_s, number.toInt()).value(u"job-state"_s).toInt(),
                  IPP_JSTATE_CANCELED);
}

} // namespace
