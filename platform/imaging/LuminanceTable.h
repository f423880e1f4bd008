#pragma once

#include "platform/imaging/ColorTransform.h"
#include "platform/imaging/DecodedPicture.h"

#include <QtGui/QRgb>

#include <array>

/// What each step of the luminance becomes, for a change that depends on the luminance alone.
class LuminanceTable
{
public:
    /// True if the steps of DecodedPicture::kLuminanceSteps are fine enough for one level of 255 at
    /// most.
    static bool isFineEnoughFor(const LuminanceRamp &ramp);

    void build(const LuminanceRamp &ramp);

    void mapOpaque(const quint16 *luminance, QRgb *out, int count) const;
    /// Takes the alpha from `in`.
    void mapWithAlpha(const quint16 *luminance, const QRgb *in, QRgb *out, int count) const;
    void mapWithAlpha(const quint16 *luminance, const QRgba64 *in, QRgb *out, int count) const;

private:
    using Levels = std::array<quint8, DecodedPicture::kLuminanceSteps + 1>;

    void buildChannel(std::size_t channel, const LuminanceRamp &ramp);
    QRgb color(std::size_t step) const; ///< alpha 0
    void mapNeutral(const quint16 *luminance, QRgb *out, int count) const;

    bool m_neutral = true;          ///< the three channels are the same
    std::array<Levels, 3> m_levels; ///< red, green, blue, 8-bit sRGB
};
