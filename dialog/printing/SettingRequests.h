#pragma once

#include "dialog/work/Result.h"

#include <QtCore/QString>

class PrintJob;

/// Settings that were asked for on the command line, made as a person would: by a pick in the
/// panel's control where a panel has one, which runs the panel's rules, else by the dialog itself.

/// Makes the setting. `copies`, `page-ranges` and `orientation-requested` are the dialog's own.
/// After a fault that setting is as it was.
Result<> makeSetting(PrintJob &job, const QString &keyword, const QString &choice);

/// Chooses the paper by the name of its `PageSize` choice, or "Custom.WIDTHxHEIGHT" with a unit
/// within the limits of the PPD.
Result<> choosePaper(PrintJob &job, const QString &paper);
