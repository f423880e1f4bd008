#pragma once

#include "dialog/work/CallGuard.h"

#include <condition_variable>
#include <mutex>
#include <thread>

/// Ends the wait for a server once its guard says so, whatever libcups is doing.
///
/// libcups asks the guard when a server is silent, and not while it sends: a thread in its loop
/// over headers that never end would stay there. So another thread looks at the guard, and shuts
/// the socket down, which ends every such loop.
class SocketWatch
{
public:
    explicit SocketWatch(const CallGuard &guard);
    ~SocketWatch();
    SocketWatch(const SocketWatch &) = delete;
    SocketWatch &operator=(const SocketWatch &) = delete;

    /// Watches this socket instead of the one before it; -1: none. The socket stays the caller's,
    /// who may close it at any time.
    void watch(int socket);

private:
    void run();
    void dropSocket();

    const CallGuard &m_guard;
    std::mutex m_mutex; // guards what follows
    std::condition_variable m_ended;
    bool m_ends = false;
    int m_socket =
        -1; // a duplicate: libcups may close its own, whose number another file then gets
    std::thread m_thread;
};
