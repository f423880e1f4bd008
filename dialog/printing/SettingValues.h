#pragma once

#include "dialog/job/JobOption.h"
#include "dialog/printing/SettingOrigins.h"

class PrintJob;
struct SettingState;

/// What the job is set to, by names that differ for different settings. A value of the ticket that
/// the plug-in titles by a keyword has that name; one that a slider shows is what that shows.
/// States of folding are no settings. `state` is the job's as it is.
SettingValues settingValues(const PrintJob &job, const SettingState &state);

/// The same, as the printer has it before anybody has settled anything.
SettingValues defaultValues(const PrintJob &job);

/// What the job's settings were opened from, each by its name.
QHash<QString, SettingOrigin> startingOrigins(const PrintJob &job,
                                              const QList<JobOption> &starting);
