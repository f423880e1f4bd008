#pragma once

#include "platform/Export.h"

#include <QtCore/QString>

/// The path as QSettings may be given it. Where a pipe, a device, or a file of many megabytes
/// stands at it or in the place of its lock, whoever opens it waits or reads for ever: then it is a
/// path at which nothing is, and nothing can be written.
VELKARO_PLATFORM_EXPORT QString settingsPath(const QString &path);
