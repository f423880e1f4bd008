#include "platform/foundation/SettingsPath.h"

#include <QtCore/QFileInfo>

namespace {

constexpr qint64 kMostBytes = 4LL * 1024 * 1024;

bool isInTheWay(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() && !file.isDir() && (!file.isFile() || file.size() > kMostBytes);
}

} // namespace

QString settingsPath(const QString &path)
{
    for (const QString &one : {path, path + QStringLiteral(".lock")})
        if (isInTheWay(one))
            return one + QStringLiteral("/none"); // below what is no folder
    return path;
}
