#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>

// What changed between two JSON values, in a form that people read and programs apply.

/// One place that differs. Its path goes from the root by member names and positions, each behind a
/// slash; spaces, slashes, percent and control characters in names are percent-encoded. The root's
/// own path is empty.
struct JsonChange
{
    QString path;
    QJsonValue value; ///< undefined: the place is gone
};

/// The changes in the order of the paths. Lists of different lengths are replaced whole.
QList<JsonChange> changesBetween(const QJsonValue &before, const QJsonValue &after,
                                 const QString &path = QString());

/// `before` with the changes made. Places on the way that are not there come into being as objects.
QJsonValue withChanges(QJsonValue before, const QList<JsonChange> &changes);

/// The value as text on one line.
QByteArray compactText(const QJsonValue &value);

/// The value that stands in the text; undefined when it is none.
QJsonValue valueOfText(const QByteArray &text);
