#pragma once

#include "dialog/job/JobOption.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// A queue, or one of the instances that a user has saved settings under.
struct QueueName
{
    QString queue;
    QString instance; ///< null: the queue itself

    bool operator==(const QueueName &) const = default;
};

/// Whether both are the same to libcups, which reads over the case of letters.
bool isSameQueue(const QueueName &one, const QueueName &other);

/// More settings than any queue or instance has.
inline constexpr qsizetype kMostSavedOptions = 1000;

/// The settings that the system and the user have saved with lpoptions for the queue and, above
/// them, for the instance. Read from the files, without asking a server.
QList<JobOption> savedOptions(const QueueName &name);

/// The instances that the system and the user have saved settings for, each once. Some may be of
/// queues that are no more.
QList<QueueName> savedInstances();

/// The queue that LPDEST or PRINTER name; a null queue: neither does.
QueueName environmentQueue();

/// The queue that the user, else the system, has made the default one with lpoptions; a null queue:
/// none.
QueueName savedDefaultQueue();

/// The queue that the user prints to unless told otherwise, as `lp` does: the environment's, else
/// the saved default. A null queue: the server decides.
QueueName usualQueue();

/// A fault when the name has an instance that nobody has saved settings for: libcups would print
/// without any. It tells of the file that cannot be read, where there is one.
Result<> checkInstance(const QueueName &name);

/// One line of an lpoptions file, "Dest photo/glossy media=a4 ..." or "Default ...". An empty
/// queue: the line says nothing.
struct SavedLine
{
    QueueName name;
    bool isDefault = false;
    QList<JobOption> options;
};

SavedLine parseSavedLine(const QByteArray &line);

/// "queue/instance" taken apart, and put together again. Names of queues hold no slash.
QueueName queueName(const QString &text);
QString textOf(const QueueName &name);
