#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// What a run of the program came to.
struct ProgramRun
{
    int status = -1; ///< -1: it did not start, crashed, or never ended
    QString output;
    QString errors;
};

/// Runs velkaro-print of the build tree, without a display and with a home of its own, which has
/// nothing in it but these lpoptions.
ProgramRun runProgram(const QStringList &arguments, const QByteArray &lpoptions = QByteArray());
