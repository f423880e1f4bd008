#pragma once

#include "dialog/job/JobRequest.h"
#include "dialog/printing/PageCounter.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

// What is looked at before a job goes out that nobody sees: a server would take it, and print
// something else, or nothing.

/// The fault of documents that do not have all of the pages that the settings choose, or all of the
/// sides, where those are counted.
Result<> checkPages(const HostSettings &settings, const PageCount &count);

/// The same for documents that have each a job of its own: it names the first of them that does
/// not.
Result<> checkPagesOfEach(const HostSettings &settings, const PageCount &count,
                          const Documents &documents);

/// The cover pages that the job asks for, by their names.
QStringList coversOf(const JobRequest &job);

/// The fault of a job that asks for cover pages that are not among those of its server. A server
/// that tells none may have any.
Result<> checkCovers(const JobRequest &job, const QStringList &there);
