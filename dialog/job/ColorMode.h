#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QList>

/// Whether a job with these options may print in color: unless its `print-color-mode` says that it
/// takes black alone.
bool mayPrintInColor(const QList<JobOption> &options);
