#include "tests/fuzz/InputFile.h"

#include "tests/fuzz/Harnesses.h"

#include <sys/mman.h>
#include <unistd.h>

FileDescriptor inputFile(const QByteArray &bytes)
{
    FileDescriptor file(memfd_create("input", MFD_CLOEXEC));
    const bool isWritten = write(file.get(), bytes.constData(),
                                 static_cast<std::size_t>(bytes.size())) == bytes.size() &&
                           lseek(file.get(), 0, SEEK_SET) == 0;
    require(isWritten, "the harness can write its own file");
    return file;
}

QString pathOf(const FileDescriptor &file)
{
    return QStringLiteral("/proc/self/fd/%1").arg(file.get());
}
