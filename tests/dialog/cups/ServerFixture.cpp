#include "tests/dialog/cups/ServerFixture.h"

#include "dialog/host/PPDFile.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"

using namespace Qt::StringLiterals;

void Server::SetUpTestSuite()
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

void Server::TearDownTestSuite()
{
    delete s_server;
    s_server = nullptr;
}

Documents Server::document(const QByteArray &text)
{
    const QString path = m_folder.filePath(u"document%1.ps"_s.arg(++m_documents));
    writeFile(path, "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n% " + text +
                        "\nshowpage\n%%EOF\n");
    return openedDocuments({path});
}

JobRequest Server::job(const QString &queue)
{
    JobRequest request;
    request.server = s_server->address();
    request.queue = queue;
    request.title = u"A & B <i>"_s;
    request.documents = document("first");
    return request;
}

QString nickname(const QueuePPD &queue)
{
    const auto opened = openPPD(queue.path());
    return opened ? ppdText(opened->ppd->nickname) : opened.sentence();
}
