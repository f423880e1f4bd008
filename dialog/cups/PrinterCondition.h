#pragma once

#include "dialog/cups/ClassMembers.h"
#include "dialog/cups/JobStatus.h"
#include "dialog/cups/LoadedMedia.h"
#include "dialog/cups/Supplies.h"
#include "dialog/job/JobRequest.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>

/// How a printer and its queue are before something is printed there. What they do not tell is not
/// there.
struct PrinterCondition
{
    int queuedJobs = 0; ///< that wait at the queue or are being printed
    QList<Supply> supplies;
    QList<LoadedMedium> loaded;
    QueueTerms terms = {};
    JobStatus waiting = {}; ///< of a job that comes now: for its turn, or the printer is stopped
    QList<ClassMember> members = {}; ///< of a class, where there are several
    bool isAccepting = true;         ///< jobs; else none waits there
    /// When somebody has changed what the queue is, its PPD perhaps, by the server's clock; 0: not
    /// told.
    int changeTime = 0;

    bool operator==(const PrinterCondition &) const = default;
};

/// Out of the printer's attributes; its members are not among them.
PrinterCondition conditionOf(ipp_t *printer);

/// Asks the server (null: the user's usual one) how the queue's printer is. Blocks: call it in a
/// BackgroundCall.
Result<PrinterCondition> askCondition(const QString &server, const QString &queue,
                                      CallGuard &guard);
