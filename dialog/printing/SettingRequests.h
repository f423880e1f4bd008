#pragma once

#include "dialog/printing/PrintWishes.h"
#include "dialog/work/Result.h"
#include "platform/ppd/CupsPPD.h"

class PrintJob;

/// Settings that were asked for by name, made as a person would: by a pick in the panel's control
/// where a panel has one, which runs the panel's rules, else by the dialog itself.

/// The setting by the names that the printer has for it, in the one spelling of its meaning. A
/// fault of kind Request where the printer has no such setting, or not the choice. `PageSize` takes
/// "Custom.WIDTHxHEIGHT" with a unit besides, within the limits of the PPD; those of
/// OwnSettings.h are the dialog's own.
Result<RequestedChoice> knownSetting(const PrintJob &job, const RequestedChoice &wanted);

/// The fault of the first setting of the dialog's own that has no value for it: what can be known
/// before there is a printer.
Result<> checkOwnSettings(const QList<RequestedChoice> &wanted);

/// What is said of a value that the setting cannot have; `values` are those that it can have, as
/// they are typed (none: they are not told).
Fault noSuchValue(const RequestedChoice &wanted, const QStringList &values);

/// What is said of a setting that the printer does not have.
Fault noSuchSetting(const QString &keyword);

/// What is said of a value of a standard name that several choices of the printer say the same as;
/// `choices` as they are typed.
Fault severalChoices(const RequestedChoice &wanted, const QStringList &choices);

/// The choices of a keyword of the PPD (null: none), as they are typed.
QStringList typedChoices(ppd_file_t *ppd, const QString &keyword);

/// Makes a known setting, as far as the other ones allow. The panels' controls are filled
/// (prepareControls()), but for settings of the page.
void makeSetting(PrintJob &job, const RequestedChoice &known);

/// Whether the job has the known setting now, or a form of it.
bool hasSetting(const PrintJob &job, const RequestedChoice &known);

/// Why the job has not: the printer's constraints, or what it has instead.
QString lossSentence(const PrintJob &job, const RequestedChoice &known);
