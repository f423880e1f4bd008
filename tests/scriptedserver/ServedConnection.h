#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>

#include <chrono>

/// The server's end of one connection: a request is read as far as the script wants, and anything
/// at all may be written. Every call gives false once the client has gone, the server was told to
/// end, or the connection's life is over; then the connection is of no more use.
class ServedConnection
{
public:
    /// Takes the socket. `stop` becomes readable when the server ends.
    ServedConnection(int socket, int stop);
    ~ServedConnection();
    ServedConnection(const ServedConnection &) = delete;
    ServedConnection &operator=(const ServedConnection &) = delete;

    /// Reads the next request through the empty line after its headers.
    bool readHeaders();

    /// Reads on until `bytes` of the body are there, or all of it.
    bool readBody(qint64 bytes);

    QByteArray method() const { return m_requestLine.left(m_requestLine.indexOf(' ')); }
    QByteArray requestLine() const { return m_requestLine; }

    /// The request through the empty line after its headers, as it came.
    QByteArray head() const { return m_head; }

    /// What was read of the request's body, without the lines between chunks.
    QByteArray body() const { return m_body; }

    bool expectsContinue() const { return m_expectsContinue; }
    bool write(const QByteArray &bytes);

    /// Waits until the time is over, false when the client leaves before that. What it still sends
    /// is thrown away.
    bool hold(std::chrono::milliseconds time);

    /// Hands the connection on to a server on this port of the loopback, until either end closes
    /// it. That gets `first` and what was received and not read before all else.
    bool relay(int port, const QByteArray &first = {});

    /// Ends the connection with a reset, as a crashed machine's router would.
    void reset();

private:
    bool waitFor(short events, QDeadlineTimer deadline);
    bool receive();
    bool readLine(QByteArray &line);
    bool readPart(qint64 bytes);
    bool readChunk();
    void noteHeader(const QByteArray &line);

    int m_socket;
    int m_stop;
    QDeadlineTimer m_life;
    QByteArray m_received; // but not yet read
    QByteArray m_requestLine;
    QByteArray m_head;
    QByteArray m_body;
    qint64 m_bodyLeft = 0; // of the body or, where it comes in chunks, of nothing
    bool m_isChunked = false;
    bool m_expectsContinue = false;
};
