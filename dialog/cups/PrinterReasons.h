#pragma once

#include <QtCore/QString>

struct Destination;

/// How much a printer makes of a reason.
enum class ReasonSeverity { Report, Warning, Error };

/// A keyword of `printer-state-reasons` in words.
struct PrinterReason
{
    ReasonSeverity severity = ReasonSeverity::Error;
    QString text; ///< plain; the keyword itself where it is not a registered one
};

/// The keyword taken apart: "-report", "-warning" or "-error" at its end says the severity, and one
/// without such an end is an error.
PrinterReason printerReason(const QString &keyword);

/// Whether jobs for the printer wait, or it calls for somebody.
bool isInTrouble(const Destination &printer);

/// What the printer is doing or why it is not, in words and on one line, the worst first: whether
/// it takes jobs, its state, its reasons, and what its server says in its own words. Never empty.
QString stateText(const Destination &printer);
