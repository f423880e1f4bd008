#include "dialog/files/TemporaryFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>

QByteArray temporaryFolder()
{
    const QByteArray chosen = qgetenv("TMPDIR");
    return chosen.isEmpty() ? QByteArray(P_tmpdir) : chosen;
}

FileDescriptor unnamedTemporaryFile()
{
    const QByteArray folder = temporaryFolder();
    FileDescriptor file(open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    // Some file systems know no files without a name, and each says so in its own way.
    if (file.isOpen() || (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL))
        return file;
    QByteArray name = folder + "/velkaro-print.XXXXXX";
    FileDescriptor named(mkostemp(name.data(), O_CLOEXEC));
    if (named.isOpen())
        unlink(name.constData());
    return named;
}
