#include "bench/imaging/Render.h"

namespace {

std::shared_ptr<const CIImage> greyRamp()
{
    QImage ramp(256, 1, QImage::Format_RGB32);
    for (int i = 0; i < 256; ++i)
        ramp.setPixel(i, 0, qRgb(i, i, i));
    return CIImage::imageWithPicture(ramp);
}

} // namespace

Render::Render() : m_ramp(greyRamp())
{
    m_mono->setValue(CIColor{1.0, 1.0, 1.0, 1.0}, kCIInputColorKey);
}

void Render::setControls(const std::shared_ptr<const CIImage> &picture, const Sliders &sliders)
{
    m_controls->setValue(picture, kCIInputImageKey);
    m_controls->setValue(float(sliders.brightness) / 200.0F, kCIInputBrightnessKey);
    m_controls->setValue(float(sliders.contrast) / 160.0F + 1.0F, kCIInputContrastKey);
}

void Render::color(const std::shared_ptr<const CIImage> &picture, const Sliders &sliders,
                   QImage &target)
{
    setControls(picture, sliders);
    m_matrix->setValue(m_controls->outputImage(), kCIInputImageKey);
    m_matrix->setValue(CIVector{sliders.red / 35.0 + 1.0, 0, 0, 0}, kCIInputRVectorKey);
    m_matrix->setValue(CIVector{0, sliders.green / 35.0 + 1.0, 0, 0}, kCIInputGVectorKey);
    m_matrix->setValue(CIVector{0, 0, sliders.blue / 35.0 + 1.0, 0}, kCIInputBVectorKey);
    m_context.drawImage(m_matrix->outputImage(), target);
}

void Render::mono(const std::shared_ptr<const CIImage> &picture, const Sliders &sliders,
                  QImage &target)
{
    setControls(picture, sliders);
    m_mono->setValue(m_controls->outputImage(), kCIInputImageKey);
    m_context.drawImage(m_mono->outputImage(), target);
}

Tables Render::tables(const Sliders &sliders)
{
    color(m_ramp, sliders, m_rampTarget);
    const auto *row = reinterpret_cast<const QRgb *>(m_rampTarget.constScanLine(0));
    Tables tables;
    for (std::size_t i = 0; i < 256; ++i) {
        tables[0][i] = uchar(row[i] >> 16);
        tables[1][i] = uchar(row[i] >> 8);
        tables[2][i] = uchar(row[i]);
    }
    return tables;
}
