#pragma once

#include <QtCore/QString>

/// Why a call to a print server came to nothing.
enum class ServerFault {
    None,
    Unreachable,   ///< no connection
    Silent,        ///< connected, but no answer within the time limit
    NotFound,      ///< there is no such queue
    Refused,       ///< the server answered no
    NeedsPassword, ///< the server asks for a password, which is never sent
    Document,      ///< a document cannot be read; the server was not asked
    Unsettled,     ///< the job may have been printed or not; the server does not tell
    Cancelled,     ///< the user did not want to wait any longer
};

/// What became of a call: no fault, or a fault and one sentence for people.
struct ServerAnswer
{
    ServerFault fault = ServerFault::None;
    QString sentence;

    bool isGood() const { return fault == ServerFault::None; }
};
