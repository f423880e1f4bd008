#pragma once

#include "dialog/job/JobOption.h"
#include "dialog/job/SavedOptions.h"
#include "dialog/work/Result.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

class PrintJob;

// Presets are instances of lpoptions: `lp -d queue/name` prints with them as the dialog does.

/// The names of the queue's presets, sorted as people sort them.
QStringList presetNames(const QString &queue);

/// One sentence on why a preset cannot be called that; null when it can. lpoptions separates names
/// by spaces, and instances from queues by a slash.
QString presetNameFault(const QString &name);

/// Whether the option belongs to one document or one occasion: copies, pages, title, hold, cover
/// pages.
bool isPassing(const QString &option);

/// Without what belongs to one document or one occasion, and without
/// secrets.
QList<JobOption> lastingOptions(const PrintJob &job, const QList<JobOption> &options);

/// Saves the job's settings as a preset of its queue; one of that name is replaced. A fault, and
/// nothing is saved: the settings cannot be sent, or not written.
Result<> savePreset(const PrintJob &job, const QString &name);

/// Whether the job, which was opened with the preset of the name, has still what was saved. Panels
/// may have changed what does not go together: lp would print something else.
bool isAsSaved(const PrintJob &job, const QString &name);

/// A fault when the preset is not the user's own, or has gone, or there is one of the new name.
Result<> renamePreset(const QueueName &preset, const QString &name);
Result<> deletePreset(const QueueName &preset);
