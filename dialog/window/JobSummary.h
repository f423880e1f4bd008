#pragma once

#include "dialog/window/SummaryPane.h"

#include <QtCore/QList>

#include <vector>

struct HostPanel;
class PrintJob;

/// The summary of the job: what the dialog has settled, what the panels tell of themselves, and
/// whatever else would be sent. Panels may change what is sent while they sum it up.
QList<SummarySection> summaryOf(PrintJob &job, const std::vector<const HostPanel *> &panels);
