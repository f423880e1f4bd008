#include "dialog/keyring/Keyring.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibrary>

Keyring *desktopKeyring()
{
    static Keyring *const found = [] {
        const QString path =
            QDir(QCoreApplication::applicationDirPath())
                .filePath(QLatin1String(VELKARO_PRIVATE_FROM_BIN "/velkaro-keyring.so"));
        using Make = Keyring *(*)();
        const auto make = reinterpret_cast<Make>(QLibrary::resolve(path, "velkaroKeyring"));
        return make ? make() : nullptr;
    }();
    return found;
}
