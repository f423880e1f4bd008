#include "tests/dialog/replay/JsonSubset.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QJsonValue &value)
{
    if (value.isUndefined())
        return u"nothing"_s;
    return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
}

QStringList difference(const QJsonValue &expected, const QJsonValue &actual, const QString &path)
{
    return {path + u": expected "_s + textOf(expected) + u", got "_s + textOf(actual)};
}

QStringList missingMember(const QString &name, const QJsonValue &expected, const QJsonValue &actual,
                          const QString &path)
{
    if (!name.startsWith(u'!'))
        return missingParts(expected, actual[name], path + name);
    const QString unwanted = name.mid(1);
    const QJsonValue found = actual[unwanted];
    return found.isUndefined() ? QStringList()
                               : difference(QJsonValue::Undefined, found, path + unwanted);
}

} // namespace

QStringList missingParts(const QJsonValue &expected, const QJsonValue &actual, const QString &path)
{
    QStringList missing;
    if (expected.isObject() && actual.isObject()) {
        const QJsonObject members = expected.toObject();
        for (auto member = members.begin(); member != members.end(); ++member)
            missing += missingMember(member.key(), member.value(), actual, path + u'/');
    } else if (expected.isArray() && actual.isArray()) {
        const QJsonArray items = expected.toArray();
        if (items.size() != actual.toArray().size())
            return difference(expected, actual, path);
        for (qsizetype index = 0; index < items.size(); ++index)
            missing +=
                missingParts(items[index], actual[index], path + u'/' + QString::number(index));
    } else if (expected != actual) {
        missing = difference(expected, actual, path);
    }
    return missing;
}
