#pragma once

#include "dialog/cups/CallGuard.h"
#include "dialog/cups/ServerFault.h"
#include "dialog/host/PPDFile.h"

#include <QtCore/QString>

/// The PPD of a queue. Without one, and without a fault, the queue exists but has no PPD; the
/// sentence says so.
struct QueuePPD
{
    PPDHandle ppd; ///< defaults marked
    ServerAnswer answer;
};

/// Fetches and opens the PPD of the queue from the server (null: the user's usual one), of a class
/// that of its first member. The queue is asked for by name, nothing is listed, and nothing stays
/// in the temporary folder. Blocks: call it in a ServerCall.
QueuePPD fetchQueuePPD(const QString &server, const QString &queue, CallGuard &guard);
