#pragma once

#include "dialog/work/BackgroundCall.h"

#include <QtCore/QPointer>

#include <memory>
#include <utility>

/// Work on a thread of which the latest counts: beginning anew gives the former one up, and nobody
/// is told of it. So does the end of this.
class LatestCall
{
public:
    LatestCall() = default;
    ~LatestCall() { stop(); }
    LatestCall(const LatestCall &) = delete;
    LatestCall &operator=(const LatestCall &) = delete;

    /// Begins the work; `take` gets its outcome on this thread, and may begin the next one. Where
    /// the work has not returned after the time, `take` gets what `givenUp` gives; null: nobody
    /// gives it up (BackgroundCall).
    template <typename Value>
    void begin(std::chrono::milliseconds timeout, std::function<Value(CallGuard &)> work,
               std::function<void(Value)> take, std::function<Value()> givenUp = {})
    {
        stop();
        BackgroundCall::Outcome outcome;
        if (givenUp)
            outcome = [this, take, givenUp] {
                m_call.clear();
                take(givenUp());
            };
        m_call = new BackgroundCall(
            nullptr, timeout,
            [this, work = std::move(work), take](CallGuard &guard) -> BackgroundCall::Outcome {
                const auto value = std::make_shared<Value>(work(guard));
                return [this, take, value] {
                    m_call.clear();
                    take(std::move(*value));
                };
            },
            std::move(outcome));
    }

    bool isGoingOn() const { return !m_call.isNull(); }

    /// Asks the work to stop; its outcome still arrives.
    void cancel()
    {
        if (m_call)
            m_call->cancel();
    }

    /// Nobody wants the outcome any more.
    void stop() { delete m_call; }

private:
    QPointer<BackgroundCall> m_call;
};
