#pragma once

#include <QtCore/QString>

#include <cups/ppd.h>

/// Marks the choice when the PPD has the option and the choice, and marking it adds no conflict
/// with the PPD's own constraints. Otherwise the earlier marks stand and the answer is false.
bool markChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice);

/// Marks the choice whatever it conflicts with. False without such an option or choice.
bool forceChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice);
