#pragma once

#include "dialog/printing/PrintJob.h"
#include "dialog/window/SummaryPane.h"

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// What a panel tells of the job.
struct PanelSummary
{
    QStringList keywords; ///< of the PPD, which the panel manages
    QVariantMap info;     ///< PDEPanel::summaryInfo()
};

/// A line for everything that the job would send now and that neither the panels' summaries nor the
/// dialog's own lines tell: in the printer's words where it has some, else as it is sent. Nothing
/// is sent that was not shown, but for the printer's defaults. States of folding are no settings
/// and have no line.
QList<SummarySection::Line> linesOfTheRest(const PrintJob &job, const QList<PanelSummary> &panels);
