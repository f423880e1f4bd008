#pragma once

#include "dialog/files/FileDescriptor.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>

#include <memory>

/// The PPD of a queue, as the server sent it.
struct QueuePPD
{
    /// Has no name, and goes with the last copy. Null: the queue exists and has no PPD.
    std::shared_ptr<const FileDescriptor> file;

    /// Where the file can be opened for as long as a copy of this is there; null without one.
    QString path() const;
};

/// Fetches the PPD of the queue from the server (null: the user's usual one), of a class that of
/// its first member. The queue is asked for by name, nothing is listed. Blocks: call it in a
/// BackgroundCall.
Result<QueuePPD> fetchQueuePPD(const QString &server, const QString &queue, CallGuard &guard);

/// One sentence on a queue without a PPD.
QString missingPPD(const QString &queue);
