#pragma once

#include "dialog/host/PPDLimits.h"

#include <QtCore/QByteArray>

/// The text of a PPD that has exactly so much of what the limit is about, in the way that costs
/// libcups most, and of nothing else more than is allowed. Keywords and values are in no order: it
/// keeps them sorted.
QByteArray ppdWith(const PPDLimit &limit, qsizetype count);
