#include "dialog/cups/Destinations.h"
#include "dialog/cups/JobReadBack.h"
#include "dialog/cups/JobSubmission.h"
#include "dialog/cups/OptionAttribute.h"
#include "dialog/cups/QueuePPD.h"
#include "dialog/host/PPDFile.h"
#include "dialog/work/BackgroundCall.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/printserver/PrintServer.h"
#include "tests/servers/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QScopeGuard>
#include <QtNetwork/QTcpServer>
#include <QtTest/QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// One server for all tests of this file, with the queues that they ask for.
class Server : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_server = new PrintServer;
        ASSERT_EQ(s_server->fault(), QString()) << s_server->fault().toStdString();
        ASSERT_TRUE(s_server->addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)));
        ASSERT_TRUE(s_server->addQueue(u"raw"_s, QString()));
        ASSERT_TRUE(s_server->addQueue(u"closed"_s, samplePPD(u"velkaro-px-t900"_s)));
        ASSERT_TRUE(s_server->command(u"cupsreject"_s, {u"closed"_s}));
        ASSERT_TRUE(s_server->lpadmin({u"-p"_s, u"photo"_s, u"-c"_s, u"group"_s}));
        ASSERT_TRUE(s_server->lpadmin({u"-d"_s, u"photo"_s}));
        ASSERT_TRUE(s_server->command(u"cupsenable"_s, {u"group"_s}));
        ASSERT_TRUE(s_server->command(u"cupsaccept"_s, {u"group"_s}));
    }
    static void TearDownTestSuite()
    {
        delete s_server;
        s_server = nullptr;
    }

    void SetUp() override { ASSERT_NE(s_server, nullptr); }

    Documents document(const QByteArray &text)
    {
        const QString path = m_folder.filePath(u"document%1.ps"_s.arg(++m_documents));
        writeFile(path, "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n% " + text +
                            "\nshowpage\n%%EOF\n");
        return openedDocuments({path});
    }

    JobRequest job(const QString &queue)
    {
        JobRequest request;
        request.server = s_server->address();
        request.queue = queue;
        request.title = u"A & B <i>"_s;
        request.documents = document("first");
        return request;
    }

    static PrintServer *s_server;
    QTemporaryDir m_folder;
    CallGuard m_guard;
    int m_documents = 0;
};

PrintServer *Server::s_server = nullptr;

QString nickname(const QueuePPD &queue)
{
    const auto opened = openPPD(queue.path());
    return opened ? ppdText(opened->ppd->nickname) : opened.sentence();
}

TEST_F(Server, ListsItsQueuesAndNamesItsDefault)
{
    const auto list = listDestinations(s_server->address(), m_guard);
    EXPECT_TRUE(list.isGood()) << list.sentence().toStdString();
    QStringList names;
    for (const Destination &destination : *list) {
        names += destination.name.queue;
        EXPECT_EQ(destination.isAccepting, destination.name.queue != u"closed"_s);
        EXPECT_EQ(destination.isDefault, destination.name.queue == u"photo"_s);
    }
    EXPECT_EQ(names, (QStringList{u"closed"_s, u"group"_s, u"photo"_s, u"raw"_s}));
    EXPECT_EQ(serverDefault(s_server->address(), m_guard)->queue, u"photo"_s);
}

TEST_F(Server, IsGivenNamesWithoutControlCharacters)
{
    JobRequest request = job(u"raw"_s);
    request.title = u"A\nB\u001B[2J\u202E"_s;
    const QString odd = m_folder.filePath(u"x\ny\u001B.ps"_s);
    ASSERT_TRUE(QFile::rename(request.documents[0].path(), odd));
    request.documents = openedDocuments({odd});
    const auto receipt = submitJob(request, m_guard);
    ASSERT_TRUE(receipt.isGood()) << receipt.sentence().toStdString();
    const QMap<QString, QString> kept = s_server->jobAttributes(u"raw"_s, receipt->id);
    EXPECT_EQ(kept.value(u"job-name"_s), u"A B [2J"_s);
    EXPECT_EQ(kept.value(u"document-name-supplied"_s), u"x y .ps"_s);
}

TEST_F(Server, ListsTheUsersInstancesBehindTheirQueues)
{
    const QByteArray home = qgetenv("HOME");
    const auto restore = qScopeGuard([&home] { qputenv("HOME", home); });
    qputenv("HOME", m_folder.path().toLocal8Bit());
    writeFile(m_folder.filePath(u".cups/lpoptions"_s),
              "Dest photo copies=2\nDest photo/small copies=3\nDefault photo/Large copies=4\n"
              "Dest gone/away copies=5\n");
    QStringList names;
    QString usual;
    const auto list = listDestinations(s_server->address(), m_guard);
    ASSERT_TRUE(list) << list.sentence().toStdString();
    for (const Destination &one : *list) {
        names +=
            one.name.queue + (one.name.instance.isNull() ? QString() : u'/' + one.name.instance);
        if (one.isDefault)
            usual += names.constLast();
    }
    EXPECT_EQ(names, (QStringList{u"closed"_s, u"group"_s, u"photo"_s, u"photo/Large"_s,
                                  u"photo/small"_s, u"raw"_s}));
    EXPECT_EQ(usual, u"photo/Large"_s);
}

TEST_F(Server, GivesThePPDOfAQueueInAFileWithoutAName)
{
    // A folder of its own: everybody writes into the common one.
    const QByteArray common = qgetenv("TMPDIR");
    const auto restore = qScopeGuard(
        [&common] { common.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", common); });
    qputenv("TMPDIR", m_folder.path().toLocal8Bit());
    const auto queue = fetchQueuePPD(s_server->address(), u"photo"_s, m_guard);
    ASSERT_TRUE(queue) << queue.sentence().toStdString();
    EXPECT_EQ(nickname(*queue), u"Velkaro PX-T900, 1.0"_s);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList());
}

TEST_F(Server, GivesTheFirstMembersPPDForAClass)
{
    const auto queue = fetchQueuePPD(s_server->address(), u"group"_s, m_guard);
    ASSERT_TRUE(queue) << queue.sentence().toStdString();
    EXPECT_EQ(nickname(*queue), u"Velkaro PX-T900, 1.0"_s);
}

TEST_F(Server, SaysThatAQueueHasNoPPD)
{
    const auto queue = fetchQueuePPD(s_server->address(), u"raw"_s, m_guard);
    ASSERT_TRUE(queue) << queue.sentence().toStdString();
    EXPECT_FALSE(queue->file);
    EXPECT_EQ(missingPPD(u"raw"_s), u"The queue raw has no PPD."_s);
}

TEST_F(Server, SaysThatThereIsNoSuchQueue)
{
    const auto queue = fetchQueuePPD(s_server->address(), u"no/such queue"_s, m_guard);
    EXPECT_EQ(queue.faultKind(), FaultKind::NotFound);
    EXPECT_EQ(queue.sentence(),
              u"The print server %1 has no queue no/such queue."_s.arg(s_server->address()));
}

TEST_F(Server, TakesAJobAsItWasSent)
{
    JobRequest request = job(u"photo"_s);
    request.options = {{u"VKMediaType"_s, u"Glossy"_s},
                       {u"VKBiDir"_s, u"ON"_s},
                       {u"PageSize"_s, u"Custom.283.47x425.2"_s},
                       {u"copies"_s, u"2"_s},
                       {u"page-ranges"_s, u"1-2,4"_s},
                       {u"orientation-requested"_s, u"4"_s},
                       {u"fit-to-page"_s, u"true"_s},
                       {u"com.velkaro.print.PrintSettings.T2T_Red"_s, u"-7"_s},
                       {u"com.velkaro.text"_s, u"a, \"b\" 'c' \\d $(e)"_s}};
    request.documents.push_back(document("second").front());
    const auto receipt = submitJob(request, m_guard);
    ASSERT_TRUE(receipt.isGood()) << receipt.sentence().toStdString();
    EXPECT_EQ(receipt->notes, QStringList());
    const QMap<QString, QString> kept = s_server->jobAttributes(u"photo"_s, receipt->id);
    for (const JobOption &option : request.options)
        EXPECT_EQ(kept.value(option.name), option.value) << option.name.toStdString();
    EXPECT_EQ(kept.value(u"job-name"_s), u"A & B <i>"_s);
    EXPECT_EQ(kept.value(u"number-of-documents"_s), u"2"_s);
    EXPECT_FALSE(kept.contains(u"media"_s));
    EXPECT_EQ(s_server->waitForJob(u"photo"_s, receipt->id), IPP_JSTATE_COMPLETED);
}

TEST_F(Server, RefusesAJobForAQueueThatIsClosed)
{
    const auto receipt = submitJob(job(u"closed"_s), m_guard);
    EXPECT_EQ(receipt.faultKind(), FaultKind::Refused);
    EXPECT_TRUE(
        receipt.sentence().startsWith(u"The print server %1 refused: "_s.arg(s_server->address())))
        << receipt.sentence().toStdString();
    EXPECT_EQ(s_server->jobs(u"closed"_s), QList<int>());
}

TEST_F(Server, GetsNoJobWhoseDocumentHasChanged)
{
    const QList<int> before = s_server->jobs(u"photo"_s);
    JobRequest request = job(u"photo"_s);
    request.documents.push_back(document("second").front());
    const QString path = request.documents.back().path();
    ASSERT_TRUE(QFile::resize(path, 10));
    const auto receipt = submitJob(request, m_guard);
    EXPECT_EQ(receipt.faultKind(), FaultKind::Document);
    EXPECT_EQ(receipt.sentence(),
              u"The document %1 has become shorter or longer since it was opened."_s.arg(path));
    EXPECT_EQ(s_server->jobs(u"photo"_s), before);
}

TEST_F(Server, HoldsAJobAndItIsSaid)
{
    JobRequest request = job(u"photo"_s);
    request.options = {{u"job-hold-until"_s, u"indefinite"_s}};
    const auto receipt = submitJob(request, m_guard);
    ASSERT_TRUE(receipt.isGood());
    EXPECT_EQ(
        receipt->notes,
        QStringList{u"The server holds job %1 (job-hold-until-specified)."_s.arg(receipt->id)});
}

TEST_F(Server, CancelsAJobThatTheUserStoppedSending)
{
    const QList<int> before = s_server->jobs(u"photo"_s);
    QFile endless(m_folder.filePath(u"large.ps"_s));
    ASSERT_TRUE(endless.open(QIODevice::WriteOnly));
    ASSERT_TRUE(endless.resize(4096LL * 1024 * 1024));
    JobRequest request = job(u"photo"_s);
    request.documents = openedDocuments({endless.fileName()});
    Result<JobReceipt> receipt;
    const auto progress = std::make_shared<JobProgress>();
    bool isDone = false;
    QObject owner;
    auto *call = new BackgroundCall(
        &owner, kServerTimeout,
        [&](CallGuard &guard) -> BackgroundCall::Outcome {
            const auto got = submitJob(request, guard, progress);
            return [&, got] {
                receipt = got;
                isDone = true;
            };
        },
        nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return s_server->jobs(u"photo"_s).size() > before.size(); }));
    call->cancel();
    // The server's disk may be faster than the look at its jobs: then all has arrived.
    ASSERT_TRUE(QTest::qWaitFor([&] { return isDone; }, 20000));
    if (receipt.isGood())
        FAIL() << "the document was too short for this test";
    EXPECT_EQ(receipt.faultKind(), FaultKind::Cancelled);
    EXPECT_EQ(s_server->waitForJob(u"photo"_s, progress->id()), IPP_JSTATE_CANCELED);
}

TEST_F(Server, IsReachedByItsSocketToo)
{
    JobRequest request = job(u"photo"_s);
    request.server = s_server->socketPath();
    EXPECT_EQ(listDestinations(request.server, m_guard)->size(), 4);
    EXPECT_EQ(nickname(*fetchQueuePPD(request.server, u"photo"_s, m_guard)),
              u"Velkaro PX-T900, 1.0"_s);
    const auto receipt = submitJob(request, m_guard);
    EXPECT_TRUE(receipt.isGood()) << receipt.sentence().toStdString();
}

struct Encryption
{
    const char *behaviour;
    http_encryption_t encryption;
    Script front; ///< of the server before the real one
    int encryptedConnections;
};

void PrintTo(const Encryption &row, std::ostream *out)
{
    *out << row.behaviour;
}

class EncryptedServer : public Server, public testing::WithParamInterface<Encryption>
{};

/// The real server demands no encryption on the loopback: one before it does, or the user.
TEST_P(EncryptedServer, IsPrintedTo)
{
    const auto restore = qScopeGuard([] { cupsSetEncryption(HTTP_ENCRYPTION_IF_REQUESTED); });
    cupsSetEncryption(GetParam().encryption);
    const QString log = s_server->folder() + u"/log/error"_s;
    const auto encrypted = [&log] { return readFile(log).count("Connection now encrypted"); };
    const auto before = encrypted();
    const ScriptedServer front(GetParam().front + Script{{"connect", {relay(s_server->port())}}});
    const auto queue = fetchQueuePPD(front.address(), u"photo"_s, m_guard);
    ASSERT_TRUE(queue) << queue.sentence().toStdString();
    EXPECT_EQ(nickname(*queue), u"Velkaro PX-T900, 1.0"_s);
    JobRequest request = job(u"photo"_s);
    request.server = front.address();
    request.documents.push_back(document("second").front());
    const auto receipt = submitJob(request, m_guard);
    EXPECT_EQ(receipt.sentence(), QString());
    EXPECT_EQ(receipt->notes, QStringList());
    EXPECT_EQ(encrypted() - before, GetParam().encryptedConnections);
}

const Steps kUpgrade{write("HTTP/1.1 426 Upgrade Required\r\nUpgrade: TLS/1.2\r\n"
                           "Connection: Upgrade\r\nContent-Length: 0\r\n\r\n")};

INSTANTIATE_TEST_SUITE_P(Table, EncryptedServer,
                         testing::Values(Encryption{"BecauseItDemandsIt",
                                                    HTTP_ENCRYPTION_IF_REQUESTED,
                                                    {{"connect", {}, 1}, {"GET", kUpgrade}},
                                                    1},
                                         Encryption{
                                             "BecauseTheUserDoes", HTTP_ENCRYPTION_REQUIRED, {}, 2},
                                         Encryption{"FromTheStart", HTTP_ENCRYPTION_ALWAYS, {}, 2}),
                         CaseName());

TEST_F(Server, ThatDemandsAPasswordGetsNone)
{
    PrintServer server(u"AuthType Basic\nRequire valid-user"_s);
    ASSERT_EQ(server.fault(), QString());
    const auto queue = fetchQueuePPD(server.address(), u"photo"_s, m_guard);
    EXPECT_EQ(queue.faultKind(), FaultKind::NeedsPassword);
    EXPECT_EQ(queue.sentence(),
              u"The print server %1 lets nobody print to photo without a password."_s.arg(
                  server.address()));
}

TEST(ReadBack, NamesWhatTheServerDroppedOrChanged)
{
    const IppHandle kept(ippNew());
    ippAddInteger(kept.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", IPP_JSTATE_PENDING);
    addOptionAttribute(kept.get(), {u"copies"_s, u"1"_s});
    addOptionAttribute(kept.get(), {u"VKMediaType"_s, u"Glossy"_s});
    EXPECT_EQ(
        differences(
            kept.get(), 7,
            {{u"copies"_s, u"2"_s}, {u"VKMediaType"_s, u"Glossy"_s}, {u"com.velkaro.x"_s, u"1"_s}}),
        (QStringList{u"The server changed the setting copies from 2 to 1."_s,
                     u"The server dropped the setting com.velkaro.x=1."_s}));
}

struct Ending
{
    const char *name;
    ipp_jstate_t state;
    const char *reason;
    QStringList notes;
};

void PrintTo(const Ending &row, std::ostream *out)
{
    *out << row.name;
}

class ReadBackOf : public testing::TestWithParam<Ending>
{};

TEST_P(ReadBackOf, AnAcceptedJobSaysHowItStands)
{
    const IppHandle kept(ippNew());
    ippAddInteger(kept.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", GetParam().state);
    ippAddString(kept.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-state-reasons", nullptr,
                 GetParam().reason);
    EXPECT_EQ(differences(kept.get(), 7, {}), GetParam().notes);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ReadBackOf,
    testing::Values(Ending{"Pending", IPP_JSTATE_PENDING, "none", {}},
                    Ending{"Printed", IPP_JSTATE_COMPLETED, "job-completed-successfully", {}},
                    Ending{
                        "WithErrors",
                        IPP_JSTATE_COMPLETED,
                        "job-completed-with-errors",
                        {u"The server has ended job 7 with errors (job-completed-with-errors)."_s}},
                    Ending{"Cancelled",
                           IPP_JSTATE_CANCELED,
                           "job-canceled-by-operator",
                           {u"The server has cancelled job 7 (job-canceled-by-operator)."_s}},
                    Ending{"Aborted",
                           IPP_JSTATE_ABORTED,
                           "aborted-by-system",
                           {u"The server has aborted job 7 (aborted-by-system)."_s}},
                    Ending{"Held",
                           IPP_JSTATE_HELD,
                           "job-hold-until-specified",
                           {u"The server holds job 7 (job-hold-until-specified)."_s}}),
    [](const auto &row) { return std::string(row.param.name); });

// --- Servers that are not there, or do not answer
// -------------------------------------------------

/// Takes connections, and says nothing.
class SilentServer
{
public:
    SilentServer() { m_server.listen(QHostAddress::LocalHost); }
    QString address() const { return u"127.0.0.1:%1"_s.arg(m_server.serverPort()); }

private:
    QTcpServer m_server; // never asked for its connections: the system accepts them
};

template <typename Value> Result<> withoutValue(const Result<Value> &result)
{
    return result ? Result<>() : result.fault();
}

struct Call
{
    const char *name;
    Result<> (*make)(const QString &server, CallGuard &guard);
};

void PrintTo(const Call &row, std::ostream *out)
{
    *out << row.name;
}

class FaultyServer : public testing::TestWithParam<Call>
{};

TEST_P(FaultyServer, WithoutAnybodyIsUnreachable)
{
    CallGuard guard(500ms);
    const QString server = u"127.0.0.1:%1"_s.arg(freePort());
    const auto answer = GetParam().make(server, guard);
    EXPECT_EQ(answer.faultKind(), FaultKind::Unreachable);
    EXPECT_EQ(answer.sentence(), u"The print server %1 cannot be reached."_s.arg(server));
}

TEST_P(FaultyServer, ThatIsSilentIsGivenUpInTime)
{
    const SilentServer server;
    CallGuard guard(500ms);
    QElapsedTimer clock;
    clock.start();
    const auto answer = GetParam().make(server.address(), guard);
    EXPECT_EQ(answer.faultKind(), FaultKind::Silent);
    EXPECT_EQ(answer.sentence(), u"The print server %1 does not answer."_s.arg(server.address()));
    EXPECT_LT(clock.elapsed(), 5000);
}

INSTANTIATE_TEST_SUITE_P(
    Table, FaultyServer,
    testing::Values(Call{"ListingQueues",
                         [](const QString &server, CallGuard &guard) {
                             return withoutValue(listDestinations(server, guard));
                         }},
                    Call{"FetchingThePPD",
                         [](const QString &server, CallGuard &guard) {
                             return withoutValue(fetchQueuePPD(server, u"photo"_s, guard));
                         }},
                    Call{"SubmittingAJob",
                         [](const QString &server, CallGuard &guard) {
                             JobRequest request;
                             request.server = server;
                             request.queue = u"photo"_s;
                             request.documents =
                                 openedDocuments({QStringLiteral("/proc/self/exe")});
                             return withoutValue(submitJob(request, guard));
                         }}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(BackgroundCallTest, GivesUpWorkThatDoesNotStop)
{
    std::atomic<bool> release = false;
    bool gaveUp = false;
    bool arrived = false;
    QObject owner;
    new BackgroundCall(
        &owner, 200ms,
        [&](CallGuard &) -> BackgroundCall::Outcome {
            while (!release) // stands for a name look-up, which nothing can interrupt
                std::this_thread::yield();
            return [&] { arrived = true; };
        },
        [&] { gaveUp = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return gaveUp; }));
    release = true;
    EXPECT_TRUE(waitForBackgroundThreads(5s));
    QCoreApplication::processEvents();
    EXPECT_FALSE(arrived);
}

TEST(BackgroundCallTest, DestroyedBeforeItsEndSaysNothing)
{
    bool arrived = false;
    {
        QObject owner;
        new BackgroundCall(
            &owner, 5s,
            [&](CallGuard &guard) -> BackgroundCall::Outcome {
                while (guard.mayWait())
                    std::this_thread::yield();
                return [&] { arrived = true; };
            },
            [&] { arrived = true; });
    }
    EXPECT_TRUE(waitForBackgroundThreads(4s));
    QCoreApplication::processEvents();
    EXPECT_FALSE(arrived);
}

} // namespace
