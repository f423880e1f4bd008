#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The folders of the product, as opposed to its tests, benchmarks and tools.
inline const QStringList kProductFolders{
    QStringLiteral("platform"),      QStringLiteral("panel"),  QStringLiteral("printsettings"),
    QStringLiteral("colorsettings"), QStringLiteral("plugin"), QStringLiteral("dialog")};

/// The absolute path of a file of the project, which is named from the project's folder.
QString projectPath(const QString &name);

/// The other way round: how the project names a file.
QString projectName(const QString &path);

/// All files at any depth of the project's folder whose names match, by absolute paths.
QStringList filesBelow(const QString &folder, const QStringList &patterns);

/// The C++ sources there.
QStringList sourcesBelow(const QString &folder);

/// The text of the file; null when it cannot be read.
QString contents(const QString &path);
