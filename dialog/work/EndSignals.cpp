#include "dialog/work/EndSignals.h"

#include <QtCore/QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace {

// What a handler may touch.
std::atomic<int> g_event = -1;
std::atomic<int> g_first = 0; // the number of a signal

static_assert(std::atomic<int>::is_always_lock_free);

void handle(int number)
{
    int none = 0;
    if (!g_first.compare_exchange_strong(none, number)) {
        std::signal(number, SIG_DFL);
        std::raise(number); // held back until this handler has returned
        return;
    }
    const int error = errno;
    eventfd_write(g_event, 1);
    errno = error;
}

} // namespace

EndSignals::EndSignals(std::function<void()> action) : m_action(std::move(action))
{
    g_first = 0;
    g_event = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    m_notifier = std::make_unique<QSocketNotifier>(g_event, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        act();
    });
    struct sigaction ours = {};
    ours.sa_handler = handle;
    ours.sa_flags = SA_RESTART;
    for (std::size_t index = 0; index < kSignals.size(); ++index) {
        sigaction(kSignals[index], nullptr, &m_former[index]);
        if (m_former[index].sa_handler != SIG_IGN)
            sigaction(kSignals[index], &ours, nullptr);
    }
}

EndSignals::~EndSignals()
{
    for (std::size_t index = 0; index < kSignals.size(); ++index)
        sigaction(kSignals[index], &m_former[index], nullptr);
    m_notifier.reset();
    close(g_event.exchange(-1));
}

void EndSignals::setAction(std::function<void()> action)
{
    m_action = std::move(action);
    if (haveCome())
        act();
}

int EndSignals::first()
{
    return g_first;
}

void EndSignals::act()
{
    if (const std::function<void()> action = m_action)
        action();
}

void ignoreEndSignals()
{
    for (const int number : {SIGHUP, SIGINT, SIGTERM})
        std::signal(number, SIG_IGN);
}
