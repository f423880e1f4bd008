#pragma once

#include "platform/imaging/ColorTransform.h"

#include <QtGui/QRgb>

#include <array>

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

    template <quint64 KeptBits> void map(const QRgb *in, QRgb *out, int count) const;

    Pair m_red;
    Pair m_green;
    Pair m_blue;
};
