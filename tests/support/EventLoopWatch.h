#pragma once

#include <QtCore/QTimer>

#include <chrono>

/// Watches the event loop of the test's thread for as long as it lives, and fails the test when an
/// event has waited for a server, a file or another thread.
///
///   const EventLoopWatch watch;
///   click(*window, "printButton");
///   QTest::qWait(kHeld);            // the server holds its answer for seconds
///
/// Seen against something that holds its answer for much longer than the limit. Time that the
/// thread computed, or waited for a processor, is not counted: a busy machine fails nothing. An
/// event that would wait for ever is the test's to end, by what the event waits for.
class EventLoopWatch
{
public:
    static constexpr std::chrono::milliseconds kLimit{1000};

    explicit EventLoopWatch(std::chrono::milliseconds limit = kLimit);
    ~EventLoopWatch();
    EventLoopWatch(const EventLoopWatch &) = delete;
    EventLoopWatch &operator=(const EventLoopWatch &) = delete;

    /// The longest that the loop has been kept waiting so far.
    std::chrono::milliseconds longestWait();

private:
    void beat();

    const std::chrono::milliseconds m_limit;
    QTimer m_heart;
    std::chrono::nanoseconds m_lastBeat; // idle time of the thread
    std::chrono::nanoseconds m_longest{0};
};
