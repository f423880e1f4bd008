#pragma once

#include "dialog/cups/Passwords.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/Result.h"

#include <QtCore/QStringList>

#include <cups/ipp.h>

#include <optional>

class ServerConnection;
struct JobPlace;

/// What the printer behind a queue is told of who prints.
struct AuthInfo
{
    QStringList names;              ///< what it wants to know, in its order
    std::optional<Credentials> who; ///< none: it is told nothing
    PasswordQuestion question;      ///< that this is the answer to
};

/// Adds it to the request, whose attributes of a job must not have begun.
void addAuthInfo(ipp_t *request, const AuthInfo &info);

/// Who prints, for a job to a queue whose printer wants to know these names: as it was told before
/// in this run, else somebody is asked. It is told nothing where it wants nothing, or where nobody
/// may be asked (PasswordScope): the job will be held then. A fault where nobody answers.
Result<AuthInfo> askWhoPrints(ServerConnection &connection, const QString &queue,
                              const QStringList &names);

/// The job was created with it.
void noteWhoPrints(const AuthInfo &info, int jobId);

/// Tells the printer behind the queue who prints the job that is held for that: somebody is asked
/// (Passwords.h) for what the queue wants to know, up to three times. The server lets the job go on
/// then. Blocks: call it in a BackgroundCall.
Result<> authenticateJob(const JobPlace &job, CallGuard &guard);
