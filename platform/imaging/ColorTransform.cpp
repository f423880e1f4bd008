#include "platform/imaging/ColorTransform.h"

#include <cmath>

namespace imaging {

namespace {

constexpr std::size_t alpha = 3;
constexpr std::size_t bias = 4;

constexpr ColorTransform::Rows identity{{
    {1, 0, 0, 0, 0},
    {0, 1, 0, 0, 0},
    {0, 0, 1, 0, 0},
    {0, 0, 0, 1, 0},
}};

/// A chain of filters rounds in the last bits of a double; a picture has 16 bits at most.
constexpr double roundingLeft = 1e-12;

/// The gain if the row weighs red, green and blue as the luminance does.
std::optional<double> luminanceGain(const ColorTransform::Row &row)
{
    const double gain = row[0] + row[1] + row[2];
    const double allowed = roundingLeft * (1.0 + std::abs(gain));
    bool same = row[alpha] == 0.0;
    for (std::size_t i = 0; i < luminanceWeights.size(); ++i)
        same = same && std::abs(row[i] - gain * luminanceWeights[i]) <= allowed;
    return same ? std::optional(gain) : std::nullopt;
}

} // namespace

ColorTransform::ColorTransform() : m_rows(identity) {}

ColorTransform::ColorTransform(const Rows &rows) : m_rows(rows) {}

ColorTransform ColorTransform::then(const ColorTransform &next) const
{
    Rows rows{};
    for (std::size_t out = 0; out < rows.size(); ++out) {
        const Row &weights = next.m_rows[out];
        rows[out][bias] = weights[bias];
        for (std::size_t between = 0; between < m_rows.size(); ++between)
            for (std::size_t in = 0; in < weights.size(); ++in)
                rows[out][in] += weights[between] * m_rows[between][in];
    }
    return ColorTransform(rows);
}

bool ColorTransform::keepsAlpha() const
{
    return m_rows[alpha] == identity[alpha];
}

bool ColorTransform::separatesChannels() const
{
    bool separate = keepsAlpha();
    for (std::size_t out = 0; out < alpha; ++out)
        for (std::size_t in = 0; in <= alpha; ++in)
            separate = separate && (in == out || m_rows[out][in] == 0.0);
    return separate;
}

std::optional<LuminanceRamp> ColorTransform::luminanceRamp() const
{
    if (!keepsAlpha())
        return std::nullopt;
    LuminanceRamp ramp;
    for (std::size_t channel = 0; channel < ramp.gain.size(); ++channel) {
        const std::optional<double> gain = luminanceGain(m_rows[channel]);
        if (!gain)
            return std::nullopt;
        ramp.gain[channel] = *gain;
        ramp.bias[channel] = m_rows[channel][bias];
    }
    return ramp;
}

} // namespace imaging
