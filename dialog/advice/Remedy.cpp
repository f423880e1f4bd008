#include "dialog/advice/Remedy.h"

#include "dialog/replay/JsonText.h"

#include <QtCore/QJsonArray>

using namespace Qt::StringLiterals;

namespace {

QJsonArray changeReports(const QList<SettingChange> &changes)
{
    QJsonArray reports;
    for (const SettingChange &change : changes)
        reports += QJsonObject{{u"keyword"_s, change.keyword},
                               {u"choice"_s, textOrNull(change.to)},
                               {u"from"_s, textOrNull(change.from)}};
    return reports;
}

QList<SettingChange> changesOf(const QJsonValue &reports)
{
    QList<SettingChange> changes;
    for (const QJsonValue report : reports.toArray())
        changes +=
            SettingChange{report["keyword"_L1].toString(), report["from"_L1].toVariant().toString(),
                          report["choice"_L1].toVariant().toString()};
    return changes;
}

} // namespace

QJsonObject adviceReport(const Advice &advice)
{
    const bool isAvailable = advice.outcome == Advice::Outcome::Available;
    return {{u"keyword"_s, advice.keyword},
            {u"choice"_s, advice.choice},
            {u"available"_s, isAvailable},
            {u"possible"_s, isAvailable || advice.outcome == Advice::Outcome::Possible},
            {u"changes"_s, changeReports(advice.remedies.value(0).changes)},
            {u"sentence"_s, advice.sentence}};
}

QJsonObject adviceMessage(const Advice &advice)
{
    QJsonArray remedies;
    for (const Remedy &remedy : advice.remedies)
        remedies += QJsonObject{{u"changes"_s, changeReports(remedy.changes)},
                                {u"beside"_s, changeReports(remedy.beside)}};
    return {{u"keyword"_s, advice.keyword},
            {u"choice"_s, advice.choice},
            {u"outcome"_s, static_cast<int>(advice.outcome)},
            {u"remedies"_s, remedies},
            {u"sentence"_s, advice.sentence}};
}

std::optional<Advice> adviceOfMessage(const QJsonObject &message)
{
    const int outcome = message["outcome"_L1].toInt(-1);
    if (outcome < 0 || outcome > static_cast<int>(Advice::Outcome::Unknown))
        return std::nullopt;
    Advice advice{message["keyword"_L1].toString(),
                  message["choice"_L1].toString(),
                  static_cast<Advice::Outcome>(outcome),
                  {},
                  message["sentence"_L1].toString()};
    for (const QJsonValue remedy : message["remedies"_L1].toArray())
        advice.remedies += Remedy{changesOf(remedy["changes"_L1]), changesOf(remedy["beside"_L1])};
    return advice;
}
