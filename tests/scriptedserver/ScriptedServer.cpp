#include "tests/scriptedserver/ScriptedServer.h"

#include "tests/scriptedserver/GoodAnswers.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cups/ipp.h>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kMostConnections = 100;
constexpr qint64 kIppHead = 8; // version, operation, request

QByteArray operationOf(const QByteArray &body)
{
    if (body.size() < kIppHead)
        return {};
    const int code = static_cast<uchar>(body[2]) << 8 | static_cast<uchar>(body[3]);
    return ippOpString(static_cast<ipp_op_t>(code));
}

} // namespace

ScriptedServer::ScriptedServer(Script script, int port)
    : m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)),
      m_stop(eventfd(0, EFD_CLOEXEC)),
      m_script(std::move(script))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<in_port_t>(port));
    socklen_t length = sizeof address;
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    // A port whose former server has just gone is free.
    const int reuse = 1;
    setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &reuse, sizeof reuse);
    if (bind(m_listener, generic, length) == 0 && listen(m_listener, SOMAXCONN) == 0 &&
        getsockname(m_listener, generic, &length) == 0)
        m_port = ntohs(address.sin_port);
    m_acceptor = std::thread([this] { accept(); });
}

ScriptedServer::~ScriptedServer()
{
    eventfd_write(m_stop, 1);
    m_acceptor.join();
    for (std::thread &connection : m_connections)
        connection.join();
    close(m_listener);
    close(m_stop);
}

QStringList creatingJob(const QStringList &afterwards)
{
    return QStringList{u"Get-Printer-Attributes"_s, u"Validate-Job"_s, u"Create-Job"_s} +
           afterwards;
}

QStringList printingToPhoto(const QStringList &afterwards)
{
    QStringList requests = creatingJob(afterwards);
    const QString ppd = u"GET /printers/photo.ppd"_s;
    requests.insert(requests.indexOf(u"Create-Job"_s), ppd);
    return QStringList{ppd} + requests;
}

QString ScriptedServer::address() const
{
    return u"127.0.0.1:%1"_s.arg(m_port);
}

QStringList ScriptedServer::requests() const
{
    const std::lock_guard lock(m_mutex);
    QStringList names;
    for (const Request &request : m_requests)
        names += request.name;
    return names;
}

QList<QByteArray> ScriptedServer::bodies(const QString &request) const
{
    const std::lock_guard lock(m_mutex);
    QList<QByteArray> found;
    for (const Request &one : m_requests)
        if (one.name == request)
            found += one.body;
    return found;
}

int ScriptedServer::openConnections() const
{
    const std::lock_guard lock(m_mutex);
    return m_open;
}

void ScriptedServer::accept()
{
    std::array<pollfd, 2> watched{pollfd{m_listener, POLLIN, 0}, pollfd{m_stop, POLLIN, 0}};
    while (m_connections.size() < kMostConnections &&
           poll(watched.data(), watched.size(), -1) > 0 && watched[1].revents == 0) {
        const int socket = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket >= 0)
            m_connections.emplace_back([this, socket] { serve(socket); });
    }
}

void ScriptedServer::serve(int socket)
{
    const auto count = [this](int change) {
        const std::lock_guard lock(m_mutex);
        m_open += change;
    };
    count(+1);
    {
        ServedConnection connection(socket, m_stop);
        bool goesOn = run(stepsFor("connect"), connection);
        while (goesOn)
            goesOn = serveRequest(connection);
    }
    count(-1);
}

/// The first rule for the request that is not used up; no steps where there is none.
Steps ScriptedServer::stepsFor(const QByteArray &request)
{
    const std::lock_guard lock(m_mutex);
    const auto rule = std::ranges::find_if(
        m_script, [&](const Rule &one) { return one.request == request && one.times > 0; });
    if (rule == m_script.end())
        return {};
    --rule->times;
    return rule->steps;
}

/// What was read is noted before anything is answered: a test may ask for it once it has the
/// answer.
bool ScriptedServer::run(const Steps &steps, ServedConnection &connection,
                         const QByteArray &request)
{
    const bool goesOn = std::ranges::all_of(steps, [&](const Step &step) {
        const bool done = step(connection);
        noteBody(request, connection.body());
        return done;
    });
    return goesOn && connection.readBody(kWhole);
}

void ScriptedServer::note(const QString &request)
{
    const std::lock_guard lock(m_mutex);
    m_requests += Request{request, {}};
}

/// For the latest request of the name.
void ScriptedServer::noteBody(const QByteArray &request, const QByteArray &body)
{
    const std::lock_guard lock(m_mutex);
    for (qsizetype index = m_requests.size() - 1; index >= 0; --index) {
        if (m_requests[index].name == QLatin1String(request)) {
            m_requests[index].body = body;
            return;
        }
    }
}

bool ScriptedServer::serveRequest(ServedConnection &connection)
{
    if (!connection.readHeaders())
        return false;
    const bool isIpp = connection.method() == "POST";
    const Steps steps = stepsFor(connection.method());
    if (!isIpp || !steps.isEmpty())
        note(QString::fromLatin1(connection.requestLine().chopped(sizeof " HTTP/1.1" - 1)));
    if (!steps.isEmpty())
        return run(steps, connection);
    if (!isIpp)
        return connection.write(httpAnswer("200 OK", "application/vnd.cups-ppd", goodPPD()));
    return readBody(kIppHead)(connection) &&
           serveOperation(operationOf(connection.body()), connection);
}

bool ScriptedServer::serveOperation(const QByteArray &operation, ServedConnection &connection)
{
    note(QString::fromLatin1(operation));
    Steps steps = stepsFor(operation);
    if (steps.isEmpty())
        steps = {readBody(), [this](ServedConnection &client) {
                     const QList<QByteArray> created = bodies(u"Create-Job"_s);
                     return client.write(ippAnswer(goodAnswer(
                         client.body(), created.isEmpty() ? QByteArray() : created.constLast())));
                 }};
    return run(steps, connection, operation);
}
