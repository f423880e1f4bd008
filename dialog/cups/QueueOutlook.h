#pragma once

#include "dialog/cups/ServerConnection.h"
#include "dialog/job/JobRequest.h"
#include "dialog/job/UnsaidSettings.h"
#include "dialog/work/Result.h"

/// Asks the server on what terms the queue takes jobs. A fault where it does not answer; where it
/// does not tell, there are none.
Result<QueueTerms> askTerms(ServerConnection &connection, const QString &queue);

/// Asks the server, before the job is created, what its queue would make of it: by the defaults in
/// its terms, and by what it says to the job itself (Validate-Job). A fault where the server does
/// not answer; one that does not tell has no influence.
Result<QueueInfluence> lookAhead(ServerConnection &connection, const JobRequest &job,
                                 const QueueTerms &terms);

/// The terms in an answer about a queue.
QueueTerms termsOf(ipp_t *printer);

/// What an answer must have for that: as `requested-attributes`.
const QList<QByteArray> &termsAttributes();
