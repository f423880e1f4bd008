#include "dialog/replay/SessionJournal.h"

#include "dialog/host/HostSession.h"
#include "dialog/replay/AlertAnswerer.h"
#include "dialog/replay/JournalExtract.h"
#include "dialog/replay/ReplayWork.h"

#include <algorithm>
#include <utility>

namespace {

/// Whether the event may change the session. The window is what it is, and help is opened once.
bool isKept(const ReplayAction &action)
{
    const auto *call = std::get_if<ReplayPanelCall>(&action);
    return !std::holds_alternative<ReplayWindow>(action) &&
           !std::holds_alternative<ReplayClose>(action) &&
           !(call && call->operation == SessionObserver::PanelOperation::Help);
}

QList<ReplayAnswer> givenAnswers(const FollowedAnswers &answers)
{
    QList<ReplayAnswer> given;
    for (const auto &answer : answers)
        given += ReplayAnswer{answer->button, answer->suppressed};
    return given;
}

void performAction(const ReplayAction &action, HostSession &session)
{
    std::visit(
        [&](const auto &event) {
            if constexpr (requires { perform(session, event); })
                perform(session, event);
        },
        action);
}

std::vector<const JournalEntry *> eventsBetween(const JournalPlace &from, const JournalPlace &to)
{
    std::vector<const JournalEntry *> events;
    for (const JournalEntry *entry = to.get(); entry != from.get(); entry = entry->before.get())
        events.push_back(entry);
    std::ranges::reverse(events);
    return events;
}

void performAll(const std::vector<const JournalEntry *> &events, HostSession &session)
{
    AlertAnswerer answerer(AlertAnswerer::Alerts::Unseen);
    for (const JournalEntry *event : events) {
        answerer.setAnswers(givenAnswers(event->answers));
        performAction(event->action, session);
        answerer.answerSheets();
        answerer.forgetReports();
    }
}

} // namespace

JournalEntry::JournalEntry(std::shared_ptr<JournalEntry> former, ReplayAction did,
                           FollowedAnswers given)
    : before(std::move(former)),
      action(std::move(did)),
      answers(std::move(given)),
      number(before ? before->number + 1 : 1)
{}

// One by one: what led to it may be longer than the stack is deep.
JournalEntry::~JournalEntry()
{
    while (before && before.use_count() == 1)
        before = std::exchange(before->before, nullptr);
}

void SessionJournal::attach(HostSession &session)
{
    m_place.reset();
    follow(session);
}

void SessionJournal::didAnswer(const HostCallback::Call &call)
{
    const bool isMade =
        call.accepted && call.kind == HostCallback::Call::Kind::WillChangePPDOptionKeyValue;
    const bool isUnseen = std::ranges::any_of(
        session()->panels(), [](const HostPanel &panel) { return !panel.controls; });
    if (isMade && isUnseen)
        m_place = std::make_shared<JournalEntry>(m_place, ReplayMark{call.keyword, call.choice},
                                                 FollowedAnswers());
}

void SessionJournal::note(const ReplayAction &action, const FollowedAnswers &answers)
{
    if (isKept(action))
        m_place = std::make_shared<JournalEntry>(m_place, action, answers);
    if (m_listener)
        m_listener(action);
}

bool isAfter(const JournalPlace &earlier, const JournalPlace &later)
{
    const JournalEntry *entry = later.get();
    while (entry && entry != earlier.get())
        entry = entry->before.get();
    return entry == earlier.get();
}

void bring(HostSession &session, const JournalPlace &from, const JournalPlace &to)
{
    performAll(eventsBetween(from, to), session);
}

void bringShortly(HostSession &session, const JournalPlace &to)
{
    performAll(extractOf(eventsBetween({}, to)), session);
}

int eventsUpTo(const JournalPlace &place)
{
    return place ? place->number : 0;
}

QString panelShownAt(const JournalPlace &place)
{
    for (const JournalEntry *entry = place.get(); entry; entry = entry->before.get()) {
        if (const auto *show = std::get_if<ReplayShow>(&entry->action))
            return show->panel;
        const auto *call = std::get_if<ReplayPanelCall>(&entry->action);
        if (call && call->operation == SessionObserver::PanelOperation::Hide)
            return {};
    }
    return {};
}
