#pragma once

#include "dialog/job/SavedOptions.h"

#include <QtCore/QString>

/// What the dialog remembers of a user from run to run (UserDefaults): to which queue of a server
/// the user printed last. `server` is as in JobRequest; null: the usual one.

/// A null queue: none is remembered.
QueueName lastPrinter(const QString &server);

/// Where it cannot be kept, it is not remembered, and nothing is said: it is a convenience.
void rememberPrinter(const QString &server, const QueueName &queue);
