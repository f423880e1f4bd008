#include "dialog/replay/SessionScript.h"

#include "dialog/host/HostSession.h"
#include "dialog/replay/RecordedEvent.h"

namespace {

bool isOfWindow(const ReplayAction &action)
{
    return std::holds_alternative<ReplayWindow>(action) ||
           std::holds_alternative<ReplayWatch>(action);
}

} // namespace

void SessionScript::attach(HostSession &session, const QString &ppd)
{
    m_events.clear();
    follow(session);
    m_events.push_back({[members = recordedOpen(session, ppd)] { return members; }, {}});
}

void SessionScript::note(const ReplayAction &action, const FollowedAnswers &answers)
{
    // The kind of event that it is takes less room than any.
    std::visit(
        [&](const auto &event) {
            m_events.push_back(
                {[this, event] { return recordedEvent(event, session()->ppd()); }, answers});
        },
        action);
    if (!isOfWindow(action))
        m_listener();
}

QByteArrayList SessionScript::takeLines()
{
    QByteArrayList lines;
    while (session() && !m_events.empty() && areGiven(m_events.front().answers)) {
        lines += scriptLine(m_events.front().members(), m_events.front().answers);
        m_events.pop_front();
    }
    return lines;
}
