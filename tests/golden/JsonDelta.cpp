#include "tests/golden/JsonDelta.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

namespace {

QString encoded(const QString &name)
{
    QString text;
    for (const QChar character : name) {
        const bool plain = character > u' ' && character != u'/' && character != u'%';
        text += plain ? QString(character)
                      : QStringLiteral("%%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
    }
    return text;
}

QString decoded(const QString &name)
{
    return QString::fromUtf8(QByteArray::fromPercentEncoding(name.toUtf8()));
}

QList<JsonChange> changesOfMembers(const QJsonObject &before, const QJsonObject &after,
                                   const QString &path)
{
    QJsonObject all = before;
    for (auto member = after.begin(); member != after.end(); ++member)
        all.insert(member.key(), member.value());
    QList<JsonChange> changes;
    for (const QString &name : all.keys())
        changes += changesBetween(before[name], after[name], path + u'/' + encoded(name));
    return changes;
}

QList<JsonChange> changesOfItems(const QJsonArray &before, const QJsonArray &after,
                                 const QString &path)
{
    QList<JsonChange> changes;
    for (qsizetype index = 0; index < after.size(); ++index)
        changes +=
            changesBetween(before[index], after[index], path + u'/' + QString::number(index));
    return changes;
}

QJsonValue withChange(const QJsonValue &before, const QStringList &steps, const QJsonValue &value)
{
    if (steps.isEmpty())
        return value;
    const QString &step = steps.constFirst();
    if (before.isArray()) {
        QJsonArray items = before.toArray();
        const int index = step.toInt();
        if (index < items.size())
            items[index] = withChange(items[index], steps.mid(1), value);
        return items;
    }
    QJsonObject members = before.toObject();
    members[decoded(step)] = withChange(members[decoded(step)], steps.mid(1), value);
    return members;
}

} // namespace

QList<JsonChange> changesBetween(const QJsonValue &before, const QJsonValue &after,
                                 const QString &path)
{
    if (before == after)
        return {};
    if (before.isObject() && after.isObject())
        return changesOfMembers(before.toObject(), after.toObject(), path);
    if (before.isArray() && after.isArray() && before.toArray().size() == after.toArray().size())
        return changesOfItems(before.toArray(), after.toArray(), path);
    return {{path, after}};
}

QJsonValue withChanges(QJsonValue before, const QList<JsonChange> &changes)
{
    for (const JsonChange &change : changes)
        before = withChange(before, change.path.split(u'/').mid(1), change.value);
    return before;
}

QByteArray compactText(const QJsonValue &value)
{
    if (value.isUndefined())
        return "nothing";
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

QJsonValue valueOfText(const QByteArray &text)
{
    const QJsonDocument list = QJsonDocument::fromJson('[' + text + ']');
    return list.array().size() == 1 ? list.array().at(0) : QJsonValue(QJsonValue::Undefined);
}
