#pragma once

#include "dialog/cups/ServerCall.h"
#include "dialog/job/EndSignals.h"

#include <QtCore/QPointer>

/// waitForServer() where a signal cancels the work; its result still arrives.
template <typename Result>
std::optional<Result> waitUnlessEnded(EndSignals &signals, std::chrono::milliseconds patience,
                                      const std::function<Result(CallGuard &)> &work)
{
    auto result = waitForServer<Result>(patience, work, [&](ServerCall &started) {
        signals.setAction([call = QPointer(&started)] {
            if (call)
                call->cancel();
        });
    });
    signals.setAction({});
    return result;
}
