#include "platform/imaging/FilterCatalogue.h"

#include "platform/imaging/CIFilterKeys.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

QVariant vectorValue(double x, double y, double z, double w)
{
    return QVariant::fromValue(CIVector{x, y, z, w});
}

ColorTransform controlsChange(const FilterInputValues &values)
{
    return colorControls(values(kCIInputSaturationKey).toDouble(),
                         values(kCIInputBrightnessKey).toDouble(),
                         values(kCIInputContrastKey).toDouble());
}

ColorTransform matrixChange(const FilterInputValues &values)
{
    const auto bias = values(kCIInputBiasVectorKey).value<CIVector>();
    const auto row = [&values](const QString &key, double offset) {
        const auto weights = values(key).value<CIVector>();
        return ColorTransform::Row{weights.x, weights.y, weights.z, weights.w, offset};
    };
    return ColorTransform({row(kCIInputRVectorKey, bias.x), row(kCIInputGVectorKey, bias.y),
                           row(kCIInputBVectorKey, bias.z), row(kCIInputAVectorKey, bias.w)});
}

ColorTransform monochromeChange(const FilterInputValues &values)
{
    return colorMonochrome(values(kCIInputColorKey).value<CIColor>(),
                           values(kCIInputIntensityKey).toDouble());
}

// The inputs and their defaults as the filters' public documentation gives them.
std::span<const FilterDescription> catalogue()
{
    static const std::array controlsInputs{
        FilterInput{kCIInputSaturationKey, 1.0},
        FilterInput{kCIInputBrightnessKey, 0.0},
        FilterInput{kCIInputContrastKey, 1.0},
    };
    static const std::array matrixInputs{
        FilterInput{kCIInputRVectorKey, vectorValue(1, 0, 0, 0)},
        FilterInput{kCIInputGVectorKey, vectorValue(0, 1, 0, 0)},
        FilterInput{kCIInputBVectorKey, vectorValue(0, 0, 1, 0)},
        FilterInput{kCIInputAVectorKey, vectorValue(0, 0, 0, 1)},
        FilterInput{kCIInputBiasVectorKey, vectorValue(0, 0, 0, 0)},
    };
    static const std::array monochromeInputs{
        FilterInput{kCIInputColorKey, QVariant::fromValue(CIColor{0.6, 0.45, 0.3, 1.0})},
        FilterInput{kCIInputIntensityKey, 1.0},
    };
    static const std::array filters{
        FilterDescription{QStringLiteral("CIColorControls"), controlsInputs, controlsChange},
        FilterDescription{QStringLiteral("CIColorMatrix"), matrixInputs, matrixChange},
        FilterDescription{QStringLiteral("CIColorMonochrome"), monochromeInputs, monochromeChange},
    };
    return filters;
}

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return std::isfinite(value.toDouble());
    default:
        return false;
    }
}

bool allFinite(std::initializer_list<double> components)
{
    return std::all_of(components.begin(), components.end(),
                       [](double component) { return std::isfinite(component); });
}

} // namespace

ColorTransform colorControls(double saturation, double brightness, double contrast)
{
    ColorTransform::Rows rows{};
    for (std::size_t out = 0; out < kLuminanceWeights.size(); ++out) {
        for (std::size_t in = 0; in < kLuminanceWeights.size(); ++in)
            rows[out][in] = contrast * ((in == out ? saturation : 0.0) +
                                        (1.0 - saturation) * kLuminanceWeights[in]);
        rows[out][4] = contrast * (brightness - 0.5) + 0.5;
    }
    rows[3][3] = 1.0;
    return ColorTransform(rows);
}

ColorTransform colorMonochrome(const CIColor &color, double intensity)
{
    const std::array tint{color.red, color.green, color.blue};
    ColorTransform::Rows rows{};
    for (std::size_t out = 0; out < tint.size(); ++out)
        for (std::size_t in = 0; in < tint.size(); ++in)
            rows[out][in] =
                intensity * tint[out] * kLuminanceWeights[in] + (in == out ? 1.0 - intensity : 0.0);
    rows[3][3] = 1.0;
    return ColorTransform(rows);
}

const FilterDescription *filterNamed(const QString &name)
{
    const auto filters = catalogue();
    const auto found = std::find_if(filters.begin(), filters.end(),
                                    [&name](const auto &filter) { return filter.name == name; });
    return found == filters.end() ? nullptr : &*found;
}

bool acceptsValue(const FilterInput &input, const QVariant &value)
{
    if (isNumber(input.defaultValue))
        return isNumber(value);
    if (value.metaType() != input.defaultValue.metaType())
        return false;
    if (value.metaType() == QMetaType::fromType<CIVector>()) {
        const auto vector = value.value<CIVector>();
        return allFinite({vector.x, vector.y, vector.z, vector.w});
    }
    const auto color = value.value<CIColor>();
    return allFinite({color.red, color.green, color.blue, color.alpha});
}
