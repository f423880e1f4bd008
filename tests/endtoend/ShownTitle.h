#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QString>

/// The title of a button or a tab as it is read: without the mark of its mnemonic.
inline QString shownTitle(QString title)
{
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return title.replace(mark, QStringLiteral("\\1"));
}
