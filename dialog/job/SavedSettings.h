#pragma once

#include "dialog/job/JobOption.h"
#include "dialog/job/JobOptions.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>

/// Saved options (lpoptions) as a dialog takes them over.
struct SavedSettings
{
    HostSettings settings;
    PMOrientation orientation = PMOrientation::Portrait;
    QList<JobOption> others; ///< what is neither the PPD's nor the dialog's: JobValues::saved
};

/// Marks the saved choices in the PPD (null: none), standard attributes such as `media` and `sides`
/// included as libcups maps them, and gives the rest. Choices that the PPD lacks are passed over.
SavedSettings applySavedOptions(ppd_file_t *ppd, const QList<JobOption> &saved);
