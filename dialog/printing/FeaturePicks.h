#pragma once

#include "dialog/job/PrinterFeatures.h"
#include "dialog/work/Result.h"

#include <QtCore/QList>
#include <QtCore/QString>

class PrintJob;

/// The features of the job's printer that are left to the dialog: no panel lists or binds them, the
/// plug-in does not want them watched, and the page setup has none of them. None without a PPD.
QList<FeatureGroup> featuresOf(const PrintJob &job);

/// Those of them that can be chosen: what is built into the printer is set up with the queue.
QList<PrinterFeature> choosableFeatures(const PrintJob &job);

/// Chooses a value of the feature, as a PPDMark holds it. A fault says what it does not go together
/// with, or that the printer has no such value; nothing has changed then.
Result<> chooseFeature(PrintJob &job, const PrinterFeature &feature, const QString &value);
