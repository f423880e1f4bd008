#pragma once

#include <QtCore/QJsonValue>
#include <QtCore/QStringList>

/// Where the actual value lacks something of the expected one, a line each. Objects may have more
/// members than expected; everything else must be equal, lists item by item. An expected member
/// whose name begins with "!" says that there is no member of the rest of the name.
QStringList missingParts(const QJsonValue &expected, const QJsonValue &actual,
                         const QString &path = QString());
