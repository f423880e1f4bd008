#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// What a user's dialogs remember of papers from run to run, in the user's configuration folder.
/// Where it cannot be kept it is not remembered, and nothing is said: it is a convenience. What
/// does not make sense there is passed over.

/// The `PageSize` choices with which the printer was last printed to, the latest first; a few.
/// `printer` is any name that stays the same from run to run.
QStringList recentPapers(const QString &printer);
void rememberPaper(const QString &printer, const QString &choice);

/// A size that the user has given a name, in points.
struct OwnSize
{
    QString name;
    double width = 0;
    double height = 0;

    bool operator==(const OwnSize &) const = default;
};

/// Sorted by their names.
QList<OwnSize> ownSizes();

/// In place of one that has the name.
void keepOwnSize(const OwnSize &size);
void removeOwnSize(const QString &name);

/// The name as it is kept: on one line, and not too long. Empty: none.
QString ownSizeName(const QString &typed);
