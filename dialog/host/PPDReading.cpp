#include "dialog/host/PPDReading.h"

#include "dialog/host/Gunzip.h"
#include "dialog/host/PPDCompleteness.h"
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

CheckedPPD refused(const char *text, const QString &path)
{
    return {{}, ppdSentence(text, path)};
}

CheckedPPD unreadable(const QString &path)
{
    return errno == ENOENT || errno == ENOTDIR
               ? refused(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 does not exist."), path)
               : CheckedPPD{{}, unreadablePPD(path)};
}

/// What is in the file, up to one byte more than a PPD may have.
CheckedPPD bytesOf(const QString &path)
{
    const int descriptor = openWithoutWaiting(path);
    if (descriptor < 0)
        return unreadable(path);
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered,
                   QFile::AutoCloseHandle)) {
        close(descriptor);
        return CheckedPPD{{}, unreadablePPD(path)};
    }
    struct stat status = {};
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return refused(QT_TRANSLATE_NOOP("PPDFile", "%1 is not a PPD file."), path);
    CheckedPPD read{file.read(std::min<qint64>(status.st_size, kLargestPPD) + 1), {}};
    if (file.error() != QFileDevice::NoError)
        return CheckedPPD{{}, unreadablePPD(path)};
    return read;
}

CheckedPPD unpackedText(const QByteArray &packed, const QString &path)
{
    const Unpacked text = unpacked(packed, kLargestPPD);
    switch (text.state) {
    case Unpacked::State::Whole:
        break;
    case Unpacked::State::CutOff:
        return {{}, incompletePPD(path)};
    case Unpacked::State::Damaged:
        return refused(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 is damaged: it cannot be "
                                                    "unpacked. Get it again."),
                       path);
    case Unpacked::State::TooLarge:
        return {{}, sentenceOf(ppdLimits().front(), path)};
    }
    // libcups would unpack it a second time, without a limit.
    return isPacked(text.bytes)
               ? refused(QT_TRANSLATE_NOOP("PPDFile", "%1 is not a PPD file."), path)
               : CheckedPPD{text.bytes, {}};
}

} // namespace

CheckedPPD readPPD(const QString &path)
{
    CheckedPPD read = bytesOf(path);
    if (read.error.isNull() && isPacked(read.text))
        read = unpackedText(read.text, path);
    if (!read.error.isNull())
        return read;
    if (const PPDLimit *limit = exceededLimit(censusOf(read.text)))
        return {{}, sentenceOf(*limit, path)};
    return read;
}
