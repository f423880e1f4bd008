#pragma once

#include "dialog/job/SavedOptions.h"
#include "dialog/work/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

/// The file that libcups keeps the user's settings in: the one in the home folder, or the system's
/// where there is none.
QString ownLpoptionsFile();

// The texts of such a file, changed. What others wrote stays byte for byte: comments, lines that
// nobody understands, other queues and other instances.

/// The queue or instance with these settings: in its own line, or in a new one at the end. A line
/// that makes it the user's usual printer goes on doing so.
QByteArray withSavedLine(const QByteArray &text, const QueueName &name,
                         const QList<JobOption> &options);

/// Without the instance. Where it was the user's usual printer, its queue is that from now on.
QByteArray withoutSavedLine(const QByteArray &text, const QueueName &name);

/// The instance under another name, in its place.
QByteArray withRenamedLine(const QByteArray &text, const QueueName &name, const QString &instance);

/// Whether the text has a line of the queue or instance.
bool hasSavedLine(const QByteArray &text, const QueueName &name);

/// Changes the user's file: nothing else of this program does so meanwhile, and the file is written
/// as a whole or not at all, also where it is a link. A fault, and the file is as it was: the
/// change has one, or the file cannot be read or written.
Result<> changeLpoptions(const std::function<Result<QByteArray>(const QByteArray &text)> &change);
