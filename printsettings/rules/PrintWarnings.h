#pragma once

#include <QtCore/QString>

/// When the user is warned, or asked.

/// The quality "Best" takes long on everything but plain paper: once it is picked.
bool warnsOfBestQuality(const QString &quality, const QString &mediaType);

/// A borderless paper cannot be printed with what is pending, and something will be changed.
bool warnsOfBorderless(bool borderlessPaper, const QString &quality, const QString &mediaType);

/// A disc must lie in its tray: before a disc paper is printed on a medium that is marked as a
/// disc.
bool asksForDisc(bool discPaper, const QString &markedMedium);
