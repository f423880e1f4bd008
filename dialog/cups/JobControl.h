#pragma once

#include "dialog/cups/JobStatus.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>

class ServerConnection;

/// A job at a server.
struct JobPlace
{
    QString server; ///< as in ServerConnection; null: the user's usual one
    QString queue;
    int id = 0;
};

/// What can be done to a job that is accepted.
enum class JobAction {
    Cancel,
    Hold,
    Release,
    Restart,
    Authenticate, ///< somebody is asked who prints (authenticateJob())
};

/// Whether the action makes sense for a job in the phase: a server refuses the others.
bool isOffered(JobAction action, JobPhase phase);

/// Asks the server where the job stands. A server that has forgotten the job is no fault
/// (JobPhase::Unknown). Adds to `requests` how many it took.
Result<JobStatus> askStatus(ServerConnection &connection, const JobPlace &job, int &requests);

/// The status with what the printer of the queue adds to it, where it can be asked.
JobStatus askPrinter(ServerConnection &connection, const QString &queue, const JobStatus &status);

/// Does it. A fault where the server does not do so. Blocks.
Result<> perform(JobAction action, const JobPlace &job, CallGuard &guard);
