#pragma once

#include "dialog/job/JobOption.h"
#include "dialog/printing/PrintWishes.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

class PrintJob;

/// The sentence, on a setting that was saved for the printer.
QString savedSentence(const QString &sentence);

/// What has become of the saved settings that the job's printer started from and that no wish is
/// for: a sentence for each that the job has not, or would not have if it had been wished for, too.
/// The job has a session.
QStringList yieldedSettings(PrintJob &job, const QList<JobOption> &starting,
                            QList<RequestedChoice> wished);
