#pragma once

#include <QtCore/QString>

/// What kind of thing has failed.
enum class FaultKind {
    Request,   ///< what was asked for cannot be done: a wrong option, setting or script
    PPD,       ///< a PPD cannot be used
    NoPrinter, ///< none was named, and the server has no default one
    PlugIn,    ///< the plug-in cannot be used
    Vetoed,    ///< a check stopped the job
    Document,  ///< a document cannot be read; no server was asked for it
    Output,    ///< a file cannot be written, or exists already
    Cancelled, ///< the user did not want to wait any longer
    // A print server:
    Unreachable,   ///< no connection
    Silent,        ///< connected, but no answer within the time limit
    NotFound,      ///< there is no such queue
    Refused,       ///< the server answered no
    NeedsPassword, ///< the server asks for a password, and was given none, or a wrong one
    Untrusted,     ///< the server shows another certificate than before
    Exchanged,     ///< the queue has another PPD by now than the job was made for
    Unsettled,     ///< the job may have been printed or not; the server does not tell
};

/// Why something failed: for programs, and one sentence for people.
struct Fault
{
    FaultKind kind = FaultKind::Request;
    QString sentence;

    bool operator==(const Fault &) const = default;
};
