#pragma once

#include "dialog/replay/SessionFollower.h"

#include <functional>
#include <memory>

/// An event of a session, and through `before` all that led to it.
struct JournalEntry
{
    JournalEntry(std::shared_ptr<JournalEntry> former, ReplayAction did, FollowedAnswers given);
    ~JournalEntry();
    JournalEntry(const JournalEntry &) = delete;
    JournalEntry &operator=(const JournalEntry &) = delete;

    std::shared_ptr<JournalEntry> before; ///< null: the session had just started
    const ReplayAction action;
    const FollowedAnswers answers;
    const int number; ///< of events up to this one, itself included
};

/// A place in the life of a session. Null: it has just started.
using JournalPlace = std::shared_ptr<JournalEntry>;

/// Keeps in memory what happens in sessions, so that another session can be brought to the same
/// place. Places are kept as long as somebody holds them; two of them share what led to both.
class SessionJournal : public SessionFollower
{
public:
    /// Is told of every event that was noted.
    using Listener = std::function<void(const ReplayAction &)>;

    explicit SessionJournal(Listener listener = {}) : m_listener(std::move(listener)) {}

    /// Begins anew with the session, which has not started yet.
    void attach(HostSession &session);

    /// What people do in the controls of a panel that tells nothing of them is known by what the
    /// panel asks for alone.
    void didAnswer(const HostCallback::Call &call) override;

    /// The place where the session is now.
    const JournalPlace &place() const { return m_place; }

    /// Takes the session for one that is at this place: it was brought there.
    void setPlace(const JournalPlace &place) { m_place = place; }

private:
    void note(const ReplayAction &action, const FollowedAnswers &answers) override;

    const Listener m_listener;
    JournalPlace m_place;
};

/// Brings a session from a place, where it is, to one that comes after it (null `from`: it has just
/// started), by the same events. Alerts are answered as they were, and kept from the screen. The
/// places may be those of another session that was opened alike.
void bring(HostSession &session, const JournalPlace &from, const JournalPlace &to);

/// Brings a session that has just started to the place by fewer events, where many led there: what
/// was done in a control long ago and then once more is left out. That mostly leads to the same
/// state, and the caller is to find out whether it did.
void bringShortly(HostSession &session, const JournalPlace &to);

/// How many events led to the place.
int eventsUpTo(const JournalPlace &place);

/// Whether `later` comes after `earlier`, or is the same.
bool isAfter(const JournalPlace &earlier, const JournalPlace &later);

/// The name of the panel that is on screen at the place; null without one.
QString panelShownAt(const JournalPlace &place);
