#pragma once

#include "dialog/cups/JobControl.h"

/// What becomes of a job that the server holds because it would be printed otherwise than it was
/// shown.
enum class TrialVerdict { Release, Cancel };

/// Does so. A fault names the job, which the server goes on holding. Blocks: call it in a
/// BackgroundCall.
Result<> endTrial(TrialVerdict verdict, const JobPlace &job, CallGuard &guard);

/// The fault where the server was given up.
Fault endlessTrial(TrialVerdict verdict, const JobPlace &job, const Fault &why);
