#pragma once

#include "dialog/job/JobProgress.h"
#include "dialog/job/JobRequest.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/ServerFault.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

/// What became of a job. Without a fault it has been accepted, and `id` is its number.
struct JobReceipt
{
    int id = 0;
    ServerAnswer answer;
    /// What a person should know of an accepted job: that it is held, or that the server did not
    /// keep a setting. One sentence each.
    QStringList notes;
};

/// Creates the job, sends its documents, and reads the job back to compare it with what was sent.
/// A job whose documents did not all arrive is cancelled: nothing half is printed. Blocks: call it
/// in a BackgroundCall.
///
/// Where the answer to the last document is late or lost, the server is asked for the job: it is
/// accepted when the server has all of it, and ServerFault::Unsettled when that cannot be known. It
/// is never sent a second time. Cancelling (CallGuard) leaves no job that is not wholly sent; one
/// that the server has accepted goes on.
JobReceipt
submitJob(const JobRequest &request, CallGuard &guard,
          const std::shared_ptr<JobProgress> &progress = std::make_shared<JobProgress>());

/// The receipt for a server that was given up by whoever waited.
JobReceipt givenUpReceipt(const JobRequest &request, const JobProgress &progress);
