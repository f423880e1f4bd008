#include "dialog/host/PPDReading.h"

#include "dialog/host/Gunzip.h"
#include "dialog/host/PPDLimits.h"
#include "dialog/host/PPDSentence.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Opening a pipe for reading would wait for somebody who writes.
int openWithoutWaiting(const QString &path)
{
    return open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

Fault unreadable(const QString &path)
{
    return errno == ENOENT || errno == ENOTDIR
               ? ppdFault(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 does not exist."), path)
               : unreadablePPD(path);
}

/// What is in the file, up to one byte more than a PPD may have.
Result<QByteArray> bytesOf(const QString &path)
{
    const int descriptor = openWithoutWaiting(path);
    if (descriptor < 0)
        return unreadable(path);
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered,
                   QFile::AutoCloseHandle)) {
        close(descriptor);
        return unreadablePPD(path);
    }
    struct stat status = {};
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return ppdFault(QT_TRANSLATE_NOOP("PPDFile", "%1 is not a PPD file."), path);
    const QByteArray read = file.read(std::min<qint64>(status.st_size, kLargestPPD) + 1);
    if (file.error() != QFileDevice::NoError)
        return unreadablePPD(path);
    return read;
}

Result<QByteArray> unpackedText(const QByteArray &packed, const QString &path)
{
    const Unpacked text = unpacked(packed, kLargestPPD);
    switch (text.state) {
    case Unpacked::State::Whole:
        break;
    case Unpacked::State::CutOff:
        return incompletePPD(path);
    case Unpacked::State::Damaged:
        return ppdFault(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 is damaged: it cannot be "
                                                     "unpacked. Get it again."),
                        path);
    case Unpacked::State::TooLarge:
        return Fault{FaultKind::PPD, sentenceOf(ppdLimits().front(), path)};
    }
    // libcups would unpack it a second time, without a limit.
    if (isPacked(text.bytes))
        return ppdFault(QT_TRANSLATE_NOOP("PPDFile", "%1 is not a PPD file."), path);
    return text.bytes;
}

} // namespace

Result<QByteArray> readPPD(const QString &path)
{
    Result<QByteArray> read = bytesOf(path);
    if (read && isPacked(*read))
        read = unpackedText(*read, path);
    if (!read)
        return read;
    if (const PPDLimit *limit = exceededLimit(censusOf(*read)))
        return Fault{FaultKind::PPD, sentenceOf(*limit, path)};
    return read;
}
