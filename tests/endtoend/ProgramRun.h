#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

/// What a run of the program came to.
struct ProgramRun
{
    int status = -1; ///< -1: it did not start, crashed, or never ended
    QString output;
    QString errors;
};

/// Runs velkaro-print of the build tree, without a display and with a home of its own, which has
/// nothing in it but these lpoptions. `meanwhile` gets the program once it has started.
ProgramRun runProgram(const QStringList &arguments, const QByteArray &lpoptions = QByteArray(),
                      const std::function<void(QProcess &program)> &meanwhile = {});
