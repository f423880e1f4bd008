#include "dialog/cups/ServerCall.h"

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

struct ServerCall::Shared
{
    explicit Shared(std::chrono::milliseconds patience) : guard(patience) {}

    CallGuard guard;
    ServerCall *call = nullptr; // touched on the call's thread only
};

ServerCall::ServerCall(QObject *parent, std::chrono::milliseconds patience, Work work,
                       Outcome givenUp)
    : QObject(parent), m_shared(std::make_shared<Shared>(patience)), m_givenUp(std::move(givenUp))
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

ServerCall::~ServerCall()
{
    m_shared->call = nullptr;
    m_shared->guard.cancel();
}

void ServerCall::cancel()
{
    m_shared->guard.cancel();
}

void ServerCall::timerEvent(QTimerEvent *)
{
    // The work itself stops waiting when its patience is over; this catches what it cannot stop,
    // such as looking up a name.
    const auto patience = m_shared->guard.patience();
    if (m_shared->call && m_shared->guard.silence() > patience + patience / 4 + kLookInterval)
        finish(m_givenUp);
}

void ServerCall::finish(const Outcome &outcome)
{
    m_shared->call = nullptr;
    const Outcome kept = outcome;
    deleteLater();
    if (kept)
        kept();
}

bool waitForServerThreads(std::chrono::milliseconds atMost)
{
    std::unique_lock lock(threads().mutex);
    return threads().ended.wait_for(lock, atMost, [] { return threads().running == 0; });
}

void server_call::runLoop(std::chrono::milliseconds patience, const ServerCall::Work &work,
                          const std::function<void(ServerCall &)> &started)
{
    QEventLoop loop;
    QObject owner;
    const auto quit = [&loop] { loop.quit(); };
    auto *call = new ServerCall(
        &owner, patience,
        [work, quit](CallGuard &guard) -> ServerCall::Outcome {
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
