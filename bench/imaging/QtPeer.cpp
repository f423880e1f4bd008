#include "bench/imaging/Peers.h"

#include <QtGui/QColorSpace>
#include <QtGui/QRgba64>

#include <algorithm>

namespace {

struct Affine
{
    float gain;
    float bias;
};

/// One channel of the change, on values from 0 to `full`.
Affine channel(const Sliders &sliders, int gain, float full)
{
    const float contrast = float(sliders.contrast) / 160.0F + 1.0F;
    const float bias = contrast * (float(sliders.brightness) / 200.0F - 0.5F) + 0.5F;
    const float factor = float(gain) / 35.0F + 1.0F;
    return {contrast * factor, bias * factor * full + 0.5F};
}

template <typename Value> Value apply(const Affine &affine, Value value, float full)
{
    return static_cast<Value>(std::clamp(affine.gain * float(value) + affine.bias, 0.0F, full));
}

/// The channels of a row of 8- or 16-bit pixels, four a pixel; `first` is the one at position 0.
template <typename Value>
void changeRow(uchar *row, int width, const std::array<Affine, 3> &channels, float full)
{
    auto *values = reinterpret_cast<Value *>(row);
    for (int x = 0; x < width; ++x, values += 4)
        for (std::size_t i = 0; i < channels.size(); ++i)
            values[i] = apply(channels[i], values[i], full);
}

void change(QImage &image, const Sliders &sliders, bool deep)
{
    const float full = deep ? 65535.0F : 255.0F;
    const Affine red = channel(sliders, sliders.red, full);
    const Affine green = channel(sliders, sliders.green, full);
    const Affine blue = channel(sliders, sliders.blue, full);
    for (int y = 0; y < image.height(); ++y) {
        if (deep)
            changeRow<quint16>(image.scanLine(y), image.width(), {red, green, blue}, full);
        else
            changeRow<uchar>(image.scanLine(y), image.width(), {blue, green, red}, full);
    }
}

} // namespace

PeerRender qtChain(const QImage &picture, bool deep)
{
    QImage source = deep ? picture.convertedTo(QImage::Format_RGBX64) : picture;
    source.setColorSpace(QColorSpace(QColorSpace::SRgb));
    return [source, deep](const Sliders &sliders) {
        QImage image = source.convertedToColorSpace(QColorSpace(QColorSpace::SRgbLinear));
        change(image, sliders, deep);
        image.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
        image.convertTo(QImage::Format_RGB32);
    };
}
