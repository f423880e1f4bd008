#include "platform/imaging/LuminanceTable.h"

#include "platform/imaging/PixelPair.h"
#include "platform/imaging/SrgbCurve.h"

#include <QtGui/QRgba64>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr QRgb kOpaque = 0xff000000U;

// The luminance of every step.
struct LuminanceSteps
{
    static constexpr std::size_t size() { return DecodedPicture::kLuminanceSteps + 1; }
    double operator[](std::size_t step) const
    {
        return static_cast<int>(step) * (1.0 / DecodedPicture::kLuminanceSteps);
    }
};

bool isNeutral(const LuminanceRamp &ramp)
{
    return ramp.gain[0] == ramp.gain[1] && ramp.gain[1] == ramp.gain[2] &&
           ramp.bias[0] == ramp.bias[1] && ramp.bias[1] == ramp.bias[2];
}

} // namespace

bool LuminanceTable::isFineEnoughFor(const LuminanceRamp &ramp)
{
    // Half a step, through the steepest part of the sRGB curve, has to stay below one level.
    constexpr double levelsPerGain = 0.5 / DecodedPicture::kLuminanceSteps * 12.92 * 255.0;
    return std::all_of(ramp.gain.begin(), ramp.gain.end(),
                       [](double gain) { return std::abs(gain) * levelsPerGain < 0.99; });
}

void LuminanceTable::build(const LuminanceRamp &ramp)
{
    m_neutral = isNeutral(ramp);
    buildChannel(0, ramp);
    if (m_neutral) {
        m_levels[1] = m_levels[0];
        m_levels[2] = m_levels[0];
    } else {
        buildChannel(1, ramp);
        buildChannel(2, ramp);
    }
}

void LuminanceTable::buildChannel(std::size_t channel, const LuminanceRamp &ramp)
{
    const auto put = [&levels = m_levels[channel]](std::size_t step, quint8 level) {
        levels[step] = level;
    };
    SrgbEncoder::instance().encodeEach(LuminanceSteps(), ramp.gain[channel], ramp.bias[channel],
                                       put);
}

QRgb LuminanceTable::color(std::size_t step) const
{
    return QRgb(m_levels[0][step]) << 16 | QRgb(m_levels[1][step]) << 8 | QRgb(m_levels[2][step]);
}

// Two pixels a turn, one multiplication for both: the loop is bound by the number of instructions.
void LuminanceTable::mapNeutral(const quint16 *luminance, QRgb *out, int count) const
{
    const Levels &levels = m_levels[0];
    for (const QRgb *end = out + (count - count % 2); out != end; out += 2, luminance += 2) {
        const quint64 pair = quint64(levels[luminance[0]]) << kPixelShift[0] |
                             quint64(levels[luminance[1]]) << kPixelShift[1];
        const quint64 both = pair * 0x010101U | 0xff000000'ff000000;
        std::memcpy(out, &both, sizeof both);
    }
    if (count % 2 != 0)
        *out = levels[*luminance] * 0x010101U | kOpaque;
}

void LuminanceTable::mapOpaque(const quint16 *luminance, QRgb *out, int count) const
{
    if (m_neutral) {
        mapNeutral(luminance, out, count);
        return;
    }
    for (int i = 0; i < count; ++i)
        out[i] = kOpaque | color(luminance[i]);
}

void LuminanceTable::mapWithAlpha(const quint16 *luminance, const QRgb *in, QRgb *out,
                                  int count) const
{
    for (int i = 0; i < count; ++i)
        out[i] = (in[i] & kOpaque) | color(luminance[i]);
}

void LuminanceTable::mapWithAlpha(const quint16 *luminance, const QRgba64 *in, QRgb *out,
                                  int count) const
{
    for (int i = 0; i < count; ++i)
        out[i] = QRgb(in[i].alpha8()) << 24 | color(luminance[i]);
}
