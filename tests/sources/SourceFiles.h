#pragma once

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QStringList>

/// The project's folder.
inline const QDir kProject(QStringLiteral(VELKARO_SOURCE_DIR));

/// What stands in the file; null when it cannot be read.
inline QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The files of the patterns in the folder of the project and below it.
inline QStringList filesBelow(const QString &folder, const QStringList &patterns)
{
    QStringList files;
    QDirIterator all(kProject.filePath(folder), patterns, QDir::Files,
                     QDirIterator::Subdirectories);
    while (all.hasNext())
        files += all.next();
    return files;
}

/// The C++ sources there.
inline QStringList sourcesBelow(const QString &folder)
{
    return filesBelow(folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h")});
}
