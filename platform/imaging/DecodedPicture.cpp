#include "platform/imaging/DecodedPicture.h"

#include "platform/imaging/ColorTransform.h"
#include "platform/imaging/SrgbCurve.h"

#include <QtGui/QRgba64>

#include <utility>

namespace {

QImage::Format workingFormat(const QImage &pixels)
{
    const bool deep = pixels.depth() > 32 || pixels.format() == QImage::Format_Grayscale16 ||
                      pixels.format() == QImage::Format_RGB30 ||
                      pixels.format() == QImage::Format_BGR30 ||
                      pixels.format() == QImage::Format_A2RGB30_Premultiplied ||
                      pixels.format() == QImage::Format_A2BGR30_Premultiplied;
    if (pixels.hasAlphaChannel())
        return deep ? QImage::Format_RGBA64 : QImage::Format_ARGB32;
    return deep ? QImage::Format_RGBX64 : QImage::Format_RGB32;
}

quint16 luminanceStep(double red, double green, double blue)
{
    const double luminance =
        kLuminanceWeights[0] * red + kLuminanceWeights[1] * green + kLuminanceWeights[2] * blue;
    return static_cast<quint16>(qRound(luminance * DecodedPicture::kLuminanceSteps));
}

} // namespace

DecodedPicture::DecodedPicture(QImage pixels) : m_pixels(std::move(pixels))
{
    // A null image answers the call with a warning, and needs no pixels.
    if (!m_pixels.isNull())
        m_pixels.convertTo(workingFormat(m_pixels));
}

bool DecodedPicture::hasTightRows() const
{
    return m_pixels.bytesPerLine() == qsizetype(m_pixels.width()) * m_pixels.depth() / 8;
}

const QRgb *DecodedPicture::row(int y) const
{
    return reinterpret_cast<const QRgb *>(m_pixels.constScanLine(y));
}

const QRgba64 *DecodedPicture::deepRow(int y) const
{
    return reinterpret_cast<const QRgba64 *>(m_pixels.constScanLine(y));
}

const quint16 *DecodedPicture::luminanceRow(int y) const
{
    if (m_luminance.empty())
        computeLuminance();
    const auto width = static_cast<std::size_t>(m_pixels.width());
    return m_luminance.data() + static_cast<std::size_t>(y) * width;
}

void DecodedPicture::computeLuminance() const
{
    const int width = m_pixels.width();
    m_luminance.resize(static_cast<std::size_t>(width) *
                       static_cast<std::size_t>(m_pixels.height()));
    quint16 *out = m_luminance.data();
    for (int y = 0; y < m_pixels.height(); ++y) {
        if (isDeep()) {
            const std::vector<double> &linear = srgbDecode16();
            for (const QRgba64 *in = deepRow(y), *end = in + width; in != end; ++in)
                *out++ = luminanceStep(linear[in->red()], linear[in->green()], linear[in->blue()]);
        } else {
            const auto &linear = srgbDecode8();
            for (const QRgb *in = row(y), *end = in + width; in != end; ++in)
                *out++ =
                    luminanceStep(linear[std::size_t(qRed(*in))], linear[std::size_t(qGreen(*in))],
                                  linear[std::size_t(qBlue(*in))]);
        }
    }
}
