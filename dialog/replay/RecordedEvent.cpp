#include "dialog/replay/RecordedEvent.h"

#include "dialog/host/CustomParameters.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

OrderedMembers event(const char *kind, const OrderedMembers &members = {})
{
    OrderedMembers event{{u"do"_s, QLatin1String(kind)}};
    event << members;
    return event;
}

struct Recorded
{
    ppd_file_t *ppd;

    OrderedMembers operator()(const ReplayShow &show) const
    {
        return event("show", {{u"panel"_s, show.panel}});
    }

    OrderedMembers operator()(const ReplayPanelCall &call) const
    {
        // The scripts' words, in the order of PanelOperation.
        static constexpr const char *kinds[] = {"hide", "restore", "save", "summary", "help"};
        return event(kinds[static_cast<std::size_t>(call.operation)], {{u"panel"_s, call.panel}});
    }

    OrderedMembers operator()(const ReplayPick &pick) const
    {
        OrderedMembers members{{u"panel"_s, pick.panel}, {u"control"_s, pick.control}};
        members << (pick.choice
                        ? std::pair(u"choice"_s, textOrNull(*pick.choice))
                        : std::pair(u"checked"_s, QJsonValue(pick.checked.value_or(false))));
        return event("pick", members);
    }

    OrderedMembers operator()(const ReplaySlide &slide) const
    {
        return event("slide", {{u"keyword"_s, slide.keyword}, {u"value"_s, slide.value}});
    }

    OrderedMembers operator()(const ReplayRevert &) const { return event("revert"); }

    OrderedMembers operator()(const ReplayFold &fold) const
    {
        return event("fold", {{u"panel"_s, fold.panel}, {u"open"_s, fold.open}});
    }

    OrderedMembers operator()(const ReplayPaper &paper) const
    {
        OrderedMembers members{{u"name"_s, paper.paper.name},
                               {u"ppdName"_s, textOrNull(paper.paper.ppdName)},
                               {u"width"_s, paper.paper.width},
                               {u"height"_s, paper.paper.height}};
        if (paper.mapped)
            members << std::pair(u"mapped"_s, textOrNull(*paper.mapped));
        return event("paper", members);
    }

    OrderedMembers operator()(const ReplayMark &mark) const
    {
        return event("mark", {{u"keyword"_s, mark.keyword},
                              {u"choice"_s, withoutSecrets(ppd, mark.keyword, mark.choice)}});
    }

    OrderedMembers operator()(const ReplayTicket &ticket) const
    {
        return event("ticket", {{u"key"_s, ticket.key}, {u"value"_s, jsonValue(ticket.value)}});
    }

    OrderedMembers operator()(const ReplayWindow &window) const
    {
        return event("window",
                     {{u"height"_s, window.height ? QJsonValue(*window.height) : QJsonValue()}});
    }

    OrderedMembers operator()(const ReplayWatch &) const { return event("watch"); }
    OrderedMembers operator()(const ReplayPrint &) const { return event("print"); }
    OrderedMembers operator()(const ReplayClose &) const { return event("close"); }

    /// Nothing that a session is followed by.
    template <typename Other> OrderedMembers operator()(const Other &) const { return {}; }
};

QJsonObject answerReport(const FollowedAnswer &answer)
{
    QJsonObject report{{u"button"_s, answer.button}};
    if (answer.suppression)
        report.insert("suppress"_L1, answer.suppressed);
    return report;
}

} // namespace

OrderedMembers recordedEvent(const ReplayAction &action, ppd_file_t *ppd)
{
    return std::visit(Recorded{ppd}, action);
}

QByteArray scriptLine(OrderedMembers event, const FollowedAnswers &answers)
{
    QJsonArray reports;
    for (const auto &answer : answers)
        reports << answerReport(*answer);
    if (!reports.isEmpty())
        event << std::pair(u"answers"_s, QJsonValue(reports));
    return jsonLine(event);
}

bool areGiven(const FollowedAnswers &answers)
{
    return std::ranges::all_of(answers, [](const auto &answer) { return answer->given; });
}
