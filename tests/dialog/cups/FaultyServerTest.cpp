#include "dialog/cups/Destinations.h"
#include "dialog/cups/JobSubmission.h"
#include "dialog/cups/QueuePPD.h"
#include "tests/printserver/PrintServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/Documents.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QElapsedTimer>
#include <QtNetwork/QTcpServer>

#include <gtest/gtest.h>

#include <chrono>
#include <ostream>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// Servers that are not there, or do not answer.

namespace {

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
    const char *behaviour;
    Result<> (*make)(const QString &server, CallGuard &guard);
};

void PrintTo(const Call &row, std::ostream *out)
{
    *out << row.behaviour;
}

class FaultyServer : public testing::TestWithParam<Call>
{};

TEST_P(FaultyServer, WithoutAnybodyIsUnreachable)
{
    CallGuard guard(500ms);
    const QString server = u"127.0.0.1:%1"_s.arg(freePort());
    const auto answer = GetParam().make(server, guard);
    EXPECT_EQ(answer.faultKind(), FaultKind::Unreachable);
    EXPECT_TRUE(answer.sentence().endsWith(u"The print server %1 cannot be reached."_s.arg(server)))
        << answer.sentence().toStdString();
}

TEST_P(FaultyServer, ThatIsSilentIsGivenUpInTime)
{
    const SilentServer server;
    CallGuard guard(500ms);
    QElapsedTimer clock;
    clock.start();
    const auto answer = GetParam().make(server.address(), guard);
    EXPECT_EQ(answer.faultKind(), FaultKind::Silent);
    EXPECT_TRUE(
        answer.sentence().endsWith(u"The print server %1 does not answer."_s.arg(server.address())))
        << answer.sentence().toStdString();
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
    CaseName());

} // namespace
