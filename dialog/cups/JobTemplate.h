#pragma once

#include "dialog/cups/IppAnswer.h"
#include "dialog/cups/JobAuthentication.h"
#include "dialog/job/JobRequest.h"

/// A request that has the job's title and options: to create the job, or to ask what would become
/// of it.
IppHandle jobTemplate(ipp_op_t operation, const JobRequest &job, const AuthInfo &who = {});
