#pragma once

#include "dialog/cups/ServerSentences.h"
#include "dialog/job/JobRequest.h"
#include "dialog/work/CallGuard.h"

#include <chrono>

/// Begins when a job's creation is asked for.
struct CreationTime
{
    std::chrono::steady_clock::time_point begin = std::chrono::steady_clock::now();
};

/// Whether the exchange, which was to create a job, leaves open if the server has done so: it has
/// said neither yes nor no.
bool mayHaveCreated(const ExchangeEnd &end);

/// Cancels the empty job that the server has created and whose number never arrived: the user's
/// only one of this title on the queue that has no document and is no older than the creation, by
/// the server's own clock. Where there are several, one may be somebody else's, who is sending it:
/// then none is cancelled. The server prints nothing of an empty job, and drops it by itself later.
void cancelLostJob(const JobRequest &job, const CreationTime &time, CallGuard &guard);
