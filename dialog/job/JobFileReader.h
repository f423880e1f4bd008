#pragma once

#include "dialog/job/JobRequest.h"

#include <QtCore/QString>

/// Whether the file begins like one.
bool isJobFile(const Document &file);

/// Reads a job back; its documents are parts of the file. A file that is cut short, or whose
/// options must not be sent, is refused.
Result<JobRequest> readJobFile(const Document &file);
