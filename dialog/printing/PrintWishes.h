#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// A setting that is asked for by its name, to be made by the same road as a pick.
struct RequestedChoice
{
    QString keyword;
    QString choice;

    bool operator==(const RequestedChoice &) const = default;
};

/// What somebody wants printed and how, before anything was looked at. A null string: nothing was
/// said of it.
struct PrintWishes
{
    QStringList files; ///< as pathOfBytes() gives them; -: standard input
    QString queue;     ///< without the instance
    QString instance;  ///< under which the user has saved settings for the queue
    QString server;    ///< host, host:port, or the path of a socket
    QString ppd;
    QList<RequestedChoice> choices; ///< in any order
    QString paper;                  ///< a PageSize choice, or Custom.WIDTHxHEIGHT
    QString title;                  ///< of the job
    QString plugIn;                 ///< the bundle's path
    QString output;                 ///< where the job goes instead of to a server
    QString record;     ///< where the session is being noted meanwhile: no job is written over it
    bool mail = false;  ///< the user is told by mail of the job's end
    bool force = false; ///< files that exist may be replaced
};
