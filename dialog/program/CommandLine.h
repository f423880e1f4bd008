#pragma once

#include "dialog/window/DialogWishes.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// What velkaro-print was asked to do. A null string: the option was not given.
struct CommandLine : DialogWishes
{
    QString screenshot;
    QString replay;                     ///< "-": standard input
    QString checkPPD;                   ///< --check-ppd
    std::optional<RequestedChoice> why; ///< --why: what it asks of
    bool json = false;                  ///< --json: the answer for programs
    bool explain = false;               ///< --explain: what was changed by what is told
    bool dryRun = false;                ///< --dry-run: nothing is sent or written
    bool noDialog = false;
    bool forgetAlerts = false; ///< --forget-alerts
    bool yes = false;
    bool each = false;          ///< --each: every document is a job of its own
    bool wait = false;          ///< for the job's end
    std::optional<int> timeout; ///< in seconds: how long a job may be stopped or held then
    std::optional<int> passwordDescriptor; ///< --password-fd: where the password is read from
    bool version = false;
    bool help = false;
};

/// Reads the arguments, the program's name not among them; a fault when they are wrong. An option's
/// value may be its own argument or follow it ("-dqueue", "--ppd=file"); "--" ends the options.
/// --help and --version win over every fault. Documents alone may have names that are not UTF-8.
Result<CommandLine> parseCommandLine(const QStringList &arguments);
