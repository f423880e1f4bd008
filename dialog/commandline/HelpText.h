#pragma once

#include <QtCore/QString>

/// What --help prints, with the line break at its end.
QString helpText();

/// What --version prints, with the line break at its end.
QString versionText();
