#pragma once

#include "dialog/cups/JobWatch.h"

#include <QtCore/QList>
#include <QtCore/QMap>

/// Jobs of one queue that are followed together.
struct JobGroup
{
    QString server; ///< as in JobPlace
    QString queue;
    QList<int> ids; ///< of those that are not at their end
};

/// What was found out about a group so far. A value, as JobWatch is.
struct GroupWatch
{
    QMap<int, JobStatus> last; ///< how the jobs stood that were told of
    int looks = 0;
    JobWatch job; ///< of the one that is left
};

/// What a look at the jobs came to.
struct GroupLook
{
    QMap<int, JobStatus> statuses; ///< of those that the server told of
    JobWatch job;
    int requests = 0; ///< that the server was sent
};

/// Looks where the jobs stand: all of them by one request, and their printer by another one as long
/// as one waits for its turn. A job that the server does not tell of beside the others is asked for
/// by itself, one a look, in turn. A job alone is watched by its events (JobWatch.h). Blocks: call
/// it in a BackgroundCall.
Result<GroupLook> lookAt(const JobGroup &group, const GroupWatch &watch, CallGuard &guard);
