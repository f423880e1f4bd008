#include "dialog/cups/JobSubmission.h"
#include "dialog/cups/Destinations.h"
#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"
#include "dialog/work/BackgroundCall.h"
#include "tests/built/BuiltFiles.h"
#include "tests/dialog/cups/ServerFixture.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/Documents.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QFile>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

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

/// How a queue is set up anew between two jobs of one connection.
struct ExchangeCase
{
    const char *behaviour;
    QStringList arguments; ///< of lpadmin
    bool isExchanged;
};

class ServerWithAQueueThatChanges : public Server, public testing::WithParamInterface<ExchangeCase>
{};

TEST_P(ServerWithAQueueThatChanges, GetsNoJobThatWasMadeForTheFormerPPD)
{
    ASSERT_TRUE(s_server->addQueue(u"own"_s, samplePPD(u"velkaro-px-t900"_s)));
    JobRequest request = job(u"own"_s);
    // From then on the server itself tells whether it is still the same.
    ASSERT_TRUE(QTest::qWaitFor([&] {
        request.ppd = *fetchQueuePPD(request.server, u"own"_s, m_guard);
        return !request.ppd->version.isNull();
    }));
    JobProgress progress;
    JobSubmission submission(request.server, m_guard);
    ASSERT_TRUE(submission.submit(request, progress));
    ASSERT_TRUE(s_server->lpadmin(QStringList{u"-p"_s, u"own"_s} + GetParam().arguments));
    const Result<> rehearsed = rehearseJob(request, m_guard);
    const auto receipt = submission.submit(request, progress);
    const qsizetype jobs = s_server->jobs(u"own"_s).size();
    EXPECT_TRUE(s_server->lpadmin({u"-x"_s, u"own"_s}));
    EXPECT_EQ(rehearsed.sentence(), receipt.sentence());
    if (!GetParam().isExchanged) {
        EXPECT_TRUE(receipt) << receipt.sentence().toStdString();
        return;
    }
    EXPECT_EQ(receipt.faultKind(), FaultKind::Exchanged);
    EXPECT_EQ(receipt.sentence(),
              u"Nothing was printed on own: The queue own was set up anew on the print server: it "
              "has another PPD, or other defaults."_s);
    EXPECT_EQ(jobs, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ServerWithAQueueThatChanges,
    testing::Values(ExchangeCase{"Driver", {u"-P"_s, samplePPD(u"velkaro-mx-j710dw"_s)}, true},
                    ExchangeCase{"Default", {u"-o"_s, u"Duplex=DuplexTumble"_s}, true},
                    ExchangeCase{"DefaultOfTheSameLength", {u"-o"_s, u"VKBrightness=1"_s}, true},
                    ExchangeCase{"NoPPDAnyMore", {u"-m"_s, u"raw"_s}, true},
                    ExchangeCase{"SamePPDAnew", {u"-P"_s, samplePPD(u"velkaro-px-t900"_s)}, false},
                    ExchangeCase{"Place", {u"-L"_s, u"Second floor"_s}, false},
                    ExchangeCase{
                        "DefaultOfTheQueueAlone", {u"-o"_s, u"job-sheets-default=none"_s}, false}),
    CaseName());

TEST_F(Server, RefusesAJobForAQueueThatIsClosed)
{
    const auto receipt = submitJob(job(u"closed"_s), m_guard);
    EXPECT_EQ(receipt.faultKind(), FaultKind::Refused);
    EXPECT_TRUE(receipt.sentence().startsWith(
        u"Nothing was printed on closed: The print server %1 refused: "_s.arg(s_server->address())))
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

TEST_F(Server, HoldsAJobThatAskedForItAndNothingIsSaid)
{
    JobRequest request = job(u"photo"_s);
    request.options = {{u"job-hold-until"_s, u"indefinite"_s}};
    const auto receipt = submitJob(request, m_guard);
    ASSERT_TRUE(receipt.isGood());
    EXPECT_EQ(receipt->notes, QStringList());
    EXPECT_EQ(s_server->jobAttributes(u"photo"_s, receipt->id).value(u"job-state-reasons"_s),
              u"job-hold-until-specified"_s);
}

TEST_F(Server, HoldsEveryJobOfAQueueAndItIsSaid)
{
    ASSERT_TRUE(s_server->addQueue(u"held"_s, samplePPD(u"velkaro-px-t900"_s)));
    ASSERT_TRUE(
        s_server->lpadmin({u"-p"_s, u"held"_s, u"-o"_s, u"job-hold-until-default=indefinite"_s}));
    const auto receipt = submitJob(job(u"held"_s), m_guard);
    ASSERT_TRUE(receipt.isGood());
    EXPECT_EQ(
        receipt->notes,
        QStringList{u"The server holds job %1 (job-hold-until-specified)."_s.arg(receipt->id)});
    ASSERT_TRUE(s_server->lpadmin({u"-x"_s, u"held"_s}));
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

TEST_F(Server, KeepsNoEmptyJobWhoseNumberNeverArrived)
{
    const QList<int> before = s_server->jobs(u"photo"_s);
    const Step passOn = [](ServedConnection &client) {
        CallGuard guard;
        ServerConnection real(s_server->address(), guard);
        real.request(readIppAnswer(client.body()).ipp, queueResource(u"photo"_s));
        EXPECT_TRUE(real.succeeded());
        return false; // and closes the connection
    };
    const ScriptedServer front({{"connect", {}, 1},
                                {"connect", {relay(s_server->port())}},
                                {"Create-Job", {readBody(), passOn}}});
    JobRequest request = job(u"photo"_s);
    request.server = front.address();
    EXPECT_EQ(submitJob(request, m_guard).faultKind(), FaultKind::Unreachable);
    QList<int> jobs = s_server->jobs(u"photo"_s);
    jobs.removeIf([&](int id) { return before.contains(id); });
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(s_server->waitForJob(u"photo"_s, jobs[0]), IPP_JSTATE_CANCELED);
}

// The server comes back with the job, of which it has a part, or without it.
TEST(ServerThatIsStartedAgain, WhileAJobIsSentPrintsNothingThatIsNotTold)
{
    PrintServer server;
    ASSERT_EQ(server.fault(), QString());
    ASSERT_TRUE(server.addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)));
    const QTemporaryDir folder;
    QFile endless(folder.filePath(u"large.ps"_s));
    ASSERT_TRUE(endless.open(QIODevice::WriteOnly) && endless.resize(4096LL * 1024 * 1024));
    JobRequest request;
    request.server = server.address();
    request.queue = u"photo"_s;
    request.documents = openedDocuments({endless.fileName()});
    std::optional<Result<JobReceipt>> receipt;
    const auto progress = std::make_shared<JobProgress>();
    QObject owner;
    new BackgroundCall(
        &owner, 4 * kServerTimeout, // which a busy machine may take to start the server
        [&](CallGuard &guard) -> BackgroundCall::Outcome {
            return [&, got = submitJob(request, guard, progress)] { receipt = got; };
        },
        nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return progress->bytes() > 0; }, 20000));
    server.crash();
    ASSERT_TRUE(server.restart());
    ASSERT_TRUE(QTest::qWaitFor([&] { return receipt.has_value(); }, 40000));
    const QString said = receipt->sentence();
    if (said.endsWith(u"and may be printed.")) { // it had begun with the part
        EXPECT_EQ(server.jobs(u"photo"_s).size(), 1);
        return;
    }
    EXPECT_TRUE(said.startsWith(u"Job %1 on photo was cancelled: "_s.arg(progress->id())) ||
                said.startsWith(u"Nothing was printed on photo: "))
        << said.toStdString();
    EXPECT_FALSE(QFile::exists(server.outputOf(u"photo"_s)));
}

} // namespace
