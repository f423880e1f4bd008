#pragma once

#include "dialog/job/JobProgress.h"
#include "dialog/job/JobRequest.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

/// A job that a server has accepted.
struct JobReceipt
{
    int id = 0; ///< the server's number for it
    /// What a person should know of the job: that it is held, or that the server did not keep a
    /// setting. One sentence each.
    QStringList notes;
    /// The server holds the job for us: it would be printed otherwise than it was shown, as the
    /// notes say, or that is not known. Somebody has to say what becomes of it.
    bool isOnTrial = false;
};

/// Looks what the queue would make of the job, creates it, sends its documents, and reads it back
/// to compare it with what was sent. A job whose documents did not all arrive is cancelled: nothing
/// half is printed. Blocks: call it in a BackgroundCall.
///
/// Where the queue would have its way against the job's settings, the job is sent held, and
/// released as soon as the comparison finds nothing.
///
/// Where the answer to the last document is late or lost, the server is asked for the job: it is
/// accepted when the server has all of it, and FaultKind::Unsettled when that cannot be known. It
/// is never sent a second time. Cancelling (CallGuard) leaves no job that is not wholly sent; one
/// that the server has accepted goes on.
Result<JobReceipt>
submitJob(const JobRequest &request, CallGuard &guard,
          const std::shared_ptr<JobProgress> &progress = std::make_shared<JobProgress>());

/// Looks at everything that submitJob() looks at before it creates the job, and creates none: the
/// fault that the job would end with. Blocks: call it in a BackgroundCall.
Result<> rehearseJob(const JobRequest &request, CallGuard &guard);

/// What is known of the job when the server was given up by whoever waited.
Result<JobReceipt> givenUpReceipt(const JobRequest &request, const JobProgress &progress);
