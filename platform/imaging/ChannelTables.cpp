#include "platform/imaging/ChannelTables.h"

#include "platform/imaging/PixelPair.h"
#include "platform/imaging/SrgbCurve.h"

#include <cstring>

namespace {

// Which byte of a pixel in memory is its red.
constexpr int kRedByte = std::endian::native == std::endian::little ? 2 : 1;
constexpr quint64 kAlphaBits = 0xff000000'ff000000;

void buildPair(std::array<std::array<quint64, 256>, 2> &pair, double gain, double bias, int shift,
               QRgb fill)
{
    const auto put = [&pair, shift, fill](std::size_t i, quint8 encoded) {
        const QRgb value = QRgb(encoded) << shift | fill;
        pair[0][i] = quint64(value) << kPixelShift[0];
        pair[1][i] = quint64(value) << kPixelShift[1];
    };
    // Decoded and encoded again it would be the same; the curves come with the first change.
    if (gain == 1.0 && bias == 0.0) {
        for (std::size_t i = 0; i < pair[0].size(); ++i)
            put(i, static_cast<quint8>(i));
        return;
    }
    SrgbEncoder::instance().encodeEach(srgbDecode8(), gain, bias, put);
}

} // namespace

void ChannelTables::build(const ColorTransform &change, bool opaque)
{
    buildPair(m_red, change.row(0)[0], change.row(0)[4], 16, opaque ? 0xff000000U : 0U);
    buildPair(m_green, change.row(1)[1], change.row(1)[4], 8, 0U);
    buildPair(m_blue, change.row(2)[2], change.row(2)[4], 0, 0U);
}

// The loop is bound by the number of instructions and of memory accesses alike: blue and green
// come out of a register, red by a load of its own, and two pixels leave in one store.
template <quint64 KeptBits> void ChannelTables::map(const QRgb *in, QRgb *out, int count) const
{
    for (const QRgb *end = in + (count - count % 2); in != end; in += 2, out += 2) {
        const quint64 first = in[0];
        const quint64 second = in[1];
        const auto *bytes = reinterpret_cast<const uchar *>(in);
        quint64 both = m_blue[0][first & 255] | m_green[0][first >> 8 & 255];
        both |= m_red[0][bytes[kRedByte]];
        both |= m_blue[1][second & 255] | m_green[1][second >> 8 & 255];
        both |= m_red[1][bytes[kRedByte + 4]];
        both |= (first << kPixelShift[0] | second << kPixelShift[1]) & KeptBits;
        std::memcpy(out, &both, sizeof both);
    }
    if (count % 2 != 0) {
        const QRgb last = *in;
        const quint64 mapped =
            m_blue[0][last & 255] | m_green[0][last >> 8 & 255] | m_red[0][last >> 16 & 255];
        *out = static_cast<QRgb>(mapped >> kPixelShift[0]) | (last & static_cast<QRgb>(KeptBits));
    }
}

void ChannelTables::mapOpaque(const QRgb *in, QRgb *out, int count) const
{
    map<0>(in, out, count);
}

void ChannelTables::mapWithAlpha(const QRgb *in, QRgb *out, int count) const
{
    map<kAlphaBits>(in, out, count);
}
