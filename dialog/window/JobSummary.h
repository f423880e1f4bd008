#pragma once

#include "dialog/printing/SettingOrigins.h"
#include "dialog/window/SummaryPane.h"

#include <QtCore/QList>

#include <vector>

struct HostPanel;
class PrintJob;

/// The summary of the job: what the dialog has settled, what the panels tell of themselves, and
/// whatever else would be sent; each with its setting's name as far as that is known. Panels may
/// change what is sent while they sum it up.
QList<SummarySection> summaryOf(PrintJob &job, const std::vector<const HostPanel *> &panels);

/// Adds why each setting has its value.
void addOrigins(QList<SummarySection> &sections, const PrintJob &job,
                const SettingOrigins &origins);
