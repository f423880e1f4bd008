#pragma once

#include "dialog/cups/JobSending.h"
#include "dialog/cups/JobSubmission.h"

/// Finds out and settles what becomes of a job whose documents were not accepted: it is accepted
/// after all, or cancelled, or nobody knows. `why` says why it was not accepted, the progress has
/// its number. Talks to the server on a new connection, for no longer than the guard's timeout at a
/// time.
Result<JobReceipt> settle(const Fault &why, Sent sent, const JobRequest &request,
                          JobProgress &progress, CallGuard &guard);

/// The server has taken the job: notes it, reads the job back, and releases one that is on trial
/// when it is as it was shown.
JobReceipt accept(ServerConnection &connection, const JobRequest &request, JobProgress &progress);

/// A new connection; a server that is being started again is waited for, as long as the guard
/// allows.
std::unique_ptr<ServerConnection> connectAgain(const QString &server, CallGuard &guard);

/// What is said of a job that may have been printed, or not.
Fault perhapsPrinted(const QString &server, const QString &queue, int id);

/// Why nothing of a job came to the queue, and that it did not. What the user has done himself, or
/// a document is to blame for, is as it was.
Fault notPrinted(const Fault &why, const QString &queue);
