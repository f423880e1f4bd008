#include "dialog/replay/JournalExtract.h"

#include <QtCore/QSet>
#include <QtCore/QString>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::ptrdiff_t kLatest = 60; // events: what a panel has kept of them is nobody's to know

// What an event is done to: a later one to the same takes its place. Null: none does.

QString subjectOf(const ReplayShow &show)
{
    return u"show "_s + show.panel;
}

QString subjectOf(const ReplayPanelCall &call)
{
    return u"call %1 %2"_s.arg(static_cast<int>(call.operation)).arg(call.panel);
}

QString subjectOf(const ReplayPick &pick)
{
    return u"pick %1 %2"_s.arg(pick.panel, pick.control);
}

QString subjectOf(const ReplaySlide &slide)
{
    return u"slide "_s + slide.keyword;
}

QString subjectOf(const ReplayRevert &)
{
    return u"revert"_s;
}

QString subjectOf(const ReplayFold &fold)
{
    return u"fold "_s + fold.panel;
}

QString subjectOf(const ReplayPaper &)
{
    return u"paper"_s;
}

QString subjectOf(const ReplayMark &mark)
{
    return u"mark "_s + mark.keyword;
}

QString subjectOf(const ReplayTicket &ticket)
{
    return u"ticket "_s + ticket.key;
}

template <typename Other> QString subjectOf(const Other &)
{
    return {};
}

QString subject(const JournalEntry &event)
{
    return std::visit([](const auto &action) { return subjectOf(action); }, event.action);
}

/// A control can be used once its panel was shown.
QSet<const JournalEntry *> firstShown(const std::vector<const JournalEntry *> &events)
{
    QSet<QString> panels;
    QSet<const JournalEntry *> first;
    for (const JournalEntry *event : events)
        if (const auto *show = std::get_if<ReplayShow>(&event->action);
            show && !panels.contains(show->panel)) {
            panels.insert(show->panel);
            first.insert(event);
        }
    return first;
}

} // namespace

std::vector<const JournalEntry *> extractOf(const std::vector<const JournalEntry *> &events)
{
    const QSet<const JournalEntry *> first = firstShown(events);
    const auto latest = events.end() - std::min(std::ssize(events), kLatest);
    std::vector<const JournalEntry *> extract(std::make_reverse_iterator(events.end()),
                                              std::make_reverse_iterator(latest));
    QSet<QString> done;
    for (auto event = std::make_reverse_iterator(latest); event != events.rend(); ++event) {
        const QString to = subject(**event);
        if (to.isNull() || !done.contains(to) || first.contains(*event))
            extract.push_back(*event);
        done.insert(to);
    }
    std::ranges::reverse(extract);
    return extract;
}
