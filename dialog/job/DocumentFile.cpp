#include "dialog/job/DocumentFile.h"

#include "dialog/files/DescriptorPath.h"
#include "dialog/files/OpenFiles.h"
#include "dialog/files/PathBytes.h"
#include "dialog/work/SystemReason.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace {

Fault documentFault(const QString &sentence)
{
    return {FaultKind::Document, sentence};
}

Fault systemFault(const QString &path)
{
    const int error = errno;
    if (error == ENOENT)
        return documentFault(
            QCoreApplication::translate("DocumentFile", "The document %1 does not exist.")
                .arg(path));
    return documentFault(
        QCoreApplication::translate("DocumentFile", "The document %1 cannot be read: %2.")
            .arg(path, systemReason(error)));
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

Result<Document> ordinary(FileDescriptor file, qint64 begin, const QString &path,
                          const QString &name)
{
    Document document(std::move(file), begin, path, name);
    if (document.size() == 0)
        return documentFault(
            QCoreApplication::translate("DocumentFile", "The document %1 is empty.").arg(path));
    return document;
}

/// A device may answer to being opened alone, and a named pipe would keep whoever opens it waiting:
/// what the name stands for is asked before, and of the open file again.
Result<Document> openByName(const QString &path)
{
    const QByteArray bytes = bytesOfPath(path);
    const QString shown = shownPath(path);
    struct stat status = {};
    if (stat(bytes.constData(), &status) != 0)
        return systemFault(shown);
    FileDescriptor file;
    if (!faultOfKind(status.st_mode)) {
        file = FileDescriptor(open(bytes.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        if (!file.isOpen() || fstat(file.get(), &status) != 0)
            return systemFault(shown);
    }
    if (const char *fault = faultOfKind(status.st_mode))
        return documentFault(QCoreApplication::translate("DocumentFile", fault).arg(shown));
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

Result<Document> openDescriptor(int descriptor, const QString &path)
{
    const QString shown = descriptor == STDIN_FILENO
                              ? QCoreApplication::translate("DocumentFile", "Standard input")
                              : path;
    FileDescriptor file = inherited(descriptor);
    struct stat status = {};
    if (!file.isOpen() || !mayBeRead(file) || fstat(file.get(), &status) != 0)
        return systemFault(shown);
    if (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode))
        return Document::pipe(std::move(file), shown, shown);
    if (const char *fault = faultOfKind(status.st_mode))
        return documentFault(QCoreApplication::translate("DocumentFile", fault).arg(shown));
    const qint64 begin = lseek(file.get(), 0, SEEK_CUR);
    return ordinary(std::move(file), begin, shown, shown);
}

Result<Document> openDocument(const QString &path)
{
    const std::optional<int> descriptor =
        path == QLatin1String("-") ? STDIN_FILENO : descriptorOf(path);
    return descriptor ? openDescriptor(*descriptor, path) : openByName(path);
}

} // namespace

Result<Documents> openDocuments(const QStringList &paths)
{
    Documents documents;
    allowOpenFiles(static_cast<std::size_t>(paths.size()));
    for (const QString &path : paths) {
        const Result<Document> opened = openDocument(path);
        if (!opened)
            return opened.fault();
        documents.push_back(*opened);
    }
    return documents;
}

QString jobTitle(const Documents &documents)
{
    return documents.empty() ? QString() : documents.front().name();
}
