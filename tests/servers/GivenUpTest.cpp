#include "dialog/cups/JobSubmission.h"
#include "dialog/cups/QueuePPD.h"
#include "dialog/files/TemporaryFile.h"
#include "dialog/work/BackgroundCall.h"
#include "tests/built/BuiltFiles.h"
#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/IppBytes.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/Documents.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QScopeGuard>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <optional>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// --- A thread that nobody waits for any more

struct Endless
{
    const char *behaviour;
    Rule rule;
};

void PrintTo(const Endless &row, std::ostream *out)
{
    *out << row.behaviour;
}

class AGivenUpCall : public testing::TestWithParam<Endless>
{};

TEST_P(AGivenUpCall, EndsWithItsThreadAndItsConnection)
{
    const ScriptedServer server({GetParam().rule});
    auto owner = std::make_unique<QObject>();
    new BackgroundCall(owner.get(), kServerTimeout,
                       [address = server.address()](CallGuard &guard) -> BackgroundCall::Outcome {
                           static_cast<void>(fetchQueuePPD(address, u"photo"_s, guard));
                           return {};
                       },
                       {});
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.openConnections() == 1; }));
    const bool isAsked = GetParam().rule.request != "connect";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isAsked || !server.requests().isEmpty(); }));
    owner.reset();
    EXPECT_TRUE(waitForBackgroundThreads(kServerTimeout / 2));
    EXPECT_TRUE(QTest::qWaitFor([&] { return server.openConnections() == 0; }));
}

constexpr qint64 kEndless = 1LL << 40;

INSTANTIATE_TEST_SUITE_P(
    Table, AGivenUpCall,
    testing::Values(Endless{"OfAServerThatIsSilent", {"connect", {hold()}}},
                    Endless{"OfAServerThatTakesARequest", {"GET", {hold()}}},
                    Endless{"OfHeaders",
                            {"GET",
                             {write("HTTP/1.1 200 OK\r\n"),
                              flood(QByteArray("X-More: more\r\n").repeated(1000), kEndless)}}},
                    Endless{"OfGoAheads",
                            {"GET",
                             {flood(QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(1000),
                                    kEndless)}}},
                    Endless{"OfBytesOneByOne",
                            {"GET",
                             {write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n"),
                              drip(QByteArray(100000, '*'), 10ms)}}}),
    CaseName());

TEST(ACancelledCall, WaitsForTheNumberOfTheJobThatItHasToCancel)
{
    std::atomic<bool> isCancelled = false;
    const Step afterTheCancelling = [&](ServedConnection &connection) {
        while (!isCancelled)
            if (!connection.hold(1ms))
                return false;
        return true;
    };
    const ScriptedServer server({{"Create-Job",
                                  {readBody(), afterTheCancelling,
                                   write(ippAnswer(IppBytes()
                                                       .group(IPP_TAG_JOB)
                                                       .integer(IPP_TAG_INTEGER, "job-id", kGoodJob)
                                                       .ended()))}}});
    JobRequest job;
    job.server = server.address();
    job.queue = u"photo"_s;
    job.documents = openedDocuments({samplePPD(u"velkaro-px-t900"_s)}); // any file
    std::optional<Result<JobReceipt>> receipt;
    const auto progress = std::make_shared<JobProgress>();
    QObject owner;
    auto *call = new BackgroundCall(
        &owner, 10 * kServerTimeout,
        [job, progress, &receipt](CallGuard &guard) -> BackgroundCall::Outcome {
            return [got = submitJob(job, guard, progress), &receipt] { receipt = got; };
        },
        {});
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.requests() == creatingJob(); }));
    call->cancel();
    isCancelled = true;
    ASSERT_TRUE(QTest::qWaitFor([&] { return receipt.has_value(); }));
    EXPECT_EQ(progress->id(), kGoodJob);
    EXPECT_EQ(receipt->faultKind(), FaultKind::Cancelled);
    EXPECT_EQ(server.requests(), creatingJob({u"Cancel-Job"_s}));
}

// --- A temporary folder that takes no PPD

QString addressedBy(const char *text, const ScriptedServer &server)
{
    return QString::fromUtf8(text).replace(u"%1"_s, server.address());
}

TEST(ATemporaryFolder, ThatTakesNoFilesIsNamed)
{
    const QByteArray common = qgetenv("TMPDIR");
    const auto restore = qScopeGuard(
        [&common] { common.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", common); });
    qputenv("TMPDIR", "/proc");
    const ScriptedServer server;
    CallGuard guard;
    const auto queue = fetchQueuePPD(server.address(), u"photo"_s, guard);
    EXPECT_EQ(queue.faultKind(), FaultKind::Refused);
    EXPECT_TRUE(queue.sentence().startsWith(addressedBy(
        "What the print server %1 sends cannot be kept in the temporary folder /proc: ", server)))
        << queue.sentence().toStdString();
}

// A limit for files stands for a full disk: nobody can fill one without harm.
TEST(ATemporaryFolder, ThatIsFullIsNamed)
{
    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const auto restore = qScopeGuard([&] {
        setrlimit(RLIMIT_FSIZE, &usual);
        std::signal(SIGXFSZ, handler);
    });
    const rlimit small{8192, usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const ScriptedServer server;
    CallGuard guard;
    const auto queue = fetchQueuePPD(server.address(), u"photo"_s, guard);
    EXPECT_EQ(queue.sentence(),
              addressedBy("What the print server %1 sends cannot be kept in the temporary folder "
                          "%2: File too large.",
                          server)
                  .replace(u"%2"_s, QString::fromLocal8Bit(temporaryFolder())));
}

} // namespace
