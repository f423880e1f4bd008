#include "tests/endtoend/PrintServerFixture.h"

#include "tests/built/BuiltFiles.h"

#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

using namespace Qt::StringLiterals;

PrintServer *PrintServerFixture::s_server = nullptr;

void PrintServerFixture::SetUpTestSuite()
{
    s_server = new PrintServer;
    ASSERT_TRUE(s_server->fault().isNull()) << s_server->fault().toStdString();
    ASSERT_TRUE(s_server->addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)));
}

void PrintServerFixture::TearDownTestSuite()
{
    delete s_server;
    s_server = nullptr;
}

void PrintServerFixture::SetUp()
{
    ASSERT_TRUE(s_server && s_server->fault().isNull());
    m_before = s_server->jobs(u"photo"_s);
    QFile::remove(s_server->outputOf(u"photo"_s));
}

QString PrintServerFixture::pdf(const QString &name)
{
    QString path = m_folder.filePath(name);
    QPdfWriter writer(path);
    QPainter painter(&writer);
    painter.drawRect(100, 100, 500, 500);
    painter.end();
    return path;
}

QList<int> PrintServerFixture::newJobs() const
{
    QList<int> jobs;
    for (const int job : s_server->jobs(u"photo"_s))
        if (!m_before.contains(job))
            jobs += job;
    return jobs;
}

QByteArray PrintServerFixture::printed() const
{
    QFile file(s_server->outputOf(u"photo"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
