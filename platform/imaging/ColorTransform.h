#pragma once

#include <array>
#include <optional>

/// What each linear component adds to the luminance (the sRGB primaries under D65).
inline constexpr std::array<double, 3> kLuminanceWeights{0.2126, 0.7152, 0.0722};

/// A colour that depends on a pixel's luminance alone: gain * luminance + bias for red, green and
/// blue. The alpha is the pixel's own.
struct LuminanceRamp
{
    std::array<double, 3> gain{};
    std::array<double, 3> bias{};
};

/// An affine change of a pixel's linear red, green, blue and alpha (alpha not multiplied in):
/// four rows of four weights and a bias. Nothing is clamped, so that a chain of changes is again
/// one change, and evaluating the chain costs as much as evaluating one filter.
class ColorTransform
{
public:
    using Row = std::array<double, 5>; ///< weights of red, green, blue, alpha; then the bias
    using Rows = std::array<Row, 4>;   ///< what comes out as red, green, blue, alpha

    /// The change that changes nothing.
    ColorTransform();
    explicit ColorTransform(const Rows &rows);

    /// This change first, then `next`.
    ColorTransform then(const ColorTransform &next) const;

    const Row &row(std::size_t channel) const { return m_rows[channel]; }

    bool keepsAlpha() const;
    /// True if the alpha is kept, and red, green and blue each depend on themselves alone.
    bool separatesChannels() const;
    /// The ramp if the alpha is kept, and red, green and blue depend on the luminance alone (to
    /// within what rounding leaves of it after a chain of filters).
    std::optional<LuminanceRamp> luminanceRamp() const;

private:
    Rows m_rows;
};
