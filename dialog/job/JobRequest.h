#pragma once

#include "dialog/job/Document.h"
#include "dialog/job/JobOption.h"

#include <QtCore/QList>
#include <QtCore/QString>

/// A job as it is handed to a server.
struct JobRequest
{
    QString server; ///< null: the user's usual one
    QString queue;
    QString title;
    QList<JobOption> options;
    Documents documents;    ///< at least one, no pipe among them
    bool isOnTrial = false; ///< sent held, until it was compared with what the server made of it
};
