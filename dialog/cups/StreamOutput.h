#pragma once

#include "dialog/cups/CallGuard.h"
#include "dialog/files/FileDescriptor.h"

#include <QtCore/QString>

/// Output to a device or a pipe that somebody else reads, or does not: every wait ends when the
/// guard is cancelled.

/// Opens it for writing, a named pipe when somebody reads it. Not open when it cannot be (errno
/// says why) or the guard was cancelled. The thread gets no SIGPIPE any more: a reader that has
/// gone is a fault of writing.
FileDescriptor openStream(const QString &path, CallGuard &guard);

/// Writes all bytes. False when it takes no more (errno says why) or the guard was cancelled.
bool writeToStream(const FileDescriptor &stream, const char *bytes, qint64 length,
                   CallGuard &guard);
