#pragma once

#include "dialog/printing/PrintWishes.h"
#include "dialog/printing/SettingState.h"

#include <QtCore/QStringList>

class PrintJob;

/// Whether the job prints on both sides of a paper that the printer does not take for that, as the
/// plug-in says.
bool isOnOneSidedPaper(const PrintJob &job);

/// What a person should know of a job before it leaves, one sentence each: what would be printed
/// otherwise than it is shown, and a paper that the printer does not take for printing on both
/// sides. `state` is the job's as it is.
QStringList doubtsOf(const PrintJob &job, const SettingState &state);

/// What saving the panels has put in the place of choices that somebody made, or that were shown.
QStringList replacedBySaving(const PrintJob &job, const SettingState &before,
                             const SettingState &after);

/// A choice that goes better with the job's paper than the present one.
struct JobAdvice
{
    RequestedChoice choice; ///< of the printer
    QString sentence;

    bool operator==(const JobAdvice &) const = default;
};

/// What the plug-in advises for the job's paper.
QList<JobAdvice> adviceFor(const PrintJob &job);
