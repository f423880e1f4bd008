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

template <typename Action> struct SessionScript::EventOf : Event
{
    EventOf(const Action &did, const FollowedAnswers &given) : Event(given), action(did) {}

    QByteArray line(ppd_file_t *ppd) const override
    {
        return scriptLine(recordedEvent(action, ppd), answers());
    }

    const Action action;
};

void SessionScript::attach(HostSession &session, const QString &ppd)
{
    m_events.clear();
    follow(session);
    m_lines = {scriptLine(recordedOpen(session, ppd), {})};
}

void SessionScript::note(const ReplayAction &action, const FollowedAnswers &answers)
{
    std::visit(
        [&]<typename Action>(const Action &did) {
            m_events.push_back(std::make_unique<EventOf<Action>>(did, answers));
        },
        action);
    if (!isOfWindow(action))
        m_listener();
}

QByteArrayList SessionScript::takeLines()
{
    for (; session() && !m_events.empty() && areGiven(m_events.front()->answers());
         m_events.pop_front())
        m_lines += m_events.front()->line(session()->ppd());
    return std::exchange(m_lines, {});
}
