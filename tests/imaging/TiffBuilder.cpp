#include "tests/imaging/TiffBuilder.h"

#include <QtCore/QtEndian>

#include <algorithm>

namespace {

template <typename Number> void append(QByteArray &bytes, Number value)
{
    char raw[sizeof(Number)];
    qToLittleEndian(value, raw);
    bytes.append(raw, sizeof raw);
}

} // namespace

TiffBuilder TiffBuilder::grey(quint32 width, quint32 height, const QByteArray &pixels)
{
    TiffBuilder builder;
    builder.m_pixels = pixels;
    builder.set(ImageWidth, {width})
        .set(ImageLength, {height})
        .set(BitsPerSample, {8})
        .set(Compression, {1})
        .set(Photometric, {1})
        .set(StripOffsets, {kPixelOffset})
        .set(SamplesPerPixel, {1})
        .set(RowsPerStrip, {height})
        .set(StripByteCounts, {quint32(pixels.size())});
    return builder;
}

TiffBuilder &TiffBuilder::set(Tag tag, const std::vector<quint32> &values)
{
    remove(tag);
    const auto place = std::find_if(m_fields.begin(), m_fields.end(),
                                    [tag](const Field &field) { return field.tag > tag; });
    m_fields.insert(place, {tag, values});
    return *this;
}

TiffBuilder &TiffBuilder::remove(Tag tag)
{
    std::erase_if(m_fields, [tag](const Field &field) { return field.tag == tag; });
    return *this;
}

TiffBuilder &TiffBuilder::setNext(quint32 offset)
{
    m_next = offset;
    return *this;
}

QByteArray TiffBuilder::file() const
{
    constexpr quint16 longType = 4;
    QByteArray values; // of the fields that have more than one
    const auto directory = quint32(kPixelOffset + quint32(m_pixels.size()) + 1) & ~1U;
    const auto valuesOffset = quint32(directory + 2 + 12 * m_fields.size() + 4);

    QByteArray bytes("II*\0", 4);
    append(bytes, directory);
    bytes.append(QByteArray(kPixelOffset - bytes.size(), '\0'));
    bytes.append(m_pixels);
    bytes.append(QByteArray(directory - quint32(bytes.size()), '\0'));
    append(bytes, quint16(m_fields.size()));
    for (const Field &field : m_fields) {
        append(bytes, quint16(field.tag));
        append(bytes, longType);
        append(bytes, quint32(field.values.size()));
        if (field.values.size() == 1) {
            append(bytes, field.values.front());
            continue;
        }
        append(bytes, valuesOffset + quint32(values.size()));
        for (const quint32 value : field.values)
            append(values, value);
    }
    append(bytes, m_next == 8 ? directory : m_next);
    return bytes + values;
}
