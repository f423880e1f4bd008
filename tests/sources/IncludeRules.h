#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The includes of a source file that its folder may not have, one per line: "FILE:LINE: the line:
/// FOLDER may include ... alone". Includes run one way between the folders, so that each can be
/// used and understood without those above it. `file` is relative to the project's folder; a file
/// of a folder without a rule has no breaches.
QStringList includeBreaches(const QString &file, const QString &text);

/// Every folder of the product that has a rule: all of them.
QStringList foldersWithIncludeRules();
