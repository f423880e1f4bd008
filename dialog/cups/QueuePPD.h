#pragma once

#include "dialog/job/JobRequest.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>

class ServerConnection;

/// Fetches the PPD of the queue from the server (null: the user's usual one), of a class that of
/// its first member. The queue is asked for by name, nothing is listed. Blocks: call it in a
/// BackgroundCall.
Result<QueuePPD> fetchQueuePPD(const QString &server, const QString &queue, CallGuard &guard);

/// Whether the queue has another PPD by now than the one that was fetched, or other defaults in it.
/// A server whose PPD is the same sends none. A fault where that cannot be known.
Result<bool> isExchanged(ServerConnection &connection, const QString &queue, const QueuePPD &known);

/// The same over a connection of its own. Blocks: call it in a BackgroundCall.
Result<bool> isExchanged(const QString &server, const QString &queue, const QueuePPD &known,
                         CallGuard &guard);

/// What is said of a job that was made for another PPD than the queue has by now.
Fault exchangedPPD(const QString &queue);

/// One sentence on a queue without a PPD.
QString missingPPD(const QString &queue);
