#pragma once

#include "dialog/cups/ServerConnection.h"
#include "dialog/job/JobOption.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

/// Whether the options ask for a job that waits at the server.
bool isToBeHeld(const QList<JobOption> &options);

/// Asks the server for the accepted job and compares it with the options that were sent. Gives one
/// sentence for each option that the job lacks or has otherwise, one for each setting that the
/// server has added against what was shown (influenceOf()), and one when the job is held or has
/// ended badly; none when all is as sent, or the server says that it does not tell. An answer
/// that cannot be had or read is one sentence too: it changes nothing in that the job was accepted.
QStringList readJobBack(ServerConnection &connection, const QString &queue, int jobId,
                        const QList<JobOption> &sent);

/// The same sentences, for an answer that has been fetched already.
QStringList differences(ipp_t *job, int jobId, const QList<JobOption> &sent);
