#include "platform/imaging/PictureReader.h"

#include "platform/imaging/PlainTiff.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtGui/QColorSpace>
#include <QtGui/QImageReader>

using namespace Qt::StringLiterals;

namespace {

// Qt refuses pictures of more than 128 MiB by a limit for the whole process. Lifts it to what
// kMaximumPixels needs, and puts it back.
class AllocationLimit
{
public:
    AllocationLimit() : m_former(QImageReader::allocationLimit())
    {
        // 16 bytes a pixel: four floats, the widest format that a decoder answers.
        QImageReader::setAllocationLimit(static_cast<int>(kMaximumPixels * 16 >> 20));
    }
    ~AllocationLimit() { QImageReader::setAllocationLimit(m_former); }
    Q_DISABLE_COPY_MOVE(AllocationLimit)

private:
    int m_former;
};

// The format that the file's first bytes tell; empty for any other. Qt would ask every image
// plug-in of the system, and loading those costs more than reading a picture.
QByteArray formatOf(const QString &path)
{
    QFile file(path);
    const QByteArray start = file.open(QIODevice::ReadOnly) ? file.read(8) : QByteArray();
    if (start.startsWith("II*") || start.startsWith("MM\0*"_ba) || start.startsWith("II+") ||
        start.startsWith("MM\0+"_ba))
        return "tiff";
    return start == "\x89PNG\r\n\x1a\n" ? "png" : "";
}

// The whole file where it may be a plain one; larger files take their time in any case.
QByteArray contentsIfSmall(const QString &path)
{
    constexpr qint64 largestPlainFile = 1 << 20;
    QFile file(path);
    const bool small = file.size() <= largestPlainFile;
    return small && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isAcceptable(QImageReader &reader)
{
    const QSize size = reader.size();
    return size.isValid() && !size.isEmpty() &&
           qint64(size.width()) * size.height() <= kMaximumPixels;
}

// A conversion of the colour space goes back to the image's own format in the end, and a grey or
// palette image cannot hold what comes out of it.
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
    const QByteArray format = formatOf(path);
    if (format.isEmpty())
        return {};
    QImage plain = format == "tiff" ? readPlainTiff(contentsIfSmall(path)) : QImage();
    if (!plain.isNull())
        return plain;
    const AllocationLimit limit;
    QImageReader reader(path, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    if (!isAcceptable(reader))
        return {};
    QImage pixels = reader.read();
    convertToSrgb(pixels);
    return pixels;
}
