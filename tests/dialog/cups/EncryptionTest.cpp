#include "dialog/cups/Certificates.h"
#include "dialog/cups/Destinations.h"
#include "dialog/cups/JobSubmission.h"
#include "tests/dialog/cups/ServerFixture.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QFile>
#include <QtCore/QScopeGuard>

#include <gtest/gtest.h>

#include <cups/cups.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

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

/// A server at the address of another one, which was there before.
TEST_F(Server, WithAnotherCertificateGetsNothingUntilItIsTrusted)
{
    const auto restore = qScopeGuard([] { cupsSetEncryption(HTTP_ENCRYPTION_IF_REQUESTED); });
    cupsSetEncryption(HTTP_ENCRYPTION_REQUIRED);
    PrintServer other;
    ASSERT_EQ(other.fault(), QString());
    const int port = freePort();
    const auto listAt = [&](const PrintServer &server) {
        const ScriptedServer front({{"connect", {relay(server.port())}}}, port);
        EXPECT_EQ(front.address(), u"127.0.0.1:%1"_s.arg(port));
        return listDestinations(front.address(), m_guard);
    };
    const QString name = u"127.0.0.1:%1"_s.arg(port);
    EXPECT_TRUE(listAt(*s_server)) << "the first certificate is kept";
    EXPECT_TRUE(QFile::exists(certificatePath(name))) << certificatePath(name).toStdString();
    EXPECT_TRUE(listAt(*s_server));
    const auto changed = listAt(other);
    EXPECT_EQ(changed.faultKind(), FaultKind::Untrusted);
    EXPECT_EQ(
        changed.sentence(),
        u"The print server %1 shows another certificate than before, and may be another "
        "server: nothing was sent. The one before is in %2."_s.arg(name, certificatePath(name)));
    EXPECT_FALSE(listAt(other)) << "nor the next time";
    trustNextCertificate(name);
    EXPECT_TRUE(listAt(other));
    EXPECT_TRUE(listAt(other)) << "it is the one that is known now";
    EXPECT_FALSE(listAt(*s_server));
}

} // namespace
