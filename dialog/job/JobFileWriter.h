#pragma once

#include "dialog/files/OutputFile.h"
#include "dialog/job/JobProgress.h"
#include "dialog/job/JobRequest.h"
#include "dialog/work/CallGuard.h"

#include <QtCore/QString>

/// Writes the job, all or nothing: what stood at the path before stays until the new file is whole,
/// and when the guard is cancelled. Never over a document of the job, and otherwise on these terms.
/// A fault is one of a document, of the file,
/// or that it was cancelled. Blocks: call it in a BackgroundCall, whose thread gets no SIGPIPE
/// then.
Result<> writeJobFile(const QString &path, const JobRequest &job, const OutputTerms &terms,
                      CallGuard &guard, JobProgress &progress);
