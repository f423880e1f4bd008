#pragma once

#include <QtCore/QtGlobal>

// What a server may cost, beside its silence (kServerTimeout in CallGuard.h). Times are multiples
// of the call's timeout, which is 8 seconds, so that one number shortens them all.

/// A request and its whole answer: 32 s. A document is sent for as long as it moves; then its
/// answer has this time.
inline constexpr int kTimeoutsPerExchange = 4;

/// The silence of a server that was sent a document, and may be busy with it: 24 s. Its answer
/// decides whether the job prints.
inline constexpr int kTimeoutsAfterDocument = 3;

/// A PPD: 64 s.
inline constexpr int kTimeoutsPerPPD = 8;

/// What is asked of an accepted job, in which nothing can fail any more: one timeout, and never as
/// long as whoever waits for the whole call would wait for a silent one.
inline constexpr int kTimeoutsPerReadBack = 1;

/// An answer in IPP. A list of 20,000 printers takes 4 MB and 140,000 values.
inline constexpr qint64 kLargestAnswer = 32LL * 1024 * 1024;
inline constexpr int kMostValues = 500'000;

/// Collections within collections: no standard attribute has more than four. Each takes a kilobyte
/// or more of the stack in libcups.
inline constexpr int kDeepestCollection = 16;

/// More than openPPD() takes.
inline constexpr qint64 kLargestPPDAnswer = 16LL * 1024 * 1024;

/// Requests sent anew, after an upgrade to TLS or with credentials: libcups tries some by itself
/// before it asks for others, and people are asked three times.
inline constexpr int kMostAttempts = 10;

/// How much of a server's text is shown, in UTF-16 units.
inline constexpr int kLongestText = 300;
