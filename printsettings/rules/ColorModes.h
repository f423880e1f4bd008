#pragma once

#include <QtCore/QStringList>

/// The choices of `VKMonoColor`: colour, then mono.
QStringList colorModes();

/// Whether the choice is the mono mode. A missing or unknown one counts as colour.
bool isMonoMode(const QString &choice);
