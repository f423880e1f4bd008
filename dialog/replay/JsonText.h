#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// A JSON object whose members keep their order, for lines that people read.
using OrderedMembers = QList<QPair<QString, QJsonValue>>;

/// The members as one line of JSON, without a line break.
QByteArray jsonLine(const OrderedMembers &members);

/// The value as it is: whole numbers stay whole, single-precision ones become double ones.
QJsonValue jsonValue(const QVariant &value);
QJsonObject jsonObject(const QVariantMap &values);

/// Null for a null string.
QJsonValue textOrNull(const QString &text);
