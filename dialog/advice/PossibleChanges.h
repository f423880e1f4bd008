#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QList>

class PrintJob;

/// What a person could pick now, each by itself, that is not marked: in the panels' controls
/// (filled, not hidden, not switched off), in the page setup, and in what is left to the dialog.
/// Settings that few choices are of come before the papers.
QList<PPDMark> possibleChanges(const PrintJob &job);

/// Whether the choice could be picked now.
bool canBePicked(const PrintJob &job, const PPDMark &choice);
