#pragma once

#include "dialog/work/CallGuard.h"
#include "dialog/work/Result.h"

struct JobPlace;

/// Tells the printer behind the queue who prints the job that is held for that: somebody is asked
/// (Passwords.h) for what the queue wants to know, up to three times. The server lets the job go on
/// then. Blocks: call it in a BackgroundCall.
Result<> authenticateJob(const JobPlace &job, CallGuard &guard);
