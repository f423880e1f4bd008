#pragma once

#include <QtCore/QtGlobal>

#include <array>
#include <vector>

/// Linear light of an sRGB component, both from 0 to 1 (IEC 61966-2-1).
double srgbDecode(double encoded);

/// Linear light of all 256 values of an 8-bit sRGB component. Made once a process.
const std::array<double, 256> &srgbDecode8();

/// Linear light of all 65536 values of a 16-bit sRGB component. Made once a process.
const std::vector<double> &srgbDecode16();

/// Linear light to 8-bit sRGB, clamped and rounded to the nearest value, without evaluating the
/// curve: the 255 places where the rounded value steps up are known in linear light, and no two
/// of them are nearer than 1 / (255 * 12.92) = 1 / 3294.6. So each bin of 1 / 4096 holds one step
/// at most, and one comparison with it settles the value exactly.
class SrgbEncoder
{
public:
    /// The one encoder of the process.
    static const SrgbEncoder &instance();

    /// The 8-bit value. Below 0 and not a number give 0, above 1 gives 255.
    quint8 encode(double linear) const
    {
        const double low = linear > 0.0 ? linear : 0.0;
        return encodeNear(low < 1.0 ? low : 1.0);
    }

    /// Calls each(index, value) with the 8-bit values of gain * linear[index] + bias, for as many
    /// `linear` as there are, all from 0 to 1.
    template <typename Linear, typename Each>
    void encodeEach(const Linear &linear, double gain, double bias, Each each) const
    {
        const bool allNear = isNear(bias) && isNear(gain + bias);
        for (std::size_t i = 0; i < linear.size(); ++i) {
            const double changed = gain * linear[i] + bias;
            each(i, allNear ? encodeNear(changed) : encode(changed));
        }
    }

private:
    static constexpr int kBinsPerUnit = 4096;
    static constexpr int kLowest = -1;
    static constexpr int kHighest = 2;

    SrgbEncoder();

    static bool isNear(double linear) { return linear >= kLowest && linear < kHighest; }

    /// For values that isNear: the bins beyond 0 and 1 do the clamping, since two comparisons a
    /// value would cost more than all the rest.
    quint8 encodeNear(double linear) const
    {
        const auto bin = static_cast<int>((linear - kLowest) * kBinsPerUnit);
        const unsigned value = m_atBin[static_cast<std::size_t>(bin)];
        return static_cast<quint8>(value + unsigned(linear >= m_step[value]));
    }

    /// The value at each bin's lower edge; one bin more for a value that was rounded up to the
    /// upper end.
    std::array<quint8, (kHighest - kLowest) * kBinsPerUnit + 1> m_atBin;
    /// Where the value after the index begins; nowhere after 255.
    std::array<double, 256> m_step;
};
