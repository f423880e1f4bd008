#pragma once

#include "platform/imaging/CIContext.h"
#include "platform/imaging/CIFilter.h"

#include <QtCore/QString>

#include <initializer_list>

using Image = std::shared_ptr<const CIImage>;

/// A filter as the tests line them up: its name, with its inputs set.
struct ChainLink
{
    QString name;
    std::vector<std::pair<QString, QVariant>> inputs;
};

inline ChainLink controlsLink(double saturation, double brightness, double contrast)
{
    return {QStringLiteral("CIColorControls"),
            {{kCIInputSaturationKey, saturation},
             {kCIInputBrightnessKey, brightness},
             {kCIInputContrastKey, contrast}}};
}

inline ChainLink gainsLink(double red, double green, double blue)
{
    return {QStringLiteral("CIColorMatrix"),
            {{kCIInputRVectorKey, QVariant::fromValue(CIVector{red, 0, 0, 0})},
             {kCIInputGVectorKey, QVariant::fromValue(CIVector{0, green, 0, 0})},
             {kCIInputBVectorKey, QVariant::fromValue(CIVector{0, 0, blue, 0})}}};
}

inline ChainLink monoLink(const CIColor &color, double intensity)
{
    return {QStringLiteral("CIColorMonochrome"),
            {{kCIInputColorKey, QVariant::fromValue(color)}, {kCIInputIntensityKey, intensity}}};
}

/// The recipe of the filters one after the other.
inline Image chained(Image image, const std::vector<ChainLink> &links)
{
    for (const ChainLink &link : links) {
        const auto filter = CIFilter::filterWithName(link.name);
        for (const auto &[key, value] : link.inputs)
            filter->setValue(value, key);
        filter->setValue(image, kCIInputImageKey);
        image = filter->outputImage();
    }
    return image;
}

/// The image drawn into a new target.
inline QImage drawn(const Image &image)
{
    QImage target;
    CIContext().drawImage(image, target);
    return target;
}
