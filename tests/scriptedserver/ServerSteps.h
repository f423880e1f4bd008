#pragma once

#include "tests/scriptedserver/ServedConnection.h"

#include <QtCore/QList>

#include <functional>
#include <limits>

/// One thing that a server does with a connection; false ends the connection. What a script lacks
/// is a lambda away.
using Step = std::function<bool(ServedConnection &)>;
using Steps = QList<Step>;

inline constexpr qint64 kWhole = std::numeric_limits<qint64>::max();

/// Reads so much of the request's body, asking for it first where the client waits to be asked.
Step readBody(qint64 bytes = kWhole);

Step write(const QByteArray &bytes);

/// Writes one byte at a time with a pause after each.
Step drip(const QByteArray &bytes, std::chrono::milliseconds pause);

/// Writes the bytes again and again, up to `most` bytes in all.
Step flood(const QByteArray &bytes, qint64 most);

/// Does nothing until the client leaves, or until the time is over and the next step follows.
Step hold(std::chrono::milliseconds time = std::chrono::minutes(1));

/// Lets a server on this port of the loopback do the rest.
Step relay(int port);

Step closeConnection();

/// Closes it with a reset.
Step resetConnection();

/// Reads the whole request and answers with these bytes.
Steps answerWith(const QByteArray &bytes);

/// Headers and body of an HTTP answer, as long as it says; `status` as in "404 Not Found".
QByteArray httpAnswer(const QByteArray &status, const QByteArray &type, const QByteArray &body);

/// The same of an IPP message that is fine as far as HTTP goes.
QByteArray ippAnswer(const QByteArray &message);
Steps answerIpp(const QByteArray &message);
