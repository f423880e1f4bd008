#pragma once

#include "dialog/cups/ServerConnection.h"

/// What has become of a job at its server.
enum class JobFate {
    Unknown,    ///< the server does not tell
    Forgotten,  ///< it has no such job
    Incomplete, ///< it waits for documents
    Accepted,   ///< it was taken: it waits for the printer, prints, or has been printed
    Cancelled,
    Aborted, ///< the server gave it up
};

/// The fate that an answer to Get-Job-Attributes tells of.
JobFate fateOf(ipp_t *job);

/// Asks the server for the job's fate.
JobFate askFate(ServerConnection &connection, const QString &queue, int jobId);

/// Lets the job go on that is held. False when the server did not do so.
bool releaseJob(ServerConnection &connection, const QString &queue, int jobId);

/// Cancels the job. False when the server did not do so.
bool cancelJob(ServerConnection &connection, const QString &queue, int jobId);
