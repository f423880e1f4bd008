#pragma once

#include "dialog/work/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Reads the PPD file and checks it: the unpacked text that libcups may be given. PPDs come from
/// strangers: a file that is no regular one (a folder, a pipe, a device: refused at once), one that
/// is cut off, and one that has more of anything than ppdLimits() allow is refused before libcups
/// sees it. On any thread.
Result<QByteArray> readPPD(const QString &path);
