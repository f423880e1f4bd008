#pragma once

#include <atomic>
#include <chrono>

/// How long a server may be silent before it is given up.
inline constexpr std::chrono::milliseconds kServerPatience{8000};

/// Lets one thread stop what another one is waiting for.
///
/// The thread that talks to a server stamps every sign of life; the one that waits for the outcome
/// may cancel. A long job is never given up while it moves.
class CallGuard
{
public:
    using Clock = std::chrono::steady_clock;

    explicit CallGuard(std::chrono::milliseconds patience = kServerPatience) : m_patience(patience)
    {}

    std::chrono::milliseconds patience() const { return m_patience; }

    void cancel() { std::atomic_ref(m_cancelled).store(1); }
    bool isCancelled() const { return std::atomic_ref(m_cancelled).load() != 0; }

    /// The flag as libcups polls it while it connects.
    int *cancelFlag() { return &m_cancelled; }

    void stampSignOfLife() { m_lastSign = Clock::now(); }
    Clock::duration silence() const { return Clock::now() - m_lastSign.load(); }
    bool isOutOfPatience() const { return silence() >= m_patience; }

    /// Whether going on to wait makes sense.
    bool mayWait() const { return !isCancelled() && !isOutOfPatience(); }

private:
    std::chrono::milliseconds m_patience;
    std::atomic<Clock::time_point> m_lastSign{Clock::now()};
    mutable int m_cancelled = 0;
};
