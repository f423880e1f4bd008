#pragma once

#include <QtCore/QString>

/// Whether the name means something to a print server, to libcups or to the filters of CUPS by
/// itself: an attribute of IPP, an operation's parameter, an option such as "raw". A PPD that uses
/// one as the keyword of an option of its own would say how many copies are printed, or where.
///
/// Attributes are compared without regard to case, as servers do. The standard keywords of PPDs
/// (`PageSize`, `Duplex`, `OutputOrder`, ...) are not reserved.
bool isReservedName(const QString &name);
