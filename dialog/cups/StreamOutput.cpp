#include "dialog/cups/StreamOutput.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <thread>

namespace {

constexpr std::chrono::milliseconds kLookInterval{100};

bool isPipe(const QByteArray &path)
{
    struct stat status = {};
    return stat(path.constData(), &status) == 0 && S_ISFIFO(status.st_mode);
}

bool waitForRoom(const FileDescriptor &stream, CallGuard &guard)
{
    pollfd waited{stream.get(), POLLOUT, 0};
    while (!guard.isCancelled()) {
        guard.stampSignOfLife();
        if (poll(&waited, 1, static_cast<int>(kLookInterval.count())) > 0)
            return true;
    }
    return false;
}

} // namespace

FileDescriptor openStream(const QString &path, CallGuard &guard)
{
    sigset_t gone;
    sigemptyset(&gone);
    sigaddset(&gone, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &gone, nullptr);
    const QByteArray name = QFile::encodeName(path);
    while (!guard.isCancelled()) {
        guard.stampSignOfLife();
        FileDescriptor stream(open(name.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
        const bool lacksReader = !stream.isOpen() && errno == ENXIO && isPipe(name);
        if (!lacksReader)
            return stream;
        std::this_thread::sleep_for(kLookInterval);
    }
    return FileDescriptor();
}

bool writeToStream(const FileDescriptor &stream, const char *bytes, qint64 length, CallGuard &guard)
{
    while (length > 0) {
        if (!waitForRoom(stream, guard))
            return false;
        const ssize_t taken = write(stream.get(), bytes, static_cast<std::size_t>(length));
        if (taken < 0 && errno != EINTR && errno != EAGAIN)
            return false;
        bytes += std::max<ssize_t>(0, taken);
        length -= std::max<ssize_t>(0, taken);
    }
    return true;
}
