#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

class PrintJob;

/// A short text that stands for all that the job's settings are: marks, ticket, what the panels
/// hold and show, and what stands in the way of the wanted choice. Equal for equal settings. What
/// the keyword itself is set to is left out (null: nothing is).
QByteArray printOfSettings(const PrintJob &job, const PPDMark &wanted, const QString &leftOut);
