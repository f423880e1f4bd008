#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QList>
#include <QtCore/QString>

// The settings that the user printed with last, for each printer; kept in the program's own
// configuration file. Only the dialog asks for them.

/// Whether the user wants them back; yes, until told otherwise.
bool remembersLastUsed();

/// From then on they are remembered, or no longer: what was remembered is forgotten then.
void setRemembersLastUsed(bool remembers);

/// Those of the queue on the server (null: the user's usual one); none when nothing is remembered.
QList<JobOption> lastUsedSettings(const QString &server, const QString &queue);

/// Keeps them in the place of the former ones, while the user wants that.
void rememberLastUsed(const QString &server, const QString &queue, const QList<JobOption> &options);
