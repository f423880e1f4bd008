#include "tests/support/TrapFolder.h"

#include <QtCore/QFile>
#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

// Opening a FIFO to write it fails while nobody reads it, and is seen by no watch then.
void freeReadersOf(const QByteArray &fifo, const std::stop_token &end)
{
    for (; !end.stop_requested(); std::this_thread::sleep_for(5ms))
        if (const int writer = open(fifo.constData(), O_WRONLY | O_NONBLOCK); writer >= 0)
            close(writer);
}

} // namespace

TrapFolder::TrapFolder() : m_watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_TRUE(image.save(picture()));
    EXPECT_EQ(mkfifo(QFile::encodeName(fifo()).constData(), 0600), 0);
    EXPECT_GE(inotify_add_watch(m_watch, QFile::encodeName(path()).constData(), IN_OPEN), 0);
    m_freeing = std::jthread([name = QFile::encodeName(fifo())](const std::stop_token &end) {
        freeReadersOf(name, end);
    });
}

TrapFolder::~TrapFolder()
{
    close(m_watch);
}

bool TrapFolder::wasOpened()
{
    alignas(inotify_event) std::array<char, 4096> events{};
    bool opened = false;
    for (ssize_t size = 0; (size = read(m_watch, events.data(), events.size())) > 0;)
        for (ssize_t at = 0; at < size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(events.data() + at);
            opened = opened || !(event->mask & IN_ISDIR); // a file dialog may list the folder
            at += static_cast<ssize_t>(sizeof *event) + event->len;
        }
    return opened;
}
