#include "tests/support/EventLoopWatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <fstream>

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

namespace {

constexpr milliseconds kBeat{20}; // the loop is never idle for longer by itself

nanoseconds clockTime(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

// Time that this thread was ready to run while others had the processors.
nanoseconds queuedTime()
{
    long long ran = 0;
    long long queued = 0;
    std::ifstream("/proc/thread-self/schedstat") >> ran >> queued;
    return nanoseconds(queued);
}

// Grows while the thread waits for anything but a processor.
nanoseconds idleTime()
{
    return clockTime(CLOCK_MONOTONIC) - clockTime(CLOCK_THREAD_CPUTIME_ID) - queuedTime();
}

} // namespace

EventLoopWatch::EventLoopWatch(milliseconds limit) : m_limit(limit), m_lastBeat(idleTime())
{
    m_heart.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_heart, &QTimer::timeout, &m_heart, [this] { beat(); });
    m_heart.start(kBeat);
}

EventLoopWatch::~EventLoopWatch()
{
    EXPECT_LT(longestWait().count(), m_limit.count())
        << "ms: an event has waited for a server, a file or another thread";
}

milliseconds EventLoopWatch::longestWait()
{
    beat(); // an absence may last until now
    return std::chrono::duration_cast<milliseconds>(m_longest);
}

void EventLoopWatch::beat()
{
    const nanoseconds now = idleTime();
    m_longest = std::max(m_longest, now - m_lastBeat);
    m_lastBeat = now;
}
