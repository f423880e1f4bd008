#include "platform/imaging/PictureReader.h"

#include <QColorSpace>
#include <QFileInfo>
#include <QImageReader>

namespace imaging {

namespace {

/// Qt refuses pictures of more than 128 MiB by a limit for the whole process. Lifts it to what
/// maximumPixels needs, and puts it back.
class AllocationLimit
{
public:
    AllocationLimit() : m_former(QImageReader::allocationLimit())
    {
        // 16 bytes a pixel: four floats, the widest format that a decoder answers.
        QImageReader::setAllocationLimit(static_cast<int>(maximumPixels * 16 >> 20));
    }
    ~AllocationLimit() { QImageReader::setAllocationLimit(m_former); }
    Q_DISABLE_COPY_MOVE(AllocationLimit)

private:
    int m_former;
};

bool isAcceptable(QImageReader &reader)
{
    const QByteArray format = reader.format();
    const QSize size = reader.size();
    return (format == "tiff" || format == "png") && size.isValid() && !size.isEmpty() &&
           qint64(size.width()) * size.height() <= maximumPixels;
}

/// A conversion of the colour space goes back to the image's own format in the end, and a grey or
/// palette image cannot hold what comes out of it.
void widenToColor(QImage &pixels)
{
    if (pixels.format() == QImage::Format_Grayscale16)
        pixels.convertTo(QImage::Format_RGBX64);
    else if (pixels.depth() <= 8)
        pixels.convertTo(pixels.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

void convertToSrgb(QImage &pixels)
{
    const QColorSpace profile = pixels.colorSpace();
    if (!profile.isValid() || profile == QColorSpace(QColorSpace::SRgb))
        return;
    widenToColor(pixels);
    pixels.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
}

} // namespace

QImage readPicture(const QString &path)
{
    // A pipe or a device would block or never end.
    if (!QFileInfo(path).isFile())
        return {};
    const AllocationLimit limit;
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isAcceptable(reader))
        return {};
    QImage pixels = reader.read();
    convertToSrgb(pixels);
    return pixels;
}

} // namespace imaging
