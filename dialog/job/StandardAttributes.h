#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QList>

/// The standard IPP attributes that say the same as a marked choice of one of the keywords that
/// CUPS itself defines. cupsd adds `print-color-mode=color` to a job that says nothing of it, so a
/// grey job would contradict itself.
QList<JobOption> standardAttributesBeside(const QList<JobOption> &choices);
