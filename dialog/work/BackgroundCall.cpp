#include "dialog/work/BackgroundCall.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <condition_variable>
#include <list>
#include <mutex>
#include <thread>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kLookInterval{100};

/// The threads of all calls. Those that have ended are joined, so that none is in the midst of its
/// end while the process is taken down.
class Threads
{
public:
    void start(std::function<void()> work)
    {
        const std::lock_guard lock(m_mutex);
        joinEnded();
        Thread &started = m_threads.emplace_back();
        started.thread = std::thread([this, &started, work = std::move(work)]() mutable {
            work();
            work = nullptr;
            const std::lock_guard ending(m_mutex);
            started.hasEnded = true;
            m_change.notify_all();
        });
    }

    bool waitForAll(std::chrono::milliseconds atMost)
    {
        std::unique_lock lock(m_mutex);
        m_change.wait_for(lock, atMost,
                          [this] { return std::ranges::all_of(m_threads, &Thread::hasEnded); });
        joinEnded();
        return m_threads.empty();
    }

private:
    struct Thread
    {
        std::thread thread;
        bool hasEnded = false;
    };

    void joinEnded()
    {
        m_threads.remove_if([](Thread &one) {
            if (one.hasEnded)
                one.thread.join();
            return one.hasEnded;
        });
    }

    std::mutex m_mutex;
    std::condition_variable m_change;
    std::list<Thread> m_threads;
};

// Never destroyed: a thread that looks up a name may outlive main().
Threads &threads()
{
    static auto *all = new Threads;
    return *all;
}

} // namespace

struct BackgroundCall::Shared
{
    explicit Shared(std::chrono::milliseconds timeout) : guard(timeout) {}

    CallGuard guard;
    BackgroundCall *call = nullptr; // touched on the call's thread only
};

BackgroundCall::BackgroundCall(QObject *parent, std::chrono::milliseconds timeout, Work work,
                               Outcome givenUp)
    : QObject(parent), m_shared(std::make_shared<Shared>(timeout)), m_givenUp(std::move(givenUp))
{
    m_shared->call = this;
    threads().start([shared = m_shared, work = std::move(work)] {
        const auto outcome = std::make_shared<Outcome>(work(shared->guard));
        if (QCoreApplication *application = QCoreApplication::instance())
            QMetaObject::invokeMethod(application, [shared, outcome] {
                if (shared->call)
                    shared->call->finish(*outcome);
            });
    });
    startTimer(kLookInterval);
}

BackgroundCall::~BackgroundCall()
{
    m_shared->call = nullptr;
    m_shared->guard.cancel();
}

void BackgroundCall::cancel()
{
    m_shared->guard.cancel();
}

void BackgroundCall::timerEvent(QTimerEvent *)
{
    // The work itself stops waiting when its timeout is over; this catches what it cannot stop,
    // such as looking up a name.
    const auto timeout = m_shared->guard.timeout();
    if (m_givenUp && m_shared->call &&
        m_shared->guard.silence() > timeout + timeout / 4 + kLookInterval)
        finish(m_givenUp);
}

void BackgroundCall::finish(const Outcome &outcome)
{
    m_shared->call = nullptr;
    const Outcome kept = outcome;
    deleteLater();
    if (kept)
        kept();
}

bool waitForBackgroundThreads(std::chrono::milliseconds atMost)
{
    return threads().waitForAll(atMost);
}
