#pragma once

#include "dialog/job/JobOption.h"
#include "tests/support/QStringPrinting.h"

/// What a failed comparison shows of a job's setting.
inline void PrintTo(const JobOption &option, std::ostream *out)
{
    *out << option.name.toStdString() << '=' << option.value.toStdString();
}
