#include "dialog/cups/QueuePPD.h"
#include "dialog/files/TemporaryFile.h"
#include "tests/dialog/cups/ServerFixture.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QScopeGuard>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

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

TEST_F(Server, HasNoQueueOfANameThatNoneCanHave)
{
    const auto queue = fetchQueuePPD(s_server->address(), QString(5000, u'x'), m_guard);
    EXPECT_EQ(queue.faultKind(), FaultKind::NotFound);
    EXPECT_EQ(queue.sentence(), u"The print server %1 has no queue %2…."_s.arg(s_server->address(),
                                                                               QString(300, u'x')));
}

// A folder that is full but for less than what is usually written at once.
TEST_F(Server, SaysThatTheTemporaryFolderTakesNotAllOfAPPD)
{
    const QString server = s_server->address();
    const auto whole = fetchQueuePPD(server, u"photo"_s, m_guard);
    ASSERT_TRUE(whole) << whole.sentence().toStdString();
    const auto size = QFileInfo(whole->path()).size();
    ASSERT_GT(size, 10000);
    const FileSizeLimit limit(static_cast<rlim_t>(size - 1));
    const auto queue = fetchQueuePPD(server, u"photo"_s, m_guard);
    EXPECT_EQ(queue.faultKind(), FaultKind::Refused);
    EXPECT_EQ(queue.sentence(),
              u"What the print server %1 sends cannot be kept in the temporary folder %2: "
              "File too large."_s.arg(server, QString::fromLocal8Bit(temporaryFolder())));
}

} // namespace
