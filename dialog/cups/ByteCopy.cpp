#include "dialog/cups/ByteCopy.h"

#include <algorithm>
#include <array>

bool writeAll(QIODevice &to, const char *bytes, qint64 length)
{
    while (length > 0) {
        const qint64 taken = to.write(bytes, length);
        if (taken <= 0)
            return false;
        bytes += taken;
        length -= taken;
    }
    return true;
}

Copied copyBytes(QIODevice &from, QIODevice &to, qint64 length)
{
    std::array<char, 65536> buffer{};
    while (length > 0) {
        const qint64 wanted = std::min(length, static_cast<qint64>(buffer.size()));
        const qint64 got = from.read(buffer.data(), wanted);
        if (got <= 0)
            return Copied::CannotRead;
        if (!writeAll(to, buffer.data(), got))
            return Copied::CannotWrite;
        length -= got;
    }
    return Copied::All;
}
