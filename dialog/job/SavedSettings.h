#pragma once

#include "dialog/job/JobOption.h"
#include "dialog/job/JobOptions.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// Saved options (lpoptions) as a dialog takes them over.
struct SavedSettings
{
    HostSettings settings;
    PMOrientation orientation = PMOrientation::Portrait;
    QVariantMap ticket;      ///< values under a plug-in's own keys
    QList<JobOption> others; ///< what is neither the PPD's nor the dialog's: JobValues::saved
    QStringList settled;     ///< keywords of the PPD that were named: JobValues::settled
    /// What was meant for another printer, or another state of this one: choices that the PPD does
    /// not have, keywords that nobody knows (these are among the others all the same), and values
    /// that no setting of the dialog's own can have.
    QList<JobOption> missing;
    /// Those of them that are values of the dialog's own settings.
    QList<JobOption> unusable;
};

/// Those of the options that are meant for another printer than that of the PPD (null: one that
/// nothing is known of): choices that it does not have, and keywords that nobody knows.
QList<JobOption> optionsForOthers(ppd_file_t *ppd, const QList<JobOption> &options);

/// Marks the saved choices in the PPD (null: none), standard attributes such as `media` and `sides`
/// included as libcups maps them, and gives the rest. Choices that the PPD lacks are not marked.
SavedSettings applySavedOptions(ppd_file_t *ppd, const QList<JobOption> &saved);
