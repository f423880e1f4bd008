#pragma once

#include "dialog/job/SavedOptions.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/Result.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cups/ipp.h>

/// A queue that can be printed to, or an instance of one.
struct Destination
{
    QueueName name = {};
    QString description = {};  ///< what the queue's owner calls it; empty where he says nothing
    QString location = {};     ///< empty where nobody says
    bool isDefault = false;    ///< the server prints to it unless told otherwise
    bool isAccepting = true;   ///< false: the queue rejects jobs at present
    bool isStopped = false;    ///< jobs wait until somebody starts the queue
    bool isPrinting = false;   ///< a job is at the printer
    QStringList reasons = {};  ///< `printer-state-reasons`; none where nothing is the matter
    QString stateMessage = {}; ///< the server's own words on the state; empty where it has none

    bool operator==(const Destination &) const = default;
};

/// Every queue and class of the server (null: the user's usual one), with the user's instances.
/// Printers that announce themselves in the network and have no queue on the server are not among
/// them: there is nothing to print to by that name. By name, a queue before its instances. Blocks:
/// call it in a BackgroundCall.
Result<QList<Destination>> listDestinations(const QString &server, CallGuard &guard);

/// The queues among them with the instances that the user has saved by now, each behind its queue.
QList<Destination> withInstances(QList<Destination> destinations);

/// The queues that an answer lists, in order; none of them is marked as default.
QList<Destination> queuesOf(ipp_t *answer);

/// Asks the server for the queue that it prints to by default; a null queue when it has none.
/// Blocks: call it in a BackgroundCall.
Result<QueueName> serverDefault(const QString &server, CallGuard &guard);
