#include "dialog/files/FileDescriptor.h"
#include "tests/endtoend/PrintServerFixture.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QDir>
#include <QtTest/QTest>

#include <cups/ipp.h>

#include <csignal>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeout = 20000; // ms

void send(int signal, const QProcess &program)
{
    ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), signal), 0);
}

// --- A real server -------------------------------------------------------------------------------

class Signal : public PrintServerFixture, public testing::WithParamInterface<int>
{
protected:
    /// A document that takes a while.
    QString large()
    {
        QFile file(inFolder(u"large.ps"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(4096LL * 1024 * 1024));
        return file.fileName();
    }

    bool hasFirstDocument()
    {
        const QList<int> jobs = newJobs();
        return !jobs.isEmpty() &&
               server().jobAttributes(u"photo"_s, jobs[0]).value(u"number-of-documents"_s).toInt() >
                   0;
    }
};

TEST_P(Signal, DuringTheSecondDocumentLeavesNothingToPrint)
{
    const ProgramRun run = runProgram(
        {u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"photo"_s, pdf(), large()}, {},
        [&](const QProcess &program) {
            ASSERT_TRUE(QTest::qWaitFor([&] { return hasFirstDocument(); }, kTimeout));
            send(GetParam(), program);
        });
    EXPECT_EQ(run.status, 1) << run.errors.toStdString();
    EXPECT_EQ(run.output, u""_s);
    EXPECT_EQ(run.errors, u"velkaro-print: Printing was cancelled.\n"_s);
    ASSERT_EQ(newJobs().size(), 1);
    EXPECT_EQ(server().waitForJob(u"photo"_s, newJobs()[0]), IPP_JSTATE_CANCELED);
    EXPECT_EQ(printed(), QByteArray());
}

INSTANTIATE_TEST_SUITE_P(All, Signal, testing::Values(SIGHUP, SIGINT, SIGTERM));

using Piped = PrintServerFixture;

TEST_F(Piped, StandardInputIsPrinted)
{
    const ProgramRun run = runProgram(
        {u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"photo"_s, u"-"_s}, {},
        [](QProcess &program) {
            program.write("%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\nshowpage\n");
            ASSERT_TRUE(program.waitForBytesWritten(kTimeout));
            program.write("%%EOF\n");
            program.closeWriteChannel();
        });
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    ASSERT_EQ(newJobs().size(), 1);
    EXPECT_EQ(server().jobAttributes(u"photo"_s, newJobs()[0]).value(u"job-name"_s),
              u"Standard input"_s);
    EXPECT_EQ(server().waitForJob(u"photo"_s, newJobs()[0]), IPP_JSTATE_COMPLETED);
    EXPECT_TRUE(printed().contains("showpage"));
}

TEST_F(Piped, ADocumentWhoseNameIsNoUtf8IsPrinted)
{
    // An argument of these bytes: the process class of the toolkit would lose them.
    const QString link = inFolder(u"link"_s);
    ASSERT_EQ(QProcess::execute(u"sh"_s, {u"-c"_s, u"cp \"$1\" \"$2/Gr$(printf '\\374').pdf\""_s,
                                          u"sh"_s, pdf(), QFileInfo(link).path()}),
              0);
    QProcess process;
    process.start(
        u"sh"_s,
        {u"-c"_s, u"\"$1\" --no-dialog -h \"$2\" -d photo \"$3/Gr$(printf '\\374').pdf\""_s,
         u"sh"_s, QStringLiteral(VELKARO_PROGRAM), server().address(), QFileInfo(link).path()});
    ASSERT_TRUE(process.waitForFinished(kTimeout));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    ASSERT_EQ(newJobs().size(), 1);
    EXPECT_EQ(server().jobAttributes(u"photo"_s, newJobs()[0]).value(u"job-name"_s),
              u"Gr\ufffd.pdf"_s);
    QProcess::execute(u"sh"_s, {u"-c"_s, u"rm \"$1\"/Gr*"_s, u"sh"_s, QFileInfo(link).path()});
}

// --- A server that holds its answers -------------------------------------------------------------

/// When the signal comes, and what the program makes of it.
struct Moment
{
    const char *name;
    const char *request; ///< that the server holds
    bool hasDialog;
    int status;
    const char *output;
    const char *errors;
    QStringList requests;
};

void PrintTo(const Moment &row, std::ostream *out)
{
    *out << row.name;
}

class SignalAt : public testing::TestWithParam<Moment>
{
protected:
    SignalAt() { writeFile(m_document, "%!PS\n"); }

    QStringList arguments(const ScriptedServer &server) const
    {
        return {u"-h"_s, server.address(), u"-d"_s, u"photo"_s, m_document};
    }

    QTemporaryDir m_folder;
    QString m_document = m_folder.filePath(u"document.ps"_s);
};

TEST_P(SignalAt, EndsTheProgramInOrder)
{
    const ScriptedServer server({{GetParam().request, {readBody(), hold()}}});
    const QString held = GetParam().requests.constLast();
    const ProgramRun run = runProgram(
        (GetParam().hasDialog ? QStringList() : QStringList{u"--no-dialog"_s}) + arguments(server),
        {}, [&](const QProcess &program) {
            ASSERT_TRUE(
                QTest::qWaitFor([&] { return server.requests().contains(held); }, kTimeout));
            send(SIGTERM, program);
        });
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_EQ(run.output.toStdString(), GetParam().output);
    EXPECT_EQ(run.errors.toStdString(), GetParam().errors);
    const QStringList after = GetParam().request == QByteArray("Send-Document")
                                  ? QStringList{u"Cancel-Job"_s}
                                  : QStringList();
    EXPECT_EQ(server.requests(), GetParam().requests + after);
}

const QString kGetPPD = u"GET /printers/photo.ppd"_s;

INSTANTIATE_TEST_SUITE_P(
    Table, SignalAt,
    testing::Values(Moment{"WhileThePrinterIsFound",
                           "GET",
                           false,
                           1,
                           "",
                           "velkaro-print: Printing was cancelled.\n",
                           {kGetPPD}},
                    Moment{"WhileTheDialogSearches", "GET", true, 1, "", "", {kGetPPD}},
                    Moment{"WhileTheJobIsSent", "Send-Document", false, 1, "",
                           "velkaro-print: Printing was cancelled.\n",
                           printingToPhoto({u"Send-Document"_s})},
                    Moment{"WhenTheJobIsAccepted", "Get-Job-Attributes", false, 0,
                           "request id is photo-7 (1 file(s))\n",
                           "velkaro-print: Whether the server keeps all settings of job 7 is not "
                           "known: its account of the job cannot be read.\n",
                           printingToPhoto({u"Send-Document"_s, u"Get-Job-Attributes"_s})}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(SignalAt, ForTheSecondTimeEndsTheProgramAtOnce)
{
    const ScriptedServer server(
        {{"Send-Document", {readBody(), hold()}}, {"Cancel-Job", {readBody(), hold()}}});
    int exitCode = -1;
    const auto comes = [&](const QString &request) {
        return QTest::qWaitFor([&] { return server.requests().contains(request); }, kTimeout);
    };
    runProgram(QStringList{u"--no-dialog"_s} + arguments(server), {}, [&](QProcess &program) {
        ASSERT_TRUE(comes(u"Send-Document"_s));
        send(SIGTERM, program);
        ASSERT_TRUE(comes(u"Cancel-Job"_s));
        send(SIGTERM, program);
        ASSERT_TRUE(program.waitForFinished(kTimeout));
        EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
        exitCode = program.exitCode();
    });
    EXPECT_EQ(exitCode, SIGTERM);
}

TEST_F(SignalAt, TheWritingOfAJobLeavesWhatStoodThere)
{
    const QString fifo = m_folder.filePath(u"out"_s);
    ASSERT_EQ(mkfifo(qPrintable(fifo), 0600), 0);
    // Held, but not read: the program waits there.
    const FileDescriptor reader(open(qPrintable(fifo), O_RDONLY | O_NONBLOCK));
    writeFile(m_document, QByteArray(1'000'000, 'x'));
    const ScriptedServer server;
    const ProgramRun run =
        runProgram(QStringList{u"--no-dialog"_s, u"--output"_s, fifo} + arguments(server), {},
                   [&](const QProcess &program) {
                       ASSERT_TRUE(QTest::qWaitFor(
                           [&] {
                               int waiting = 0;
                               ioctl(reader.get(), FIONREAD, &waiting);
                               return waiting > 0;
                           },
                           kTimeout));
                       send(SIGTERM, program);
                   });
    EXPECT_EQ(run.status, 1) << run.errors.toStdString();
    EXPECT_EQ(run.output, u""_s);
    EXPECT_EQ(
        QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
        (QStringList{u"document.ps"_s, u"out"_s}));
}

} // namespace
