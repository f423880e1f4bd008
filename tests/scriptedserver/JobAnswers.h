#pragma once

#include "tests/scriptedserver/ServerSteps.h"

#include <cups/ipp.h>

/// Tells that job kGoodJob stands there: its `job-state-reasons`, and the printer's message (null:
/// none).
Steps jobInState(ipp_jstate_t state, const char *reason, const char *message = nullptr);
