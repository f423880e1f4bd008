#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

class PrintJob;

/// What a person could pick now, each by itself, that is not marked: in the panels' controls
/// (filled, not hidden, not switched off), in the page setup, and in what is left to the dialog.
/// Settings that few choices are of come before the papers.
QList<PPDMark> possibleChanges(const PrintJob &job);

/// Those of the keyword's choices that could be picked now.
QStringList pickable(const PrintJob &job, const QString &keyword, const QStringList &choices);

/// Whether the choice could be picked now.
bool canBePicked(const PrintJob &job, const PPDMark &choice);
