#pragma once

#include <QtCore/QString>

class PrintJob;
struct HostPanel;

/// Settings that were asked for on the command line, made as a person would: by a pick in the
/// panel's control where a panel has one, which runs the panel's rules, else by the dialog itself.

/// What the host last refused of a pick; the callback observer of the session fills it.
struct Refusal
{
    QString keyword; ///< null: nothing was refused
    QString choice;
};

/// Makes the setting. Null when it was made, else one sentence. `copies`, `page-ranges` and
/// `orientation-requested` are the dialog's own. `refusal` is what the session's observer fills.
QString makeSetting(PrintJob &job, const QString &keyword, const QString &choice, Refusal &refusal);

/// Chooses the paper by the name of its `PageSize` choice, or "Custom.WIDTHxHEIGHT" with a unit.
/// Null when it was chosen, else one sentence.
QString choosePaper(PrintJob &job, const QString &paper);
