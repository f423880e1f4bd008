#include "dialog/host/Gunzip.h"

#include <algorithm>
#include <zlib.h>

namespace {

constexpr auto kMagic = "\x1f\x8b";
constexpr int kGzipOnly = 16 + MAX_WBITS; // zlib's way to ask for the format of gzip
constexpr qsizetype kStep = 262'144;      // bytes

/// An inflater of zlib for as long as it is needed.
class Inflater
{
public:
    explicit Inflater(const QByteArray &packed)
    {
        m_stream.next_in =
            reinterpret_cast<Bytef *>(const_cast<char *>(packed.data())); // is only read
        m_stream.avail_in = static_cast<uInt>(packed.size());
        m_isGood = inflateInit2(&m_stream, kGzipOnly) == Z_OK;
    }
    ~Inflater() { inflateEnd(&m_stream); }
    Inflater(const Inflater &) = delete;
    Inflater &operator=(const Inflater &) = delete;

    /// Appends up to so many bytes; zlib's own answer.
    int append(QByteArray &bytes, qsizetype atMost)
    {
        if (!m_isGood)
            return Z_MEM_ERROR;
        const qsizetype before = bytes.size();
        bytes.resize(before + atMost);
        m_stream.next_out = reinterpret_cast<Bytef *>(bytes.data() + before);
        m_stream.avail_out = static_cast<uInt>(atMost);
        const int answer = inflate(&m_stream, Z_NO_FLUSH);
        bytes.chop(m_stream.avail_out);
        return answer;
    }

    /// Whether another packed file follows the one that has ended. What else follows is padding.
    bool beginNext()
    {
        const QByteArray rest = QByteArray::fromRawData(
            reinterpret_cast<const char *>(m_stream.next_in), m_stream.avail_in);
        return isPacked(rest) && inflateReset(&m_stream) == Z_OK;
    }

private:
    z_stream m_stream{};
    bool m_isGood = false;
};

} // namespace

bool isPacked(const QByteArray &bytes)
{
    return bytes.startsWith(kMagic);
}

Unpacked unpacked(const QByteArray &packed, qsizetype most)
{
    using enum Unpacked::State;
    Inflater inflater(packed);
    QByteArray bytes;
    while (true) {
        // One byte more than allowed tells a text that is as long as it may be from a longer one.
        const int answer = inflater.append(bytes, std::min(kStep, most + 1 - bytes.size()));
        if (bytes.size() > most)
            return {TooLarge, {}};
        if (answer == Z_STREAM_END && !inflater.beginNext())
            return {Whole, bytes};
        if (answer == Z_BUF_ERROR)
            return {CutOff, {}};
        if (answer != Z_OK && answer != Z_STREAM_END)
            return {Damaged, {}};
    }
}
