#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// What a run of the program came to.
struct ProgramEnd
{
    int status = -1;
    QString output;
    QString error;
};

/// Runs the program as it is installed, in the place of a user who has no settings and no display,
/// and gives it the input on standard input.
ProgramEnd runAlone(const QStringList &arguments, const QByteArray &input = {},
                    const QString &language = QStringLiteral("en"));
