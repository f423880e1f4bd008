#pragma once

#include "dialog/host/PPDMarks.h"
#include "dialog/job/JobOption.h"
#include "dialog/printing/SettingOrigins.h"

#include <QtCore/QList>
#include <QtCore/QString>

class PrintJob;

/// A setting in the words of the printer that it was shown for.
struct SettingInWords
{
    PPDMark mark;
    QString title;
    QString choice;
};

/// What a job is set to at the moment when its queue's PPD turns out to be another one.
struct KeptSettings
{
    /// What somebody has settled, for PrinterSource::kept: what is not the printer's default, and
    /// what was picked though it is.
    QList<JobOption> options;
    /// All that was shown, in the order of the former PPD.
    QList<SettingInWords> shown;
};

KeptSettings keptSettings(const PrintJob &job, const SettingOrigins &origins);

/// One sentence on what is otherwise now, with the PPD in place of the former one: what has become
/// something else, and what the printer no longer has. Null: nothing, or there is no PPD any more.
QString lossSentence(const KeptSettings &kept, const PrintJob &job);
