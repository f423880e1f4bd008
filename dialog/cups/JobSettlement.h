#pragma once

#include "dialog/cups/JobSending.h"

/// Finds out what becomes of a job whose documents were not accepted, and puts it in order. It
/// turns out to be accepted after all, or it is cancelled, or its fate stays unknown.
///
/// The receipt comes with the job's number and the fault of sending. A job that was accepted after
/// all leaves no fault in it; otherwise the fault says what has become of the job. Talks to the
/// server on a new connection, for no longer than the guard's timeout at a time.
void settle(JobReceipt &receipt, Sent sent, const JobRequest &request, JobProgress &progress,
            CallGuard &guard);

/// The server has taken the job: notes it, and reads the job back.
void accept(JobReceipt &receipt, ServerConnection &connection, const JobRequest &request,
            JobProgress &progress);

/// What is said of a job that may have been printed, or not.
ServerAnswer perhapsPrinted(const QString &server, int id);
