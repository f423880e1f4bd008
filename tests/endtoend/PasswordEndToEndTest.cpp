// A server, and a printer, that want to know who prints: with the dialog, after it, and without it.
#include "dialog/window/DialogWindow.h"
#include "dialog/window/JobWindow.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/endtoend/SecretsFixture.h"
#include "tests/support/CaseName.h"
#include "tests/support/EventLoopWatch.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QProcess>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

#include <algorithm>
#include <csignal>
#include <cups/ipp.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace {

TEST_F(Secrets, AreAskedForInASheetAndAskedForAgain)
{
    const EventLoopWatch watch;
    DialogWindow window(wishes());
    window.start();
    window.show();
    PasswordDialog *sheet = sheetIn(window);
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(textOf(*sheet),
              u"The print server %1 wants to know who asks for the settings of finish."_s.arg(
                  m_front.address()));
    EXPECT_EQ(part<QLineEdit>(*sheet, "passwordField").echoMode(), QLineEdit::Password);
    answer(*sheet, u"wrong"_s);
    sheet = sheetIn(window);
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(textOf(*sheet).startsWith(u"The user name or the password was not right.\n"_s));
    EXPECT_EQ(part<QLineEdit>(*sheet, "passwordUser").text(), u"anna"_s);
    answer(*sheet, kSecret);
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Searching));
    EXPECT_EQ(window.state(), DialogWindow::State::Ready)
        << window.notice().sentence().toStdString();
    QTest::mouseClick(&part<QAbstractButton>(window, "printButton"), Qt::LeftButton);
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Sending));
    EXPECT_TRUE(window.outcome()) << window.notice().sentence().toStdString();
}

TEST_F(Secrets, NeedNotBeSaid)
{
    DialogWindow window(wishes());
    window.start();
    window.show();
    PasswordDialog *sheet = sheetIn(window);
    ASSERT_NE(sheet, nullptr);
    QTest::mouseClick(&part<QAbstractButton>(*sheet, "passwordCancel"), Qt::LeftButton);
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Searching));
    EXPECT_EQ(window.state(), DialogWindow::State::NoPrinter);
    EXPECT_EQ(window.notice().sentence(),
              u"The print server %1 lets nobody print to finish without a password."_s.arg(
                  m_front.address()));
    QTest::mouseClick(&part<QAbstractButton>(window, "retryButton"), Qt::LeftButton);
    sheet = sheetIn(window);
    ASSERT_NE(sheet, nullptr);
    answer(*sheet, kSecret);
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Searching));
    EXPECT_EQ(window.state(), DialogWindow::State::Ready);
}

TEST_F(Secrets, AreNotAskedForAnyLongerWhenTheDialogEnds)
{
    DialogWindow window(wishes());
    window.start();
    window.show();
    ASSERT_NE(sheetIn(window), nullptr);
    window.end();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return window.findChildren<PasswordDialog *>().isEmpty() && !window.isVisible(); },
        kLongestAnswer));
}

TEST_F(Secrets, OfAPrinterReleaseTheJobThatIsHeldForThem)
{
    const int id = print(u"password"_s);
    JobWindow window(server().address(), {u"password"_s, id, 1});
    window.show();
    auto &enter = part<QAbstractButton>(window, "authenticateButton");
    ASSERT_TRUE(QTest::qWaitFor([&] { return enter.isVisible(); }, kLongestAnswer))
        << window.sentence().toStdString();
    QTest::mouseClick(&enter, Qt::LeftButton);
    PasswordDialog *sheet = sheetIn(window);
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(textOf(*sheet),
              u"The print server %1 holds the job until the printer behind password "
              "knows who prints."_s.arg(server().address()));
    answer(*sheet, kSecret);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return window.sentence() == u"Job %1 on password is printed."_s.arg(id); },
        kLongestAnswer))
        << window.sentence().toStdString();
}

TEST_F(Secrets, ThatThePrinterIsKnownToWantAreAskedForBeforeTheJobIsSent)
{
    ASSERT_TRUE(wantPassword());
    DialogWishes wished = wishes();
    wished.server = server().address();
    wished.queue = u"password"_s;
    DialogWindow window(wished);
    window.start();
    window.show();
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Searching));
    const qsizetype before = server().jobs(u"password"_s).size();
    auto &button = part<QAbstractButton>(window, "printButton");
    QTest::mouseClick(&button, Qt::LeftButton);
    PasswordDialog *sheet = sheetIn(window);
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(textOf(*sheet), u"The printer behind password on the print server %1 wants to know "
                              "who prints."_s.arg(server().address()));
    QTest::mouseClick(&part<QAbstractButton>(*sheet, "passwordCancel"), Qt::LeftButton);
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Sending));
    EXPECT_EQ(window.notice().sentence(),
              u"Nothing was printed on password: The printer behind password wants to know who "
              "prints, and nobody has said it."_s);
    EXPECT_EQ(server().jobs(u"password"_s).size(), before);
    QTest::mouseClick(&button, Qt::LeftButton);
    sheet = sheetIn(window);
    ASSERT_NE(sheet, nullptr);
    answer(*sheet, kSecret);
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Sending));
    ASSERT_TRUE(window.outcome()) << window.notice().sentence().toStdString();
    EXPECT_EQ(server().waitForJob(u"password"_s, server().jobs(u"password"_s).constLast()),
              IPP_JSTATE_COMPLETED);
}

// --- Without the dialog --------------------------------------------------------------------------

class SecretsOfAProgram : public Secrets
{
protected:
    SecretsOfAProgram()
    {
        writeFile(m_home.filePath(u".cups/client.conf"_s), "User anna\n");
        m_environment.insert(u"HOME"_s, m_home.path());
    }

    QStringList printingTo(const QString &address, const QString &queue)
    {
        return {u"--no-dialog"_s, u"-h"_s, address, u"-d"_s, queue, document()};
    }

    /// With the password on descriptor 7.
    ProgramRun run(const QStringList &arguments, const QString &password)
    {
        const QString file = m_home.filePath(u"password"_s);
        writeFile(file, password.toUtf8() + "\nmore\n");
        m_environment.insert(u"PASSWORD_FILE"_s, file);
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(u"sh"_s,
                      QStringList{u"-c"_s,
                                  u"exec \"$0\" --password-fd 7 \"$@\" 7<\"$PASSWORD_FILE\""_s,
                                  QStringLiteral(VELKARO_PROGRAM)} +
                          arguments);
        EXPECT_TRUE(process.waitForFinished(kLongestAnswer));
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QTemporaryDir m_home;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(SecretsOfAProgram, AreReadFromADescriptor)
{
    const ProgramRun right = run(printingTo(m_front.address(), u"finish"_s), kSecret);
    EXPECT_EQ(right.status, 0) << right.errors.toStdString();
    EXPECT_TRUE(right.output.startsWith(u"request id is finish-"_s));
    EXPECT_EQ(right.errors, QString());
    const ProgramRun wrong = run(printingTo(m_front.address(), u"finish"_s), u"wrong"_s);
    EXPECT_EQ(wrong.status, 6);
    EXPECT_EQ(wrong.errors,
              u"velkaro-print: The print server %1 does not accept the user name and the "
              "password.\n"_s.arg(m_front.address()));
    EXPECT_FALSE((right.output + right.errors + wrong.output + wrong.errors).contains(kSecret));
}

struct Unreadable
{
    const char *behaviour;
    const char *redirection; ///< as the shell takes it
    const char *sentence;
};

class SecretsThatCannotBeRead : public testing::TestWithParam<Unreadable>
{};

TEST_P(SecretsThatCannotBeRead, AreToldOfBeforeAnythingIsSent)
{
    QProcess process;
    process.start(u"sh"_s,
                  {u"-c"_s,
                   u"exec \"$0\" --no-dialog -h 127.0.0.1:1 -d photo --password-fd 7 \"$1\" "_s +
                       QLatin1String(GetParam().redirection),
                   QStringLiteral(VELKARO_PROGRAM), u"letter.pdf"_s});
    ASSERT_TRUE(process.waitForFinished(kLongestAnswer));
    EXPECT_EQ(process.exitCode(), 2);
    EXPECT_EQ(process.readAllStandardError().toStdString(), GetParam().sentence);
}

INSTANTIATE_TEST_SUITE_P(
    Table, SecretsThatCannotBeRead,
    testing::Values(
        Unreadable{"NothingIsOpen", "7<&-",
                   "velkaro-print: No password can be read from the open file 7 (--password-fd): "
                   "Bad file descriptor.\n"},
        Unreadable{"AFolder", "7</",
                   "velkaro-print: No password can be read from the open file 7 (--password-fd): "
                   "Is a directory.\n"},
        Unreadable{"OpenForWriting", "7>/dev/null",
                   "velkaro-print: No password can be read from the open file 7 (--password-fd): "
                   "Bad file descriptor.\n"},
        Unreadable{"ADocument", "/dev/fd/7 7</dev/null",
                   "velkaro-print: The open file 7 cannot be a document and hold the password "
                   "(--password-fd).\n"}),
    CaseName());

TEST_F(SecretsOfAProgram, OfTooManyBytesAreNone)
{
    const ProgramRun run =
        this->run(printingTo(m_front.address(), u"finish"_s), QString(1'000'000, u'x'));
    EXPECT_EQ(run.status, 6);
    EXPECT_EQ(run.errors,
              u"velkaro-print: The print server %1 lets nobody print to finish without a "
              "password.\n"_s.arg(m_front.address()));
}

TEST_F(SecretsOfAProgram, OfAPrinterReleaseTheJobThatIsWaitedFor)
{
    const QStringList wait{u"--wait"_s, u"--timeout"_s, u"0"_s};
    const ProgramRun right =
        run(wait.first(1) + printingTo(server().address(), u"password"_s), kSecret);
    EXPECT_EQ(right.status, 0) << right.errors.toStdString();
    EXPECT_TRUE(right.errors.contains(u"is held until its printer is given a user name"_s))
        << right.errors.toStdString();
    EXPECT_TRUE(right.errors.endsWith(u"on password is printed.\n"_s))
        << right.errors.toStdString();
}

TEST_F(SecretsOfAProgram, ThatThePrinterIsKnownToWantGoWithTheJob)
{
    ASSERT_TRUE(wantPassword());
    const ProgramRun two =
        run(QStringList{u"--each"_s, u"--wait"_s} + printingTo(server().address(), u"password"_s) +
                QStringList{document()},
            kSecret);
    EXPECT_EQ(two.status, 0) << two.errors.toStdString();
    EXPECT_FALSE(two.errors.contains(u"held"_s)) << two.errors.toStdString();
    EXPECT_EQ(two.errors.count(u"on password is printed.\n"_s), 2);
    const qsizetype before = server().jobs(u"password"_s).size();
    const ProgramRun nobody = runProgram(printingTo(server().address(), u"password"_s));
    EXPECT_EQ(nobody.status, 6);
    EXPECT_EQ(nobody.errors,
              u"velkaro-print: Nothing was printed on password: The printer behind password wants "
              "to know who prints, and nobody has said it.\n"_s);
    EXPECT_EQ(server().jobs(u"password"_s).size(), before);
}

TEST_F(SecretsOfAProgram, ThatAreWrongLeaveAHeldJobThatAsksAgain)
{
    ASSERT_TRUE(wantPassword());
    const ProgramRun wrong =
        run(QStringList{u"--wait"_s} + printingTo(server().address(), u"password"_s), u"wrong"_s);
    EXPECT_EQ(wrong.status, 6);
    const QString id = wrong.output.section(u'-', 1).section(u' ', 0, 0);
    EXPECT_TRUE(wrong.errors.endsWith(
        u"velkaro-print: Job %1 on password stays held: nobody has said who prints.\n"_s.arg(id)))
        << wrong.errors.toStdString();
    EXPECT_EQ(server().jobAttributes(u"password"_s, id.toInt()).value(u"job-state"_s).toInt(),
              IPP_JSTATE_HELD);
}

/// What a terminal shows while the program asks there; it gets the answers, one after each prompt.
struct TerminalRun
{
    QString shown;
    int status = -1;
};

TerminalRun runOnTerminal(const QStringList &arguments, const QString &home,
                          QList<std::pair<QString, QString>> answers)
{
    std::vector<QByteArray> words{VELKARO_PROGRAM};
    for (const QString &argument : arguments)
        words.push_back(argument.toUtf8());
    std::vector<char *> pointers;
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const QByteArray homeBytes = home.toUtf8();
    int terminal = -1;
    const pid_t process = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (process == 0) {
        setenv("HOME", homeBytes.constData(), 1);
        execv(VELKARO_PROGRAM, pointers.data());
        _exit(127);
    }
    TerminalRun run;
    bool isOver = false;
    for (pollfd watched{terminal, POLLIN, 0}; !isOver && poll(&watched, 1, kLongestAnswer) > 0;) {
        char bytes[4096];
        const ssize_t count = read(terminal, bytes, sizeof bytes);
        isOver = count <= 0;
        run.shown += QString::fromUtf8(bytes, std::max<ssize_t>(0, count));
        if (!isOver && !answers.isEmpty() && run.shown.endsWith(answers.constFirst().first)) {
            const QByteArray line = answers.takeFirst().second.toUtf8() + '\n';
            EXPECT_EQ(write(terminal, line.constData(), static_cast<std::size_t>(line.size())),
                      line.size());
        }
    }
    int status = 0;
    if (!isOver)
        kill(process, SIGKILL); // it waits for something else
    waitpid(process, &status, 0);
    close(terminal);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

TEST_F(SecretsOfAProgram, AreAskedForOnTheTerminalWhichDoesNotShowThem)
{
    const TerminalRun run = runOnTerminal(printingTo(m_front.address(), u"finish"_s), m_home.path(),
                                          {{u"User name [anna]: "_s, u""_s},
                                           {u"Password: "_s, u"wrong"_s},
                                           {u"User name [anna]: "_s, u"anna"_s},
                                           {u"Password: "_s, kSecret}});
    EXPECT_EQ(run.status, 0) << run.shown.toStdString();
    const QString shown = QString(run.shown).remove(u'\r');
    const QString question =
        u"The print server %1 wants to know who asks for the settings of finish.\n"_s.arg(
            m_front.address());
    EXPECT_TRUE(shown.startsWith(question + u"User name [anna]: \nPassword: \n"_s +
                                 u"The user name or the password was not right.\n"_s + question +
                                 u"User name [anna]: anna\nPassword: \nrequest id is finish-"_s))
        << shown.toStdString();
}

} // namespace
