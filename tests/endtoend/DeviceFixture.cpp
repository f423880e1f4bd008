#include "tests/endtoend/DeviceFixture.h"

#include "dialog/cups/JobSubmission.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"

#include <QtCore/QFile>

using namespace Qt::StringLiterals;

namespace {

// What a backend says on standard error sets the printer's state, and its exit status says what
// becomes of job and printer (backend(7)).
constexpr auto kBackend = R"(#!/bin/sh
[ $# -eq 0 ] && { echo 'direct probe "Probe" "Probe"'; exit 0; }
cat ${6:+"$6"} > /dev/null
case "$DEVICE_URI" in
*/empty)
    echo 'ERROR: The multi-purpose tray is empty' >&2
    echo 'STATE: +media-empty-error' >&2
    while [ ! -e @FLAG@ ]; do sleep 0.1; done
    echo 'STATE: -media-empty-error' >&2 ;;
*/retry) echo 'ERROR: No route to the printer' >&2; exit 1 ;;
*/password)
    [ "$AUTH_USERNAME:$AUTH_PASSWORD" = anna:s3cret ] && exit 0
    echo 'ATTR: auth-info-required=username,password' >&2; exit 2 ;;
*/hold) exit 3 ;;
*/stop) echo 'ERROR: The carriage is blocked' >&2; exit 4 ;;
*/cancel) exit 5 ;;
esac
exit 0
)";

const QStringList kQueues{u"finish"_s, u"empty"_s, u"retry"_s, u"password"_s,
                          u"hold"_s,   u"stop"_s,  u"cancel"_s};

} // namespace

PrintServer *DeviceFixture::s_server = nullptr;

void DeviceFixture::SetUpTestSuite()
{
    s_server = new PrintServer;
    ASSERT_TRUE(s_server->fault().isNull()) << s_server->fault().toStdString();
    const QByteArray flag = QFile::encodeName(s_server->outputOf(u"go-on"_s));
    ASSERT_TRUE(s_server->addBackend(u"probe"_s, QByteArray(kBackend).replace("@FLAG@", flag)));
    for (const QString &queue : kQueues)
        ASSERT_TRUE(s_server->lpadmin({u"-p"_s, queue, u"-E"_s, u"-v"_s, u"probe:/"_s + queue}));
}

void DeviceFixture::TearDownTestSuite()
{
    delete s_server;
    s_server = nullptr;
}

void DeviceFixture::SetUp()
{
    ASSERT_TRUE(s_server && s_server->fault().isNull());
    QFile::remove(s_server->outputOf(u"go-on"_s));
}

void DeviceFixture::TearDown()
{
    EXPECT_TRUE(s_server->command(u"cancel"_s, {u"-a"_s}));
}

QString DeviceFixture::document()
{
    QString path = m_folder.filePath(u"document.ps"_s);
    writeFile(path, "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\nshowpage\n%%EOF\n");
    return path;
}

int DeviceFixture::print(const QString &queue)
{
    JobRequest request;
    request.server = server().address();
    request.queue = queue;
    request.title = u"A test"_s;
    request.documents = openedDocuments({document()});
    CallGuard guard;
    const Result<JobReceipt> receipt = submitJob(request, guard);
    EXPECT_TRUE(receipt) << receipt.sentence().toStdString();
    return receipt ? receipt->id : 0;
}

void DeviceFixture::continueDevices()
{
    writeFile(s_server->outputOf(u"go-on"_s), "go on");
}
