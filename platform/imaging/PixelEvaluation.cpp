#include "platform/imaging/PixelEvaluation.h"

#include "platform/imaging/DecodedPicture.h"
#include "platform/imaging/SrgbCurve.h"

#include <QtGui/QRgba64>

namespace {

using LinearPixel = std::array<double, 4>; ///< red, green, blue, alpha

LinearPixel linearPixel(QRgb pixel, const std::array<double, 256> &linear)
{
    return {linear[pixel >> 16 & 255], linear[pixel >> 8 & 255], linear[pixel & 255],
            qAlpha(pixel) / 255.0};
}

LinearPixel linearPixel(QRgba64 pixel, const std::vector<double> &linear)
{
    return {linear[pixel.red()], linear[pixel.green()], linear[pixel.blue()],
            pixel.alpha() / 65535.0};
}

double changed(const LinearPixel &in, const ColorTransform::Row &row)
{
    return row[0] * in[0] + row[1] * in[1] + row[2] * in[2] + row[3] * in[3] + row[4];
}

// Alpha is a share, not light: it has no curve.
quint8 encodedAlpha(double alpha)
{
    if (!(alpha > 0.0))
        return 0;
    return alpha >= 1.0 ? quint8(255) : static_cast<quint8>(qRound(alpha * 255.0));
}

template <typename Pixel, typename Linear>
void evaluate(const Pixel *in, int count, const Linear &linear, const ColorTransform &change,
              QRgb *out)
{
    const SrgbEncoder &encoder = SrgbEncoder::instance();
    for (int i = 0; i < count; ++i) {
        const LinearPixel pixel = linearPixel(in[i], linear);
        out[i] = QRgb(encodedAlpha(changed(pixel, change.row(3)))) << 24 |
                 QRgb(encoder.encode(changed(pixel, change.row(0)))) << 16 |
                 QRgb(encoder.encode(changed(pixel, change.row(1)))) << 8 |
                 QRgb(encoder.encode(changed(pixel, change.row(2))));
    }
}

} // namespace

void evaluateRow(const DecodedPicture &picture, int y, const ColorTransform &change, QRgb *out)
{
    const int width = picture.size().width();
    if (picture.isDeep())
        evaluate(picture.deepRow(y), width, srgbDecode16(), change, out);
    else
        evaluate(picture.row(y), width, srgbDecode8(), change, out);
}
