#include "tests/sources/ProjectFiles.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

namespace {

const QDir kProject(QStringLiteral(VELKARO_SOURCE_DIR));

} // namespace

QString projectPath(const QString &name)
{
    return kProject.filePath(name);
}

QString projectName(const QString &path)
{
    return kProject.relativeFilePath(path);
}

QStringList filesBelow(const QString &folder, const QStringList &patterns)
{
    QStringList files;
    QDirIterator all(projectPath(folder), patterns, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
        files += all.next();
    return files;
}

QStringList sourcesBelow(const QString &folder)
{
    return filesBelow(folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h")});
}

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
