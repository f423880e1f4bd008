#pragma once

#include <atomic>
#include <chrono>

/// How long a server may be silent before it is given up.
inline constexpr std::chrono::milliseconds kServerTimeout{8000};

/// A cancelled call goes on to wait for an answer that is on its way for this part of the timeout,
/// 200 ms: it may hold the number of a job, which must be known to cancel that.
inline constexpr int kPartForFinishing = 40;

/// Lets one thread stop what another one is waiting for.
///
/// The thread that talks to a server stamps every sign of life; the one that waits for the outcome
/// may cancel. Silence ends an exchange, and so does its time when that was limited: a server that
/// says one byte a second is alive. A long job is never given up while it moves.
class CallGuard
{
public:
    using Clock = std::chrono::steady_clock;

    explicit CallGuard(std::chrono::milliseconds timeout = kServerTimeout) : m_timeout(timeout) {}

    std::chrono::milliseconds timeout() const { return m_timeout; }

    void cancel()
    {
        if (!isCancelled())
            m_cancelTime = Clock::now();
        std::atomic_ref(m_cancelled).store(1);
    }
    bool isCancelled() const { return std::atomic_ref(m_cancelled).load() != 0; }

    /// The flag as libcups polls it while it connects.
    int *cancelFlag() { return &m_cancelled; }

    void stampSignOfLife() { m_lastSign = Clock::now(); }

    /// The server is known to be busy: it has timed out only after so many timeouts.
    void expectSilence(int timeouts) { m_lastSign = Clock::now() + (timeouts - 1) * m_timeout; }

    /// Since the last sign; negative while silence is expected.
    Clock::duration silence() const { return Clock::now() - m_lastSign.load(); }
    bool hasTimedOut() const { return silence() >= m_timeout; }

    /// From now on the server may take so many times the timeout, signs of life or not.
    void limitTime(int timeouts) { m_end = Clock::now() + timeouts * m_timeout; }
    void unlimitTime() { m_end = Clock::time_point::max(); }
    bool isOutOfTime() const { return Clock::now() >= m_end.load(); }

    /// Whether beginning to wait, or sending on, makes sense.
    bool mayWait() const { return !isCancelled() && !hasTimedOut() && !isOutOfTime(); }

    /// Whether going on to wait for an answer does.
    bool mayFinish() const
    {
        const bool isTooLate =
            isCancelled() && Clock::now() - m_cancelTime.load() >= m_timeout / kPartForFinishing;
        return !isTooLate && !hasTimedOut() && !isOutOfTime();
    }

private:
    std::chrono::milliseconds m_timeout;
    std::atomic<Clock::time_point> m_lastSign{Clock::now()};
    std::atomic<Clock::time_point> m_end{Clock::time_point::max()};
    std::atomic<Clock::time_point> m_cancelTime{};
    mutable int m_cancelled = 0;
};
