#include "dialog/work/BackgroundCall.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kLookInterval{100};

/// How many threads of calls there are.
struct Threads
{
    std::mutex mutex;
    std::condition_variable ended;
    int running = 0;
};

// Never destroyed: a thread that outlives main() may still report its end.
Threads &threads()
{
    static auto *all = new Threads;
    return *all;
}

void countThread(int change)
{
    const std::lock_guard lock(threads().mutex);
    threads().running += change;
    threads().ended.notify_all();
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
    countThread(+1);
    std::thread([shared = m_shared, work = std::move(work)]() mutable {
        auto outcome = std::make_shared<Outcome>(work(shared->guard));
        work = nullptr;
        if (QCoreApplication *application = QCoreApplication::instance())
            QMetaObject::invokeMethod(application, [shared, outcome] {
                if (shared->call)
                    shared->call->finish(*outcome);
            });
        outcome.reset();
        shared.reset();
        countThread(-1);
    }).detach();
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
    if (m_shared->call && m_shared->guard.silence() > timeout + timeout / 4 + kLookInterval)
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
    std::unique_lock lock(threads().mutex);
    return threads().ended.wait_for(lock, atMost, [] { return threads().running == 0; });
}

void background_call::runLoop(std::chrono::milliseconds timeout, const BackgroundCall::Work &work,
                              const std::function<void(BackgroundCall &)> &started)
{
    QEventLoop loop;
    QObject owner;
    const auto quit = [&loop] { loop.quit(); };
    auto *call = new BackgroundCall(
        &owner, timeout,
        [work, quit](CallGuard &guard) -> BackgroundCall::Outcome {
            return [outcome = work(guard), quit] {
                outcome();
                quit();
            };
        },
        quit);
    if (started)
        started(*call);
    loop.exec();
}
