#pragma once

#include <QtCore/QByteArray>

#include <vector>

/// Writes TIFF files by their fields, right ones and wrong ones (little-endian, one directory).
class TiffBuilder
{
public:
    enum Tag : quint16 {
        ImageWidth = 256,
        ImageLength = 257,
        BitsPerSample = 258,
        Compression = 259,
        Photometric = 262,
        StripOffsets = 273,
        Orientation = 274,
        SamplesPerPixel = 277,
        RowsPerStrip = 278,
        StripByteCounts = 279,
        TileWidth = 322,
        TileLength = 323,
        TileOffsets = 324,
        TileByteCounts = 325,
    };

    /// A greyscale file of 8 bits and one strip, uncompressed, with all of its fields.
    static TiffBuilder grey(quint32 width, quint32 height, const QByteArray &pixels);

    /// Adds or replaces a field of 32-bit values.
    TiffBuilder &set(Tag tag, const std::vector<quint32> &values);
    TiffBuilder &remove(Tag tag);
    /// Where the next directory is; 0 for none, 8 for this one again.
    TiffBuilder &setNext(quint32 offset);

    /// Where the pixels will be in the file.
    static constexpr quint32 kPixelOffset = 16;

    QByteArray file() const;

private:
    struct Field
    {
        Tag tag;
        std::vector<quint32> values;
    };

    std::vector<Field> m_fields; ///< in ascending order of the tags
    QByteArray m_pixels;
    quint32 m_next = 0;
};
