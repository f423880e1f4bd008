#include "platform/imaging/PlainTiff.h"

#include "platform/imaging/PictureReader.h"

#include <QtCore/QHash>
#include <QtCore/QtEndian>

#include <algorithm>
#include <optional>

namespace {

// The tags that say how the pixels lie, by their numbers in the format.
enum TiffTag : quint16 {
    ImageWidth = 256,
    ImageLength = 257,
    BitsPerSample = 258,
    Compression = 259,
    Photometric = 262,
    FillOrder = 266,
    StripOffsets = 273,
    Orientation = 274,
    SamplesPerPixel = 277,
    RowsPerStrip = 278,
    StripByteCounts = 279,
    PlanarConfiguration = 284,
    Predictor = 317,
    TileWidth = 322,
    ExtraSamples = 338,
    SampleFormat = 339,
    ColorProfile = 34675,
};

constexpr quint32 kUncompressed = 1;
constexpr quint32 kRgb = 2;
constexpr quint32 kAlphaNotMultipliedIn = 2;
constexpr quint32 kMostStrips = 1U << 16;

using Values = QList<quint32>;

// The file's numbers, in its own byte order. Reading behind the end answers none.
class Numbers
{
public:
    explicit Numbers(const QByteArray &file) : m_file(file), m_big(file.startsWith("MM")) {}

    template <typename Number> std::optional<Number> at(quint64 offset) const
    {
        if (offset + sizeof(Number) > static_cast<quint64>(m_file.size()))
            return std::nullopt;
        const char *start = m_file.constData() + offset;
        return m_big ? qFromBigEndian<Number>(start) : qFromLittleEndian<Number>(start);
    }

private:
    const QByteArray &m_file;
    bool m_big;
};

// The values of the directory entry at the offset; empty when they are no whole numbers.
Values valuesAt(const Numbers &numbers, quint64 entry)
{
    constexpr quint16 shortType = 3;
    constexpr quint16 longType = 4;
    const auto type = numbers.at<quint16>(entry + 2);
    const auto count = numbers.at<quint32>(entry + 4);
    if (!count || *count > kMostStrips || (type != shortType && type != longType))
        return {};
    const quint64 size = type == shortType ? 2 : 4;
    const quint64 start =
        *count * size <= 4 ? entry + 8 : numbers.at<quint32>(entry + 8).value_or(0);
    Values values;
    for (quint64 index = 0; index < *count; ++index) {
        const auto value = type == shortType
                               ? std::optional<quint32>(numbers.at<quint16>(start + index * size))
                               : numbers.at<quint32>(start + index * size);
        if (!value)
            return {};
        values << *value;
    }
    return values;
}

using Directory = QHash<quint16, Values>;

Directory firstDirectory(const QByteArray &file)
{
    const Numbers numbers(file);
    const quint64 start = numbers.at<quint32>(4).value_or(0);
    const quint16 entries = numbers.at<quint16>(start).value_or(0);
    Directory directory;
    for (quint64 index = 0; index < entries; ++index) {
        const quint64 entry = start + 2 + 12 * index;
        if (const auto tag = numbers.at<quint16>(entry))
            directory.insert(*tag, valuesAt(numbers, entry));
    }
    return directory;
}

bool isTiff(const QByteArray &file)
{
    return file.startsWith("II*") || file.startsWith(QByteArray("MM\0*", 4));
}

// What a plain file says, or leaves to the default.
bool isPlain(const Directory &directory)
{
    const auto is = [&](TiffTag tag, quint32 value) {
        return !directory.contains(tag) || directory.value(tag) == Values{value};
    };
    const Values samples = directory.value(SamplesPerPixel);
    const bool opaque = samples == Values{3} && !directory.contains(ExtraSamples);
    const bool alpha =
        samples == Values{4} && directory.value(ExtraSamples) == Values{kAlphaNotMultipliedIn};
    const Values bits = directory.value(BitsPerSample);
    return (opaque || alpha) && bits == Values(samples.constFirst(), 8) &&
           directory.value(Compression) == Values{kUncompressed} &&
           directory.value(Photometric) == Values{kRgb} && is(PlanarConfiguration, 1) &&
           is(Predictor, 1) && is(Orientation, 1) && is(FillOrder, 1) &&
           !directory.contains(SampleFormat) && !directory.contains(ColorProfile) &&
           !directory.contains(TileWidth);
}

struct Layout
{
    qint64 width = 0;
    qint64 height = 0;
    qint64 samples = 0;
    qint64 rowsPerStrip = 0;
    Values offsets;
    Values sizes;
};

// None when the strips do not make up the picture.
std::optional<Layout> layoutOf(const Directory &directory)
{
    const auto single = [&](TiffTag tag) {
        const Values values = directory.value(tag);
        return values.size() == 1 ? qint64(values.constFirst()) : 0;
    };
    Layout layout{
        single(ImageWidth),   single(ImageLength),           single(SamplesPerPixel),
        single(RowsPerStrip), directory.value(StripOffsets), directory.value(StripByteCounts)};
    const qint64 largest = 1 << 15;
    if (layout.width < 1 || layout.width > largest || layout.height < 1 ||
        layout.height > largest || layout.width * layout.height > kMaximumPixels)
        return std::nullopt;
    if (!directory.contains(RowsPerStrip))
        layout.rowsPerStrip = layout.height;
    if (layout.rowsPerStrip < 1)
        return std::nullopt;
    layout.rowsPerStrip = std::min(layout.rowsPerStrip, layout.height);
    const qint64 strips = (layout.height + layout.rowsPerStrip - 1) / layout.rowsPerStrip;
    if (layout.offsets.size() != strips || layout.sizes.size() != strips)
        return std::nullopt;
    return layout;
}

// The bytes of the strip; none when the file has not exactly `size` of them.
const uchar *stripOf(const QByteArray &file, const Layout &layout, qsizetype strip, qint64 size)
{
    const qint64 offset = layout.offsets[strip];
    const bool complete = layout.sizes[strip] == size && offset + size <= file.size();
    return complete ? reinterpret_cast<const uchar *>(file.constData()) + offset : nullptr;
}

void copyRow(const uchar *source, qint64 samples, QImage &image, int y)
{
    auto *target = reinterpret_cast<QRgb *>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x, source += samples)
        target[x] = qRgba(source[0], source[1], source[2], samples == 4 ? source[3] : 0xff);
}

} // namespace

QImage readPlainTiff(const QByteArray &file)
{
    const Directory directory = isTiff(file) ? firstDirectory(file) : Directory();
    const auto layout = isPlain(directory) ? layoutOf(directory) : std::nullopt;
    if (!layout)
        return {};
    const qint64 rowSize = layout->width * layout->samples;
    QImage image(static_cast<int>(layout->width), static_cast<int>(layout->height),
                 layout->samples == 4 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < image.height(); y += static_cast<int>(layout->rowsPerStrip)) {
        const qint64 rows = std::min<qint64>(layout->rowsPerStrip, image.height() - y);
        const uchar *strip = stripOf(file, *layout, y / layout->rowsPerStrip, rows * rowSize);
        if (!strip)
            return {};
        for (int row = 0; row < rows; ++row)
            copyRow(strip + row * rowSize, layout->samples, image, y + row);
    }
    return image;
}
