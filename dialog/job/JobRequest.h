#pragma once

#include "dialog/files/FileDescriptor.h"
#include "dialog/job/Document.h"
#include "dialog/job/JobOption.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <optional>

/// On what terms a queue takes jobs, as its server tells.
struct QueueTerms
{
    QString name; ///< the queue's own, in whatever case it was asked for; null: not told
    QList<JobOption> defaults; ///< it adds to jobs that do not say it; names without "-default"
    QStringList authInfo; ///< its printer wants to know of who prints: "username", "password", ...

    bool operator==(const QueueTerms &) const = default;
};

/// The PPD of a queue, as the server sent it.
struct QueuePPD
{
    /// Has no name, and goes with the last copy. Null: the queue exists and has no PPD.
    std::shared_ptr<const FileDescriptor> file;
    QByteArray resource; ///< where the server has it: that of a class is its member's
    /// By which the server tells it from a later one (`If-Modified-Since`); null where that could
    /// miss one.
    QByteArray version;

    /// Where the file can be opened for as long as a copy of this is there; null without one.
    QString path() const
    {
        return file ? QStringLiteral("/proc/self/fd/%1").arg(file->get()) : QString();
    }
};

/// A job as it is handed to a server.
struct JobRequest
{
    QString server; ///< null: the user's usual one
    QString queue;
    QString title;
    QList<JobOption> options;
    Documents documents;    ///< at least one, no pipe among them
    bool isOnTrial = false; ///< sent held, until it was compared with what the server made of it
    std::optional<QueueTerms> terms = {}; ///< none: the server is asked for them
    /// The queue's PPD that its settings are of, and without which it must not be printed; none:
    /// they are not the queue's.
    std::optional<QueuePPD> ppd = {};
};
