#pragma once

#include "dialog/work/Fault.h"

#include <QtCore/QString>

/// How an exchange with a server ended.
struct ExchangeEnd
{
    enum class Kind {
        Answered,     ///< in IPP: `status` and `text` are the server's own
        NotConnected, ///< nobody answers at the server's address
        Broken,       ///< the connection failed: `status` is errno
        Closed,       ///< the server closed the connection before it answered
        CutShort,     ///< the connection ended in the middle of an answer
        HttpStatus,   ///< with a status of HTTP alone, which is `status`
        WrongPassword,
        OtherCertificate, ///< than before: `text` is where that one is kept
        Unreadable,       ///< an answer that is not IPP, or not what was asked for
        TooLarge,
        NotStored, ///< the file for the answer took no more: `text` says why
        Silent,
        TooSlow,
        Cancelled,
    };

    Kind kind = Kind::Answered;
    int status = 0;
    QString text;
    bool isAboutJob = false; ///< "not found" means the job, and not its queue
};

/// The fault and the sentence for people of an exchange that did not succeed. `queue` is null where
/// the request was about none.
Fault faultOf(const ExchangeEnd &end, const QString &server, const QString &queue);

/// A server's own words as they are shown: one line of a sane length.
QString shownServerText(const QString &text);
