#include "tests/imaging/Reference.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

double toLinear(double encoded)
{
    return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

double toSrgb(double linear)
{
    return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1.0 / 2.4) - 0.055;
}

int level(double linear)
{
    return static_cast<int>(std::lround(toSrgb(std::clamp(linear, 0.0, 1.0)) * 255.0));
}

double luminance(const LinearPixel &pixel)
{
    return 0.2126 * pixel.red + 0.7152 * pixel.green + 0.0722 * pixel.blue;
}

ReferenceStep controls(double saturation, double brightness, double contrast)
{
    return [=](const LinearPixel &in) {
        const double grey = luminance(in);
        const auto one = [=](double value) {
            const double saturated = grey + (value - grey) * saturation;
            return (saturated + brightness - 0.5) * contrast + 0.5;
        };
        return LinearPixel{one(in.red), one(in.green), one(in.blue), in.alpha};
    };
}

ReferenceStep gains(double red, double green, double blue)
{
    return [=](const LinearPixel &in) {
        return LinearPixel{in.red * red, in.green * green, in.blue * blue, in.alpha};
    };
}

ReferenceStep mono(double red, double green, double blue, double intensity)
{
    return [=](const LinearPixel &in) {
        const double grey = luminance(in);
        return LinearPixel{std::lerp(in.red, grey * red, intensity),
                           std::lerp(in.green, grey * green, intensity),
                           std::lerp(in.blue, grey * blue, intensity), in.alpha};
    };
}

LinearPixel linearPixel(QRgba64 pixel)
{
    return {toLinear(pixel.red() / 65535.0), toLinear(pixel.green() / 65535.0),
            toLinear(pixel.blue() / 65535.0), pixel.alpha() / 65535.0};
}

LinearPixel linearPixel(QRgb pixel)
{
    return {toLinear(qRed(pixel) / 255.0), toLinear(qGreen(pixel) / 255.0),
            toLinear(qBlue(pixel) / 255.0), qAlpha(pixel) / 255.0};
}

QRgb encodedPixel(const LinearPixel &pixel)
{
    return qRgba(level(pixel.red), level(pixel.green), level(pixel.blue),
                 static_cast<int>(std::lround(std::clamp(pixel.alpha, 0.0, 1.0) * 255.0)));
}

namespace {

/// 16 bits a channel hold the 8-bit values exactly (257 times as much).
LinearPixel sourcePixel(const QImage &source, int x, int y)
{
    return source.depth() == 64
               ? linearPixel(reinterpret_cast<const QRgba64 *>(source.constScanLine(y))[x])
               : linearPixel(source.pixel(x, y));
}

int difference(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
}

} // namespace

int worstDifference(const QImage &drawn, const QImage &source,
                    const std::vector<ReferenceStep> &steps)
{
    if (drawn.size() != source.size())
        return 256;
    int worst = 0;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            LinearPixel pixel = sourcePixel(source, x, y);
            for (const ReferenceStep &step : steps)
                pixel = step(pixel);
            worst = std::max(worst, difference(drawn.pixel(x, y), encodedPixel(pixel)));
        }
    }
    return worst;
}
