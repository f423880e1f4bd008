#include "dialog/files/FileIdentity.h"

#include "dialog/files/PathBytes.h"

#include <sys/stat.h>

namespace {

std::optional<FileIdentity> ordinary(const struct stat &status)
{
    if (!S_ISREG(status.st_mode))
        return std::nullopt;
    return FileIdentity{status.st_dev, status.st_ino};
}

} // namespace

std::optional<FileIdentity> identityOf(const QString &path)
{
    struct stat status = {};
    return stat(bytesOfPath(path).constData(), &status) == 0 ? ordinary(status) : std::nullopt;
}

std::optional<FileIdentity> identityOf(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 ? ordinary(status) : std::nullopt;
}
