#pragma once

#include <QtGui/QImage>

#include <vector>

/// A decoded sRGB picture, shared by all recipes over it. Its pixels never change.
///
/// The luminance is kept once it was asked for, since it depends on the picture alone: a
/// monochrome picture is then one table look-up a pixel. Used from one thread at a time.
class DecodedPicture
{
public:
    /// The steps of a kept luminance: 0 is black, this is white. Half a step is 0.4 of an 8-bit
    /// level where the sRGB curve is steepest, so a value read from a table of these steps is one
    /// level off at most (see LuminanceTable).
    static constexpr int kLuminanceSteps = 4095;

    /// Takes pixels in sRGB, of any format: they are converted to one of 8 or 16 bits a channel,
    /// alpha not multiplied in. Null pixels give an empty picture.
    explicit DecodedPicture(QImage pixels);

    QSize size() const { return m_pixels.size(); }
    bool hasAlpha() const { return m_pixels.hasAlphaChannel(); }
    /// True for 16 bits a channel (deepRow), false for 8 (row).
    bool isDeep() const { return m_pixels.depth() == 64; }

    /// True if every row begins where the one above it ends.
    bool hasTightRows() const;

    const QRgb *row(int y) const;
    const QRgba64 *deepRow(int y) const;
    /// One value from 0 to kLuminanceSteps a pixel. The first call computes the whole picture's.
    const quint16 *luminanceRow(int y) const;

private:
    void computeLuminance() const;

    QImage m_pixels;
    mutable std::vector<quint16> m_luminance;
};
