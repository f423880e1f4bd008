#include "platform/imaging/SrgbCurve.h"

#include <cmath>
#include <limits>

double srgbDecode(double encoded)
{
    if (encoded <= 0.04045)
        return encoded / 12.92;
    return std::pow((encoded + 0.055) / 1.055, 2.4);
}

const std::array<double, 256> &srgbDecode8()
{
    static const auto table = [] {
        std::array<double, 256> values{};
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = srgbDecode(static_cast<double>(i) / 255.0);
        return values;
    }();
    return table;
}

const std::vector<double> &srgbDecode16()
{
    static const auto table = [] {
        std::vector<double> values(65536);
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = srgbDecode(static_cast<double>(i) / 65535.0);
        return values;
    }();
    return table;
}

const SrgbEncoder &SrgbEncoder::instance()
{
    static const SrgbEncoder encoder;
    return encoder;
}

SrgbEncoder::SrgbEncoder() : m_atBin{}, m_step{}
{
    for (std::size_t value = 0; value < m_step.size(); ++value)
        m_step[value] = srgbDecode((static_cast<double>(value) + 0.5) / 255.0);
    m_step[255] = std::numeric_limits<double>::infinity();
    quint8 value = 0;
    for (std::size_t bin = 0; bin < m_atBin.size(); ++bin) {
        if (m_step[value] <= static_cast<double>(bin) / kBinsPerUnit + kLowest)
            ++value;
        m_atBin[bin] = value;
    }
}
