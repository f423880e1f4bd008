#pragma once

#include "dialog/job/Document.h"
#include "dialog/work/CallGuard.h"

/// The most that is read from a pipe, in bytes: it has to be kept somewhere until it is sent.
inline constexpr qint64 kLongestPipe = 1'000'000'000;

/// Reads the pipes among the documents to their ends, into temporary files that have no names: all
/// bytes are at hand then. An end that does not come is waited for until the guard is cancelled,
/// which is a fault, too. Blocks: call it in a BackgroundCall.
Result<Documents> readPipes(const Documents &documents, CallGuard &guard,
                            qint64 longest = kLongestPipe);

/// Whether one of them has still to be read.
bool hasPipes(const Documents &documents);
