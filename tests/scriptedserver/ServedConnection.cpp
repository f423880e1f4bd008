#include "tests/scriptedserver/ServedConnection.h"

#include <arpa/inet.h>
#include <array>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::chrono::seconds kLife{60};
constexpr qint64 kLongestLine = 65536;

/// Passes on what has come; false at the end.
bool pass(int from, int to)
{
    std::array<char, 65536> buffer{};
    const ssize_t length = recv(from, buffer.data(), buffer.size(), 0);
    return length > 0 &&
           send(to, buffer.data(), static_cast<std::size_t>(length), MSG_NOSIGNAL) == length;
}

} // namespace

ServedConnection::ServedConnection(int socket, int stop)
    : m_socket(socket), m_stop(stop), m_life(kLife)
{}

ServedConnection::~ServedConnection()
{
    close(m_socket);
}

bool ServedConnection::waitFor(short events, QDeadlineTimer deadline)
{
    // A client that is gone may leave a full socket, on which nothing else would ever happen.
    const auto gone = static_cast<short>(events == POLLOUT ? POLLRDHUP : 0);
    std::array<pollfd, 2> watched{pollfd{m_socket, static_cast<short>(events | gone), 0},
                                  pollfd{m_stop, POLLIN, 0}};
    const qint64 left = qMin(deadline.remainingTime(), m_life.remainingTime());
    const int ready = poll(watched.data(), watched.size(), static_cast<int>(left));
    return ready > 0 && watched[1].revents == 0 && (watched[0].revents & events) != 0 &&
           (watched[0].revents & gone) == 0;
}

bool ServedConnection::receive()
{
    std::array<char, 65536> buffer{};
    if (!waitFor(POLLIN, m_life))
        return false;
    const ssize_t length = recv(m_socket, buffer.data(), buffer.size(), 0);
    if (length > 0)
        m_received.append(buffer.data(), length);
    return length > 0;
}

bool ServedConnection::readLine(QByteArray &line)
{
    qsizetype end = 0;
    while ((end = m_received.indexOf('\n')) < 0)
        if (m_received.size() > kLongestLine || !receive())
            return false;
    line = m_received.left(end).trimmed();
    m_received.remove(0, end + 1);
    return true;
}

void ServedConnection::noteHeader(const QByteArray &line)
{
    const QByteArray header = line.toLower();
    if (header.startsWith("content-length:"))
        m_bodyLeft = header.mid(15).trimmed().toLongLong();
    if (header.startsWith("transfer-encoding:"))
        m_isChunked = header.endsWith("chunked");
    if (header.startsWith("expect:"))
        m_expectsContinue = header.endsWith("100-continue");
}

bool ServedConnection::readHeaders()
{
    m_body.clear();
    m_bodyLeft = 0;
    m_isChunked = m_expectsContinue = false;
    if (!readLine(m_requestLine))
        return false;
    m_head = m_requestLine + "\r\n";
    for (QByteArray line; readLine(line);) {
        m_head += line + "\r\n";
        if (line.isEmpty())
            return true;
        noteHeader(line);
    }
    return false;
}

bool ServedConnection::readPart(qint64 bytes)
{
    while (m_received.isEmpty())
        if (!receive())
            return false;
    const QByteArray part = m_received.left(qMin(bytes, m_bodyLeft));
    m_received.remove(0, part.size());
    m_body += part;
    m_bodyLeft -= part.size();
    return true;
}

/// Begins the next chunk; after the last one the body is no longer in chunks.
bool ServedConnection::readChunk()
{
    QByteArray line;
    if (!readLine(line) || (line.isEmpty() && !readLine(line)))
        return false;
    m_bodyLeft = line.toLongLong(nullptr, 16);
    m_isChunked = m_bodyLeft > 0;
    return m_isChunked || readLine(line);
}

bool ServedConnection::readBody(qint64 bytes)
{
    while (m_body.size() < bytes && (m_bodyLeft > 0 || m_isChunked))
        if (m_bodyLeft > 0 ? !readPart(bytes - m_body.size()) : !readChunk())
            return false;
    return true;
}

bool ServedConnection::write(const QByteArray &bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        if (!waitFor(POLLOUT, m_life))
            return false;
        const ssize_t length =
            send(m_socket, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done),
                 MSG_NOSIGNAL | MSG_DONTWAIT);
        if (length < 0)
            return false;
        done += length;
    }
    return true;
}

bool ServedConnection::hold(std::chrono::milliseconds time)
{
    const QDeadlineTimer deadline(time);
    while (waitFor(POLLIN, deadline)) {
        std::array<char, 65536> buffer{};
        if (recv(m_socket, buffer.data(), buffer.size(), 0) <= 0)
            return false;
    }
    return deadline.hasExpired();
}

bool ServedConnection::relay(int port, const QByteArray &first)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port));
    const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    bool goesOn = connect(server, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
    const QByteArray begin = first + m_received;
    goesOn = goesOn && send(server, begin.constData(), static_cast<std::size_t>(begin.size()),
                            MSG_NOSIGNAL) == begin.size();
    std::array<pollfd, 3> watched{pollfd{m_stop, POLLIN, 0}, pollfd{m_socket, POLLIN, 0},
                                  pollfd{server, POLLIN, 0}};
    while (goesOn &&
           poll(watched.data(), watched.size(), static_cast<int>(m_life.remainingTime())) > 0) {
        goesOn = watched[0].revents == 0 && (watched[1].revents == 0 || pass(m_socket, server)) &&
                 (watched[2].revents == 0 || pass(server, m_socket));
    }
    close(server);
    return false;
}

void ServedConnection::reset()
{
    const linger now{1, 0};
    setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &now, sizeof now);
}
