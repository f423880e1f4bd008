#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// A setting asked for with -o, to be made by the same road as a pick.
struct RequestedChoice
{
    QString keyword;
    QString choice;

    bool operator==(const RequestedChoice &) const = default;
};

/// What velkaro-print was asked to do. A null string: the option was not given.
struct CommandLine
{
    QStringList files; ///< as pathOfBytes() gives them; -: standard input
    QString queue;     ///< -d, without the instance
    QString instance;  ///< what stands behind the slash of "-d queue/instance"
    QString server;    ///< -h: host, host:port, or the path of a socket
    QString ppd;
    QList<RequestedChoice> choices; ///< -o, in the order given
    QString paper;                  ///< --paper: a PageSize choice, or Custom.WIDTHxHEIGHT
    QString output;
    QString screenshot;
    QString panel; ///< --panel: the name of a panel, "setup" or "summary"
    QString record;
    QString replay;   ///< "-": standard input
    QString checkPPD; ///< --check-ppd
    QString plugIn;
    bool force = false; ///< files that exist may be replaced
    bool noDialog = false;
    bool yes = false;
    bool version = false;
    bool help = false;
};

/// A command line that was understood, or one sentence that says what is wrong with it.
struct ParsedCommandLine
{
    CommandLine commandLine;
    QString error; ///< null when there is none
};

/// Reads the arguments, the program's name not among them. An option's value may be its own
/// argument or follow it ("-dqueue", "--ppd=file"); "--" ends the options. --help and --version
/// win over every fault. Documents alone may have names that are not UTF-8.
ParsedCommandLine parseCommandLine(const QStringList &arguments);
