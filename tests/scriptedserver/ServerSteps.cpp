#include "tests/scriptedserver/ServerSteps.h"

Step readBody(qint64 bytes)
{
    return [bytes](ServedConnection &connection) {
        const bool asked = !connection.expectsContinue() || !connection.body().isEmpty() ||
                           connection.write("HTTP/1.1 100 Continue\r\n\r\n");
        return asked && connection.readBody(bytes);
    };
}

Step write(const QByteArray &bytes)
{
    return [bytes](ServedConnection &connection) { return connection.write(bytes); };
}

Step drip(const QByteArray &bytes, std::chrono::milliseconds pause)
{
    return [bytes, pause](ServedConnection &connection) {
        for (const char byte : bytes)
            if (!connection.write(QByteArray(1, byte)) || !connection.hold(pause))
                return false;
        return true;
    };
}

Step flood(const QByteArray &bytes, qint64 most)
{
    return [bytes, most](ServedConnection &connection) {
        for (qint64 written = 0; written < most; written += bytes.size())
            if (!connection.write(bytes))
                return false;
        return true;
    };
}

Step hold(std::chrono::milliseconds time)
{
    return [time](ServedConnection &connection) { return connection.hold(time); };
}

Step relay(int port)
{
    return [port](ServedConnection &connection) { return connection.relay(port); };
}

Step closeConnection()
{
    return [](ServedConnection &) { return false; };
}

Step resetConnection()
{
    return [](ServedConnection &connection) {
        connection.reset();
        return false;
    };
}

Steps answerWith(const QByteArray &bytes)
{
    return {readBody(), write(bytes)};
}

QByteArray httpAnswer(const QByteArray &status, const QByteArray &type, const QByteArray &body)
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: " + type +
           "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray ippAnswer(const QByteArray &message)
{
    return httpAnswer("200 OK", "application/ipp", message);
}

Steps answerIpp(const QByteArray &message)
{
    return answerWith(ippAnswer(message));
}
