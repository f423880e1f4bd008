#include "dialog/replay/JsonText.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {

QByteArray valueText(const QJsonValue &value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

} // namespace

QByteArray jsonLine(const OrderedMembers &members)
{
    QByteArray line;
    for (const auto &[name, value] : members)
        line += (line.isEmpty() ? "{" : ",") + valueText(name) + ':' + valueText(value);
    return line.isEmpty() ? QByteArray("{}") : line + '}';
}

QJsonValue jsonValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Long:
    case QMetaType::Short:
    case QMetaType::Char:
    case QMetaType::SChar:
        return value.toLongLong();
    case QMetaType::ULong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        return QJsonValue::fromVariant(value.toULongLong());
    case QMetaType::QVariantMap:
        return jsonObject(value.toMap());
    default:
        return QJsonValue::fromVariant(value);
    }
}

QJsonObject jsonObject(const QVariantMap &values)
{
    QJsonObject object;
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        object.insert(entry.key(), jsonValue(entry.value()));
    return object;
}

QJsonValue textOrNull(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}
