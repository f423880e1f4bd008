#pragma once

#include "dialog/job/Document.h"
#include "dialog/job/JobOption.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// On what terms a queue takes jobs, as its server tells.
struct QueueTerms
{
    QList<JobOption> defaults; ///< it adds to jobs that do not say it; names without "-default"
    QStringList authInfo; ///< its printer wants to know of who prints: "username", "password", ...

    bool operator==(const QueueTerms &) const = default;
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
};
