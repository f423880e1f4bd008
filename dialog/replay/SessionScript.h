#pragma once

#include "dialog/replay/SessionFollower.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QByteArrayList>

#include <deque>
#include <functional>
#include <memory>
#include <utility>

/// The replay script of a session that goes on, made when somebody wants to read it: until then an
/// event costs next to nothing.
class SessionScript : public SessionFollower
{
public:
    /// Is told of every event that is not the window's, and of every answer to a sheet.
    using Listener = std::function<void()>;

    explicit SessionScript(Listener listener) : m_listener(std::move(listener)) {}

    /// Notes the session from its beginning, in the place of the one before, under that path of its
    /// PPD.
    void attach(HostSession &session, const QString &ppd);

    /// The lines, without their ends, of the events since it was asked last, up to one with an
    /// alert that has no answer.
    QByteArrayList takeLines();

private:
    /// An event that no line was made of yet.
    struct Event
    {
        explicit Event(const FollowedAnswers &given)
            : m_answers(given.empty() ? nullptr : std::make_unique<FollowedAnswers>(given))
        {}
        virtual ~Event() = default;
        virtual QByteArray line(ppd_file_t *ppd) const = 0;

        FollowedAnswers answers() const { return m_answers ? *m_answers : FollowedAnswers(); }

    private:
        const std::unique_ptr<const FollowedAnswers> m_answers; ///< null: none, as mostly
    };

    /// It takes no more room than its kind.
    template <typename Action> struct EventOf;

    void note(const ReplayAction &action, const FollowedAnswers &answers) override;
    void sheetAnswered() override { m_listener(); }

    const Listener m_listener;
    QByteArrayList m_lines; ///< that were made and not taken
    std::deque<std::unique_ptr<Event>> m_events;
};
