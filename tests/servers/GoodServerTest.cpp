#include "dialog/cups/Destinations.h"
#include "dialog/cups/IppAnswer.h"
#include "dialog/cups/JobSubmission.h"
#include "dialog/cups/QueuePPD.h"
#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// What every table of misbehaviours stands on: without a script nothing is wrong.

TEST(ScriptedServerTest, WithoutAScriptListsItsQueue)
{
    const ScriptedServer server;
    CallGuard guard;
    const auto list = listDestinations(server.address(), guard);
    EXPECT_EQ(list.sentence(), QString());
    ASSERT_EQ(list->size(), 1);
    EXPECT_EQ((*list)[0].name, (QueueName{u"photo"_s, {}}));
    EXPECT_EQ((*list)[0].description, u"The good printer"_s);
    EXPECT_EQ(serverDefault(server.address(), guard)->queue, u"photo"_s);
}

TEST(ScriptedServerTest, WithoutAScriptGivesThePPD)
{
    const ScriptedServer server;
    CallGuard guard;
    const auto queue = fetchQueuePPD(server.address(), u"photo"_s, guard);
    ASSERT_TRUE(queue) << queue.sentence().toStdString();
    EXPECT_EQ(readFile(queue->path()), goodPPD());
    EXPECT_EQ(server.requests(), QStringList{u"GET /printers/photo.ppd"_s});
}

TEST(ScriptedServerTest, WithoutAScriptTakesAJobAsItWasSent)
{
    const ScriptedServer server;
    const QTemporaryDir folder;
    JobRequest job;
    job.server = server.address();
    job.queue = u"photo"_s;
    job.options = {{u"VKMediaType"_s, u"Glossy"_s}, {u"copies"_s, u"2"_s}};
    writeFile(folder.filePath(u"first.pdf"_s), QByteArray(100000, '1'));
    writeFile(folder.filePath(u"second.pdf"_s), "second");
    job.documents =
        openedDocuments({folder.filePath(u"first.pdf"_s), folder.filePath(u"second.pdf"_s)});
    CallGuard guard;
    const auto receipt = submitJob(job, guard);
    EXPECT_EQ(receipt.sentence(), QString());
    EXPECT_EQ(receipt->id, kGoodJob);
    EXPECT_EQ(receipt->notes, QStringList());
    EXPECT_EQ(server.requests(),
              creatingJob({u"Send-Document"_s, u"Send-Document"_s, u"Get-Job-Attributes"_s}));
    const QList<QByteArray> sent = server.bodies(u"Send-Document"_s);
    ASSERT_EQ(sent.size(), 2);
    EXPECT_TRUE(sent[0].endsWith(QByteArray(100000, '1')));
    EXPECT_TRUE(sent[1].endsWith("second"));
}

TEST(ScriptedServerTest, IsAskedToTellOfTheJobsEndInASubscription)
{
    const ScriptedServer server;
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"first.pdf"_s), "first");
    JobRequest job;
    job.server = server.address();
    job.queue = u"photo"_s;
    job.options = {{u"notify-recipient-uri"_s, u"mailto:me@example.com"_s},
                   {u"job-sheets"_s, u"standard,none"_s}};
    job.documents = openedDocuments({folder.filePath(u"first.pdf"_s)});
    CallGuard guard;
    const auto receipt = submitJob(job, guard);
    ASSERT_TRUE(receipt) << receipt.sentence().toStdString();
    EXPECT_EQ(receipt->notes, QStringList()) << "no attribute of the job is missed";
    const IppHandle request = readIppAnswer(server.bodies(u"Create-Job"_s).value(0)).ipp;
    ipp_attribute_t *recipient =
        ippFindAttribute(request.get(), "notify-recipient-uri", IPP_TAG_URI);
    ASSERT_NE(recipient, nullptr);
    EXPECT_EQ(ippGetGroupTag(recipient), IPP_TAG_SUBSCRIPTION);
    EXPECT_STREQ(ippGetString(recipient, 0, nullptr), "mailto:me@example.com");
    ipp_attribute_t *covers = ippFindAttribute(request.get(), "job-sheets", IPP_TAG_KEYWORD);
    ASSERT_NE(covers, nullptr);
    EXPECT_EQ(ippGetGroupTag(covers), IPP_TAG_JOB);
    EXPECT_EQ(ippGetCount(covers), 2);
}

} // namespace
