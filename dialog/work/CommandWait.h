#pragma once

#include "dialog/work/BackgroundCall.h"
#include "dialog/work/EndSignals.h"

#include <QtCore/QPointer>

/// waitForCall() where a signal cancels the work; its result still arrives.
template <typename Result>
std::optional<Result> waitUnlessEnded(EndSignals &signals, std::chrono::milliseconds timeout,
                                      const std::function<Result(CallGuard &)> &work)
{
    auto result = waitForCall<Result>(timeout, work, [&](BackgroundCall &started) {
        signals.setAction([call = QPointer(&started)] {
            if (call)
                call->cancel();
        });
    });
    signals.setAction({});
    return result;
}
