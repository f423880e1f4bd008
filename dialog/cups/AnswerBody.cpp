#include "dialog/cups/AnswerBody.h"

#include <array>

namespace {

/// Whether the body is complete. libcups reports the same end for a body that was cut off: what it
/// has read is compared with the announced length, and a chunked body must have had its last chunk.
bool isWhole(http_t *http, qint64 bytes)
{
    const bool isOfStatedLength =
        *httpGetField(http, HTTP_FIELD_CONTENT_LENGTH) != '\0' && httpGetLength2(http) == bytes;
    return (httpIsChunked(http) || isOfStatedLength) && httpGetRemaining(http) == 0 &&
           httpError(http) == 0;
}

/// A full disk takes a part first; only what follows fails with a reason.
bool writeAll(QIODevice &to, const char *data, qint64 size)
{
    qint64 written = 0;
    while (size > 0 && (written = to.write(data, size)) > 0) {
        data += written;
        size -= written;
    }
    return size == 0;
}

} // namespace

BodyEnd readBody(http_t *http, CallGuard &guard, QIODevice &to, qint64 largest)
{
    std::array<char, 65536> buffer{};
    qint64 total = 0;
    ssize_t length = 0;
    while ((length = httpRead2(http, buffer.data(), buffer.size())) > 0) {
        guard.stampSignOfLife();
        total += length;
        if (!guard.mayFinish())
            return BodyEnd::TooLate;
        if (total > largest)
            return BodyEnd::TooLarge;
        if (!writeAll(to, buffer.data(), length))
            return BodyEnd::NotStored;
    }
    return length == 0 && isWhole(http, total) ? BodyEnd::Whole : BodyEnd::CutShort;
}
