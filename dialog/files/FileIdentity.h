#pragma once

#include <QtCore/QString>

#include <optional>
#include <sys/types.h>

/// Which file it is, whatever names and links lead to it.
struct FileIdentity
{
    dev_t device = 0;
    ino_t number = 0;

    bool operator==(const FileIdentity &) const = default;
};

/// The ordinary file that the path leads to, as pathOfBytes() gives paths. None for anything else:
/// a device or a pipe loses nothing when it is written to.
std::optional<FileIdentity> identityOf(const QString &path);

/// The ordinary file that is open.
std::optional<FileIdentity> identityOf(int descriptor);
