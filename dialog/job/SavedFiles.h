#pragma once

#include "dialog/work/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The files that libcups reads, those of the user's own last.
QStringList lpoptionsFiles();

/// More than hundreds of presets take.
inline constexpr qint64 kMostLpoptionsMegabytes = 4;
inline constexpr qint64 kLargestLpoptions = kMostLpoptionsMegabytes * 1024 * 1024;

/// The text of such a file, empty where there is none. A fault of kind Output when it cannot be
/// read: what is saved in it is not there then.
Result<QByteArray> lpoptionsText(const QString &path);

/// What is to be told of the files that cannot be read.
QStringList notesOnLpoptions();
