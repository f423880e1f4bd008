#pragma once

#include "dialog/cups/JobSending.h"

/// Finds out and settles what becomes of a job whose documents were not accepted: it is accepted
/// after all, or cancelled, or nobody knows. The receipt has the job's number and why it was not
/// accepted; its answer is made good, or says more. Talks to the server on a new connection, for no
/// longer than the guard's timeout at a time.
void settle(JobReceipt &receipt, Sent sent, const JobRequest &request, JobProgress &progress,
            CallGuard &guard);

/// The server has taken the job: notes it, and reads the job back.
void accept(JobReceipt &receipt, ServerConnection &connection, const JobRequest &request,
            JobProgress &progress);

/// What is said of a job that may have been printed, or not.
ServerAnswer perhapsPrinted(const QString &server, int id);
