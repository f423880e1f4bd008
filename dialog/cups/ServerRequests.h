#pragma once

#include "dialog/cups/IppAnswer.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <cups/cups.h>

// What a print server is asked with (ServerConnection).

/// The user's name as servers are told it.
QByteArray requestingUser();

/// A request about the queue, with the attributes that every request begins with.
IppHandle queueRequest(ipp_op_t operation, const QString &queue);

/// The same about a job of the queue.
IppHandle jobRequest(ipp_op_t operation, const QString &queue, int jobId);

/// Has the request ask for these attributes alone.
void askFor(ipp_t *request, const QList<QByteArray> &names);

/// The path of the queue on its server.
QByteArray queueResource(const QString &queue);
