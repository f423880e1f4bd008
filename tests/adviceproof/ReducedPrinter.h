#pragma once

#include <QtCore/QByteArray>

/// The PPD, as text, with no more than so many choices in all: those of the longest settings are
/// left out, from the last on, and settings of numbers as a whole. Defaults stay.
QByteArray reducedPrinter(const QByteArray &ppd, int choices);
