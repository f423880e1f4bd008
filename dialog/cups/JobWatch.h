#pragma once

#include "dialog/cups/JobControl.h"

#include <optional>

/// How a job is watched: by a subscription to its events, where its server has such, and by asking
/// for the job itself. A value, so that a call that was given up disturbs none that follows.
struct JobWatch
{
    int subscription = 0;   ///< its number at the server; 0: none
    int lastEvent = 0;      ///< the number of the last event that was heard of
    bool isRefused = false; ///< the server has no subscriptions, or none for this job
    int skipped = 0;        ///< looks since the job itself was asked for

    bool operator==(const JobWatch &) const = default;
};

/// What a look at a job came to.
struct JobLook
{
    JobStatus status;
    JobWatch watch;   ///< for the next look
    int requests = 0; ///< that the server was sent
};

/// Looks where the job stands that stood at `last`. Where the server tells that nothing has
/// happened, that is one small request; what events do not tell of comes to light every fifth look.
/// A server that has forgotten the subscription, since it was started again, is asked for the job
/// and for another one. Blocks: call it in a BackgroundCall.
Result<JobLook> lookAt(const JobPlace &job, const JobWatch &watch,
                       const std::optional<JobStatus> &last, CallGuard &guard);
