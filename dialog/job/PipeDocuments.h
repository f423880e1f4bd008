#pragma once

#include "dialog/job/Document.h"
#include "dialog/work/CallGuard.h"
#include "dialog/work/ServerFault.h"

/// The most that is read from a pipe, in bytes: it has to be kept somewhere until it is sent.
inline constexpr qint64 kLongestPipe = 1'000'000'000;

/// Documents whose bytes are all at hand, or why not: a fault of a document, or the user did not
/// want to wait for its end.
struct ReadDocuments
{
    Documents documents;
    ServerAnswer answer;
};

/// Reads the pipes among the documents to their ends, into temporary files that have no names. An
/// end that does not come is waited for until the guard is cancelled. Blocks: call it in a
/// BackgroundCall.
ReadDocuments readPipes(const Documents &documents, CallGuard &guard,
                        qint64 longest = kLongestPipe);

/// Whether one of them has still to be read.
bool hasPipes(const Documents &documents);
