#pragma once

#include "dialog/cups/ServerConnection.h"
#include "dialog/job/JobRequest.h"
#include "dialog/job/UnsaidSettings.h"
#include "dialog/work/Result.h"

/// Asks the server, before the job is created, what its queue would make of it: by the queue's
/// defaults, and by what it says to the job itself (Validate-Job). A fault where the server does
/// not answer; one that does not tell has no influence.
Result<QueueInfluence> lookAhead(ServerConnection &connection, const JobRequest &job);

/// The defaults in an answer about a queue, those that it adds to jobs, without "-default".
QList<JobOption> queueDefaults(ipp_t *printer);
