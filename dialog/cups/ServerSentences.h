#pragma once

#include "dialog/work/Fault.h"

#include <QtCore/QString>

/// How an exchange with a server ended.
struct ExchangeEnd
{
    enum class Kind {
        Answered,     ///< in IPP: `status` and `text` are the server's own
        NotConnected, ///< nobody is there
        Broken,       ///< the connection: `status` is errno
        Closed,       ///< the connection, by the server and before it answered
        CutShort,     ///< in the middle of an answer
        HttpStatus,   ///< no answer but `status`
        Unreadable,   ///< an answer that is not IPP, or not what was asked for
        TooLarge,
        NotStored, ///< by us: `text` says why the file for the answer cannot take it
        Silent,
        TooSlow,
        Cancelled,
    };

    Kind kind = Kind::Answered;
    int status = 0;
    QString text;
    bool isAboutJob = false; ///< what is missing then is the job, and not its queue
};

/// The end, which is no success, as people are told of it. `queue` is null where none was asked
/// for.
Fault faultOf(const ExchangeEnd &end, const QString &server, const QString &queue);

/// A server's own words as they are shown: one line of a sane length.
QString shownServerText(const QString &text);
