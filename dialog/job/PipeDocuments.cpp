#include "dialog/job/PipeDocuments.h"

#include "dialog/files/PathBytes.h"
#include "dialog/files/TemporaryFile.h"
#include "dialog/work/SystemReason.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>
#include <cerrno>
#include <poll.h>

namespace {

constexpr int kLookInterval = 100; // ms between two looks at the guard
constexpr qint64 kMegabyte = 1'000'000;

enum class Spooled { All, TooLong, CannotRead, CannotKeep, Cancelled };

bool waitForBytes(int pipe, CallGuard &guard)
{
    pollfd waited{pipe, POLLIN, 0};
    while (!guard.isCancelled()) {
        guard.stampSignOfLife(); // whoever writes into the pipe may take its time
        if (poll(&waited, 1, kLookInterval) > 0)
            return true;
    }
    return false;
}

bool keep(const FileDescriptor &file, const char *bytes, ssize_t length)
{
    while (length > 0) {
        const ssize_t taken = write(file.get(), bytes, static_cast<std::size_t>(length));
        if (taken < 0 && errno != EINTR)
            return false;
        bytes += std::max<ssize_t>(0, taken);
        length -= std::max<ssize_t>(0, taken);
    }
    return true;
}

Spooled spool(int pipe, const FileDescriptor &file, CallGuard &guard, qint64 longest)
{
    std::array<char, 65536> buffer{};
    qint64 kept = 0;
    while (waitForBytes(pipe, guard)) {
        const ssize_t got = read(pipe, buffer.data(), buffer.size());
        if (got == 0)
            return Spooled::All;
        if (got < 0 && errno != EINTR && errno != EAGAIN)
            return Spooled::CannotRead;
        kept += std::max<ssize_t>(0, got);
        if (kept > longest)
            return Spooled::TooLong;
        if (!keep(file, buffer.data(), got))
            return Spooled::CannotKeep;
    }
    return Spooled::Cancelled;
}

QString roomFault(const QString &path)
{
    const int error = errno;
    const QString folder = shownPath(pathOfBytes(temporaryFolder()));
    if (error == ENOSPC || error == EDQUOT || error == EFBIG)
        return QCoreApplication::translate("PipeDocuments", "There is no room in the temporary "
                                                            "folder %1 for the document %2.")
            .arg(folder, path);
    return QCoreApplication::translate("PipeDocuments", "The document %1 cannot be kept in the "
                                                        "temporary folder %2: %3.")
        .arg(path, folder, systemReason(error));
}

Fault faultOf(Spooled spooled, const QString &path, qint64 longest)
{
    switch (spooled) {
    case Spooled::TooLong:
        return {FaultKind::Document,
                QCoreApplication::translate("PipeDocuments",
                                            "The document %1 is longer than %2 MB, the most that "
                                            "is read from a pipe.")
                    .arg(path, QString::number(longest / kMegabyte))};
    case Spooled::CannotRead:
        return {FaultKind::Document,
                QCoreApplication::translate("DocumentFile", "The document %1 cannot be read: %2.")
                    .arg(path, systemReason(errno))};
    case Spooled::CannotKeep:
        return {FaultKind::Document, roomFault(path)};
    default:
        return {FaultKind::Cancelled,
                QCoreApplication::translate("Server", "Printing was cancelled.")};
    }
}

Result<Document> readPipe(const Document &pipe, CallGuard &guard, qint64 longest)
{
    FileDescriptor file = unnamedTemporaryFile();
    const Spooled spooled =
        file.isOpen() ? spool(pipe.descriptor(), file, guard, longest) : Spooled::CannotKeep;
    if (spooled != Spooled::All)
        return faultOf(spooled, pipe.path(), longest);
    const Document document(std::move(file), 0, pipe.path(), pipe.name());
    if (document.size() > 0)
        return document;
    return Fault{FaultKind::Document,
                 QCoreApplication::translate("DocumentFile", "The document %1 is empty.")
                     .arg(document.path())};
}

} // namespace

Result<Documents> readPipes(const Documents &documents, CallGuard &guard, qint64 longest)
{
    Documents read = documents;
    for (Document &document : read) {
        if (!document.isPipe())
            continue;
        const Result<Document> whole = readPipe(document, guard, longest);
        if (!whole)
            return whole.fault();
        document = *whole;
    }
    return read;
}

bool hasPipes(const Documents &documents)
{
    return std::ranges::any_of(documents, &Document::isPipe);
}
