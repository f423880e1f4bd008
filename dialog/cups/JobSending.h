#pragma once

#include "dialog/cups/ServerConnection.h"
#include "dialog/job/JobProgress.h"
#include "dialog/job/JobRequest.h"

#include <optional>

/// What became of handing a job's documents to the server.
enum class Sent {
    Accepted,
    Refused, ///< the server answered no, or has not got all documents
    Lost,    ///< it has got all of them, and no answer came to the last one
    Changed, ///< a document became shorter or longer while it was sent
};

struct SentDocuments
{
    Sent sent = Sent::Accepted;
    std::optional<Fault> fault; ///< of the document that has changed
};

/// Sends the documents of the job that the server has created (JobProgress::id()). Where it did not
/// accept them, ServerConnection::lastFault() says why.
SentDocuments sendDocuments(ServerConnection &connection, const JobRequest &job,
                            JobProgress &progress);
