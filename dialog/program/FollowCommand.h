#pragma once

#include "dialog/cups/JobControl.h"
#include "dialog/cups/JobSentence.h"

#include <chrono>

/// The first argument of the command, which only the program itself gives.
inline constexpr auto kFollowOption = "--follow";

/// Follows a job when its window has gone: tells of its end, and of trouble before that, by a
/// notification of the desktop. Ends with the job, when the time is over, and at once where nobody
/// shows notifications. The arguments are those of startFollowing().
int runFollowCommand(int &argc, char **argv);

/// Starts the command for the job, as a process that outlives this one. `server` as in JobPlace.
void startFollowing(const QString &server, const JobName &job,
                    std::chrono::seconds atMost = std::chrono::hours(1));
