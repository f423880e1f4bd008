#pragma once

#include "dialog/work/CallGuard.h"

#include <QtCore/QObject>

#include <functional>
#include <memory>

/// The timeout of work with files: slow disks and pipes are for the user to give up.
inline constexpr std::chrono::hours kFileTimeout{24};

/// Work that waits for a server or reads a file, on a thread of its own, so that the dialog never
/// does.
///
/// The work gets a guard, and gives back what is to happen on the thread that started it. Exactly
/// one of three things happens: that, or `givenUp` when the guard timed out although the
/// work has not returned, or nothing at all when the call was destroyed first. With a null
/// `givenUp` the work is waited for however long it takes. A call destroys itself afterwards, or
/// with its parent.
class BackgroundCall : public QObject
{
public:
    using Outcome = std::function<void()>;
    using Work = std::function<Outcome(CallGuard &)>;

    BackgroundCall(QObject *parent, std::chrono::milliseconds timeout, Work work, Outcome givenUp);
    ~BackgroundCall() override;

    /// Asks the work to stop; its outcome still arrives.
    void cancel();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Shared;
    void finish(const Outcome &outcome);

    std::shared_ptr<Shared> m_shared;
    Outcome m_givenUp;
};

/// Waits up to the time for the threads of all calls to end. At the end of the program, after the
/// calls were destroyed: a thread must not run on while the process is taken down. False when one
/// still runs.
bool waitForBackgroundThreads(std::chrono::milliseconds atMost);
