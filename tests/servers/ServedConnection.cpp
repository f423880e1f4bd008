#include "tests/servers/ServedConnection.h"

#include <array>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::chrono::seconds kLife{60};
constexpr qint64 kLongestLine = 65536;

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
    std::array<pollfd, 2> watched{pollfd{m_socket, events, 0}, pollfd{m_stop, POLLIN, 0}};
    const qint64 left = qMin(deadline.remainingTime(), m_life.remainingTime());
    const int ready = poll(watched.data(), watched.size(), static_cast<int>(left));
    return ready > 0 && watched[1].revents == 0 && (watched[0].revents & events) != 0;
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
    for (QByteArray line; readLine(line);) {
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

void ServedConnection::reset()
{
    const linger now{1, 0};
    setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &now, sizeof now);
}
