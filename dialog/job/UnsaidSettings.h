#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QList>

/// How a job would come out otherwise than it was shown: its queue has defaults of what the job
/// does not say.
struct QueueInfluence
{
    QList<JobOption> settled;   ///< what the job has to say so that it comes out as it was shown
    QList<JobOption> unsettled; ///< the queue's values against which nothing can be said
};

/// What the values of the queue, names without "-default", come to for a job of these options.
///
/// A job that says nothing of a setting on the sheet (number-up, copies) was shown with the usual
/// value. Of the paper nothing can be said beside `PageSize`. What is no matter of the sheet (who
/// is billed, when it is printed, cover pages), and words that only the queue's filters know, are
/// the queue's.
QueueInfluence influenceOf(const QList<JobOption> &queue, const QList<JobOption> &options);
