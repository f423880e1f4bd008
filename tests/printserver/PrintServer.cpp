#include "tests/printserver/PrintServer.h"

#include "dialog/cups/OptionAttribute.h"
#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QThread>

#include <arpa/inet.h>
#include <csignal>
#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeout = 20000; // ms
constexpr int kLook = 20;       // ms between two looks at a state

QString programNamed(const QString &name)
{
    return QStandardPaths::findExecutable(
        name, {u"/usr/sbin"_s, u"/usr/bin"_s, u"/usr/local/sbin"_s, u"/sbin"_s});
}

/// The system's programs of the server, and room for backends of one's own.
bool linkPrograms(const QString &folder)
{
    const QDir system(u"/usr/lib/cups"_s);
    QDir own(folder);
    bool linked = own.mkpath(u"backend"_s);
    for (const QString &name : system.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (name != "backend"_L1)
            linked = QFile::link(system.filePath(name), own.filePath(name)) && linked;
    const QDir backends(system.filePath(u"backend"_s));
    for (const QString &name : backends.entryList(QDir::Files))
        linked = QFile::link(backends.filePath(name), own.filePath(u"backend/"_s + name)) && linked;
    return linked;
}

bool writeFile(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
}

QString userName()
{
    return QString::fromLocal8Bit(getpwuid(getuid())->pw_name);
}

QString groupName()
{
    return QString::fromLocal8Bit(getgrgid(getgid())->gr_name);
}

} // namespace

int freePort()
{
    const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    const bool bound =
        bind(descriptor, generic, length) == 0 && getsockname(descriptor, generic, &length) == 0;
    close(descriptor);
    return bound ? ntohs(address.sin_port) : 0;
}

PrintServer::PrintServer(QString access) : m_access(std::move(access)), m_port(freePort())
{
    if (programNamed(u"cupsd"_s).isEmpty())
        m_fault = u"cupsd is not installed"_s;
    else if (!writeConfiguration())
        m_fault = u"the server's folder cannot be written"_s;
    else if (!start())
        m_fault = u"cupsd does not start: "_s + QString::fromUtf8(m_process.readAll());
}

PrintServer::~PrintServer()
{
    stop();
}

void PrintServer::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate(); // by its process id
    if (!m_process.waitForFinished(kTimeout))
        m_process.kill();
    m_process.waitForFinished(kTimeout);
}

void PrintServer::crash()
{
    m_process.kill(); // by its process id
    m_process.waitForFinished(kTimeout);
}

bool PrintServer::restart()
{
    stop();
    return start();
}

qsizetype PrintServer::countOf(const QByteArray &operation) const
{
    QFile log(folder() + u"/log/access"_s);
    return log.open(QIODevice::ReadOnly) ? log.readAll().count(' ' + operation + ' ') : 0;
}

// The kernel goes on taking connections for a process that is stopped.
void PrintServer::holdAnswers()
{
    kill(static_cast<pid_t>(m_process.processId()), SIGSTOP);
}

void PrintServer::giveAnswers()
{
    kill(static_cast<pid_t>(m_process.processId()), SIGCONT);
}

QString PrintServer::address() const
{
    return u"127.0.0.1:%1"_s.arg(m_port);
}

bool PrintServer::writeConfiguration()
{
    const bool isRoot = geteuid() == 0;
    const QDir root(folder());
    for (const char *name :
         {"spool", "spool/tmp", "cache", "run", "run/certs", "log", "ppd", "out"})
        root.mkpath(QLatin1String(name));
    // As root, filters and devices run as "lp", which must get into the folder.
    const QString user = isRoot ? u"lp"_s : userName();
    const QString group = isRoot ? u"lp"_s : groupName();
    if (isRoot) {
        const passwd *lp = getpwnam("lp");
        QFile::setPermissions(folder(), QFile::Permissions(0x7755));
        for (const char *name : {"out", "spool", "spool/tmp", "cache", "run"})
            if (!lp || chown(QFile::encodeName(root.filePath(QLatin1String(name))).constData(),
                             lp->pw_uid, lp->pw_gid) != 0)
                return false;
    }
    const QString files =
        u"ServerRoot %1\nServerBin %1/bin\nRequestRoot %1/spool\nTempDir %1/spool/tmp\n"
        "CacheDir %1/cache\nStateDir %1/run\nServerKeychain %1/run/certs\n"
        "AccessLog %1/log/access\nErrorLog %1/log/error\nPageLog %1/log/page\n"
        "FileDevice Yes\nUser %2\nGroup %3\nSystemGroup root %4\n"_s.arg(folder(), user, group,
                                                                         groupName());
    const QString rules =
        u"Listen 127.0.0.1:%1\nListen %2\nBrowsing Off\nWebInterface "
        u"No\nLogLevel debug\nAccessLogLevel all\n"
        "DefaultAuthType None\nPreserveJobHistory Yes\nPreserveJobFiles Yes\nMaxJobs 0\n"
        "<Location />\nOrder allow,deny\nAllow all\n%3\n</Location>\n"
        "<Policy default>\nJobPrivateAccess all\nJobPrivateValues none\n"
        "<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n"_s.arg(
            QString::number(m_port), socketPath(), m_access);
    return linkPrograms(root.filePath(u"bin"_s)) &&
           writeFile(root.filePath(u"cups-files.conf"_s), files) &&
           writeFile(root.filePath(u"cupsd.conf"_s), rules);
}

bool PrintServer::addBackend(const QString &name, const QByteArray &script)
{
    // The server runs none that somebody else might have written.
    QFile file(folder() + u"/bin/backend/"_s + name);
    return file.open(QIODevice::WriteOnly) && file.write(script) == script.size() &&
           file.setPermissions(QFile::Permissions(0x5555));
}

bool PrintServer::start()
{
    const QDir root(folder());
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    // Also when this process ends without destructors.
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.start(programNamed(u"cupsd"_s), {u"-f"_s, u"-c"_s, root.filePath(u"cupsd.conf"_s),
                                               u"-s"_s, root.filePath(u"cups-files.conf"_s)});
    const QDeadlineTimer deadline(kTimeout);
    while (m_process.waitForStarted(kTimeout) && !deadline.hasExpired()) {
        CallGuard guard(std::chrono::milliseconds{1000});
        if (ServerConnection(address(), guard).isConnected())
            return true;
        if (m_process.waitForFinished(kLook))
            return false;
    }
    return false;
}

bool PrintServer::command(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(programNamed(program), QStringList{u"-h"_s, address()} + arguments);
    return process.waitForFinished(kTimeout) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

bool PrintServer::lpadmin(const QStringList &arguments)
{
    return command(u"lpadmin"_s, arguments);
}

QString PrintServer::outputOf(const QString &queue) const
{
    return folder() + u"/out/"_s + queue;
}

bool PrintServer::addQueue(const QString &queue, const QString &ppd)
{
    QStringList arguments{u"-p"_s, queue, u"-E"_s, u"-v"_s, u"file:"_s + outputOf(queue)};
    if (!ppd.isNull())
        arguments += {u"-P"_s, ppd};
    return lpadmin(arguments);
}

QList<int> PrintServer::jobs(const QString &queue)
{
    CallGuard guard;
    ServerConnection connection(address(), guard);
    IppHandle request = queueRequest(IPP_OP_GET_JOBS, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "all");
    const IppHandle response = connection.request(std::move(request), queueResource(queue));
    QList<int> numbers;
    for (ipp_attribute_t *id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER); id;
         id = ippFindNextAttribute(response.get(), "job-id", IPP_TAG_INTEGER))
        numbers += ippGetInteger(id, 0);
    return numbers;
}

QMap<QString, QString> PrintServer::jobAttributes(const QString &queue, int job)
{
    CallGuard guard;
    ServerConnection connection(address(), guard);
    IppHandle request = jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, queue, job);
    const IppHandle response = connection.request(std::move(request), queueResource(queue));
    QMap<QString, QString> attributes;
    for (ipp_attribute_t *one = ippFirstAttribute(response.get()); one;
         one = ippNextAttribute(response.get()))
        if (ippGetGroupTag(one) == IPP_TAG_JOB)
            attributes.insert(QString::fromUtf8(ippGetName(one)), attributeText(one));
    return attributes;
}

int PrintServer::waitForJob(const QString &queue, int job)
{
    const QDeadlineTimer deadline(kTimeout);
    while (!deadline.hasExpired()) {
        const int state = jobAttributes(queue, job).value(u"job-state"_s).toInt();
        if (state >= IPP_JSTATE_CANCELED)
            return state;
        QThread::msleep(kLook);
    }
    return 0;
}
