#include "dialog/job/DocumentFile.h"

#include "dialog/files/DescriptorPath.h"
#include "dialog/files/PathBytes.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace {

QString systemFault(const QString &path)
{
    const int error = errno;
    if (error == ENOENT)
        return QCoreApplication::translate("DocumentFile", "The document %1 does not exist.")
            .arg(path);
    return QCoreApplication::translate("DocumentFile", "The document %1 cannot be read: %2.")
        .arg(path, QString::fromLocal8Bit(std::strerror(error)));
}

/// Why a file of this kind is no document; null when it is one.
const char *faultOfKind(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return nullptr;
    case S_IFDIR:
        return QT_TRANSLATE_NOOP("DocumentFile", "%1 is a folder, not a document.");
    case S_IFIFO:
        return QT_TRANSLATE_NOOP("DocumentFile", "%1 is a named pipe, not a document.");
    case S_IFSOCK:
        return QT_TRANSLATE_NOOP("DocumentFile", "%1 is a socket, not a document.");
    default:
        return QT_TRANSLATE_NOOP("DocumentFile", "%1 is a device, not a document.");
    }
}

/// A document, or why it is none.
struct Opened
{
    std::optional<Document> document;
    QString error;
};

Opened ordinary(FileDescriptor file, qint64 begin, const QString &path, const QString &name)
{
    Document document(std::move(file), begin, path, name);
    if (document.size() == 0)
        return {{},
                QCoreApplication::translate("DocumentFile", "The document %1 is empty.").arg(path)};
    return {std::move(document), {}};
}

/// What the name stands for is looked at before it is opened, since opening alone can set off a
/// device, or wait for the writer of a named pipe; and the open file is looked at again.
Opened openByName(const QString &path)
{
    const QByteArray bytes = bytesOfPath(path);
    const QString shown = shownPath(path);
    struct stat status = {};
    if (stat(bytes.constData(), &status) != 0)
        return {{}, systemFault(shown)};
    FileDescriptor file;
    if (!faultOfKind(status.st_mode)) {
        file = FileDescriptor(open(bytes.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        if (!file.isOpen() || fstat(file.get(), &status) != 0)
            return {{}, systemFault(shown)};
    }
    if (const char *fault = faultOfKind(status.st_mode))
        return {{}, QCoreApplication::translate("DocumentFile", fault).arg(shown)};
    return ordinary(std::move(file), 0, shown, QFileInfo(shown).fileName());
}

/// A descriptor that the program was started with. Its own files are closed on exec, and are none.
FileDescriptor inherited(int descriptor)
{
    const int flags = fcntl(descriptor, F_GETFD);
    if (flags >= 0 && (flags & FD_CLOEXEC) != 0)
        errno = EBADF;
    return FileDescriptor(flags < 0 || (flags & FD_CLOEXEC) != 0
                              ? -1
                              : fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

bool mayBeRead(const FileDescriptor &file)
{
    const bool isForWriting = (fcntl(file.get(), F_GETFL) & O_ACCMODE) == O_WRONLY;
    if (isForWriting)
        errno = EBADF;
    return !isForWriting;
}

Opened openDescriptor(int descriptor, const QString &path)
{
    const QString shown = descriptor == STDIN_FILENO
                              ? QCoreApplication::translate("DocumentFile", "Standard input")
                              : path;
    FileDescriptor file = inherited(descriptor);
    struct stat status = {};
    if (!file.isOpen() || !mayBeRead(file) || fstat(file.get(), &status) != 0)
        return {{}, systemFault(shown)};
    if (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode))
        return {Document::pipe(std::move(file), shown, shown), {}};
    if (const char *fault = faultOfKind(status.st_mode))
        return {{}, QCoreApplication::translate("DocumentFile", fault).arg(shown)};
    const qint64 begin = lseek(file.get(), 0, SEEK_CUR);
    return ordinary(std::move(file), begin, shown, shown);
}

Opened openDocument(const QString &path)
{
    const std::optional<int> descriptor =
        path == QLatin1String("-") ? STDIN_FILENO : descriptorOf(path);
    return descriptor ? openDescriptor(*descriptor, path) : openByName(path);
}

} // namespace

OpenedDocuments openDocuments(const QStringList &paths)
{
    OpenedDocuments opened;
    for (const QString &path : paths) {
        Opened one = openDocument(path);
        if (!one.document)
            return {{}, one.error};
        opened.documents.push_back(std::move(*one.document));
    }
    return opened;
}

QString jobTitle(const Documents &documents)
{
    return documents.empty() ? QString() : documents.front().name();
}
