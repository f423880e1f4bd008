#pragma once

#include "dialog/work/CallGuard.h"
#include "dialog/work/ServerFault.h"

#include "dialog/files/FileDescriptor.h"

#include <QtCore/QString>

#include <memory>

/// The PPD of a queue, as the server sent it. Without one, and without a fault, the queue exists
/// but has no PPD; the sentence says so.
struct QueuePPD
{
    std::shared_ptr<const FileDescriptor> file; ///< has no name, and goes with the last copy
    ServerAnswer answer;

    /// Where the file can be opened for as long as a copy of this is there; null without one.
    QString path() const;
};

/// Fetches the PPD of the queue from the server (null: the user's usual one), of a class that of
/// its first member. The queue is asked for by name, nothing is listed. Blocks: call it in a
/// BackgroundCall.
QueuePPD fetchQueuePPD(const QString &server, const QString &queue, CallGuard &guard);
