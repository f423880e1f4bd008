#include "dialog/cups/SocketWatch.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds kLookInterval{50};

} // namespace

SocketWatch::SocketWatch(const CallGuard &guard) : m_guard(guard), m_thread([this] { run(); }) {}

SocketWatch::~SocketWatch()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
    }
    m_ended.notify_one();
    m_thread.join();
    dropSocket();
}

void SocketWatch::watch(int socket)
{
    const std::lock_guard lock(m_mutex);
    dropSocket();
    if (socket >= 0)
        m_socket = fcntl(socket, F_DUPFD_CLOEXEC, 0);
}

void SocketWatch::dropSocket()
{
    if (m_socket >= 0)
        close(m_socket);
    m_socket = -1;
}

void SocketWatch::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_ended.wait_for(lock, kLookInterval, [this] { return m_ends; }))
        if (m_socket >= 0 && !m_guard.mayFinish())
            shutdown(m_socket, SHUT_RDWR);
}
