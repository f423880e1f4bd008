#pragma once

#include "dialog/work/CallGuard.h"

#include <QtCore/QIODevice>

#include <cups/http.h>

/// How the body of an answer ended.
enum class BodyEnd {
    Whole,     ///< where HTTP said that it would end
    CutShort,  ///< before that, or where HTTP said nothing of the end
    TooLarge,  ///< larger than it may be; the rest was not read
    TooLate,   ///< the guard waits no longer
    NotStored, ///< the device took no more, and says why
};

/// Reads the body of the answer, whose headers have been read, into the device, and stamps every
/// part of it as a sign of life.
BodyEnd readBody(http_t *http, CallGuard &guard, QIODevice &to, qint64 largest);
