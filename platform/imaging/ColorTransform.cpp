#include "platform/imaging/ColorTransform.h"

#include <cmath>

namespace {

constexpr std::size_t kAlpha = 3;
constexpr std::size_t kBias = 4;

constexpr ColorTransform::Rows kIdentity{{
    {1, 0, 0, 0, 0},
    {0, 1, 0, 0, 0},
    {0, 0, 1, 0, 0},
    {0, 0, 0, 1, 0},
}};

// A chain of filters rounds in the last bits of a double; a picture has 16 bits at most.
constexpr double kRoundingLeft = 1e-12;

// The gain if the row weighs red, green and blue as the luminance does.
std::optional<double> luminanceGain(const ColorTransform::Row &row)
{
    const double gain = row[0] + row[1] + row[2];
    const double allowed = kRoundingLeft * (1.0 + std::abs(gain));
    bool same = row[kAlpha] == 0.0;
    for (std::size_t i = 0; i < kLuminanceWeights.size(); ++i)
        same = same && std::abs(row[i] - gain * kLuminanceWeights[i]) <= allowed;
    return same ? std::optional(gain) : std::nullopt;
}

} // namespace

ColorTransform::ColorTransform() : m_rows(kIdentity) {}

ColorTransform::ColorTransform(const Rows &rows) : m_rows(rows) {}

ColorTransform ColorTransform::then(const ColorTransform &next) const
{
    Rows rows{};
    for (std::size_t out = 0; out < rows.size(); ++out) {
        const Row &weights = next.m_rows[out];
        rows[out][kBias] = weights[kBias];
        for (std::size_t between = 0; between < m_rows.size(); ++between)
            for (std::size_t in = 0; in < weights.size(); ++in)
                rows[out][in] += weights[between] * m_rows[between][in];
    }
    return ColorTransform(rows);
}

bool ColorTransform::keepsAlpha() const
{
    return m_rows[kAlpha] == kIdentity[kAlpha];
}

bool ColorTransform::separatesChannels() const
{
    bool separate = keepsAlpha();
    for (std::size_t out = 0; out < kAlpha; ++out)
        for (std::size_t in = 0; in <= kAlpha; ++in)
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
        ramp.bias[channel] = m_rows[channel][kBias];
    }
    return ramp;
}
