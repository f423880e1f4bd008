#include "dialog/cups/Destinations.h"
#include "tests/dialog/cups/ServerFixture.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QScopeGuard>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

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
    EXPECT_EQ(usual, u"photo"_s) << "the server's own";
}

} // namespace
