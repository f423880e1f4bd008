#pragma once

#include "platform/imaging/ColorTransform.h"
#include "platform/imaging/Picture.h"

#include <QImage>

#include <array>
#include <bit>

namespace imaging {

/// Where the first and the second of two neighbouring pixels lie in the 64-bit word that is read
/// from or written to them at once.
inline constexpr std::array<int, 2> pixelShift =
    std::endian::native == std::endian::little ? std::array{0, 32} : std::array{32, 0};

/// What each of the 256 values of a channel becomes, for a change that keeps the channels apart:
/// exact, since the tables are computed in double precision.
///
/// The entries are already at their place in the pixel, so that a pixel is three look-ups or-ed
/// together; and there is one set for each of two neighbours in a 64-bit word, since one wide
/// store instead of two narrow ones is worth a tenth of the time.
class ChannelTables
{
public:
    /// Makes the tables for a change that separates channels. `opaque` fills in the alpha of
    /// pictures that have none.
    void build(const ColorTransform &change, bool opaque);

    /// Changes `count` opaque pixels; build must have been called for opaque pixels.
    void mapOpaque(const QRgb *in, QRgb *out, int count) const;
    /// Changes `count` pixels and keeps their alpha.
    void mapWithAlpha(const QRgb *in, QRgb *out, int count) const;

private:
    /// Each channel's table for the first and the second pixel of a word.
    using Pair = std::array<std::array<quint64, 256>, 2>;

    template <quint64 keptBits> void map(const QRgb *in, QRgb *out, int count) const;

    Pair m_red;
    Pair m_green;
    Pair m_blue;
};

/// What each step of the luminance becomes, for a change that depends on the luminance alone.
class LuminanceTable
{
public:
    /// True if the steps of Picture::luminanceSteps are fine enough for one level of 255 at most.
    static bool isFineEnoughFor(const LuminanceRamp &ramp);

    void build(const LuminanceRamp &ramp);

    void mapOpaque(const quint16 *luminance, QRgb *out, int count) const;
    /// Takes the alpha from `in`.
    void mapWithAlpha(const quint16 *luminance, const QRgb *in, QRgb *out, int count) const;
    void mapWithAlpha(const quint16 *luminance, const QRgba64 *in, QRgb *out, int count) const;

private:
    using Levels = std::array<quint8, Picture::luminanceSteps + 1>;

    void buildChannel(std::size_t channel, const LuminanceRamp &ramp);
    QRgb color(std::size_t step) const; ///< alpha 0
    void mapNeutral(const quint16 *luminance, QRgb *out, int count) const;

    bool m_neutral = true;          ///< the three channels are the same
    std::array<Levels, 3> m_levels; ///< red, green, blue, 8-bit sRGB
};

} // namespace imaging
