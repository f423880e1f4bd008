#include "platform/imaging/PlainTiff.h"

#include "TiffBuilder.h"

#include <QtCore/QFile>

#include <gtest/gtest.h>

#include <functional>

namespace {

using Tag = TiffBuilder::Tag;

constexpr Tag kPredictor = Tag(317);
constexpr Tag kExtraSamples = Tag(338);
constexpr Tag kColorProfile = Tag(34675);

/// Two by two pixels of `samples` bytes each, in the order of the rows.
TiffBuilder colorFile(quint32 samples, const QByteArray &bytes)
{
    return TiffBuilder::grey(2, 2, bytes)
        .set(Tag::SamplesPerPixel, {samples})
        .set(Tag::BitsPerSample, std::vector<quint32>(samples, 8))
        .set(Tag::Photometric, {2})
        .set(Tag::StripByteCounts, {quint32(bytes.size())});
}

const QByteArray kOpaqueBytes = QByteArray::fromHex("010203 0a0b0c fffefd 000000");
const QByteArray kAlphaBytes = QByteArray::fromHex("01020300 0a0b0c01 fffefd80 000000ff");

QList<QRgb> pixelsOf(const QImage &image)
{
    QList<QRgb> pixels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            pixels << image.pixel(x, y);
    }
    return pixels;
}

const QList<QRgb> kOpaquePixels = {0xff010203, 0xff0a0b0c, 0xfffffefd, 0xff000000};
const QList<QRgb> kAlphaPixels = {0x00010203, 0x010a0b0c, 0x80fffefd, 0xff000000};

} // namespace

TEST(PlainTiff, GivesTheBytesAsTheyStand)
{
    const QImage image = readPlainTiff(colorFile(3, kOpaqueBytes).file());
    EXPECT_EQ(image.format(), QImage::Format_RGB32);
    EXPECT_EQ(pixelsOf(image), kOpaquePixels);
}

TEST(PlainTiff, KeepsTheColorsOfTransparentPixels)
{
    const QImage image = readPlainTiff(colorFile(4, kAlphaBytes).set(kExtraSamples, {2}).file());
    EXPECT_EQ(image.format(), QImage::Format_ARGB32);
    EXPECT_EQ(pixelsOf(image), kAlphaPixels);
}

TEST(PlainTiff, ReadsStripAfterStrip)
{
    const auto file =
        colorFile(3, kOpaqueBytes)
            .set(Tag::RowsPerStrip, {1})
            .set(Tag::StripOffsets, {TiffBuilder::kPixelOffset, TiffBuilder::kPixelOffset + 6})
            .set(Tag::StripByteCounts, {6, 6})
            .file();
    EXPECT_EQ(pixelsOf(readPlainTiff(file)), kOpaquePixels);
}

TEST(PlainTiff, ReadsThePicturesThatThePanelsShow)
{
    for (const char *name : {"Natural", "Vivid", "None", "Glossy"}) {
        QFile file(QStringLiteral(PICTURE_FOLDER "/%1.tiff").arg(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        const QImage plain = readPlainTiff(file.readAll());
        const QImage other(file.fileName());
        ASSERT_EQ(plain.size(), other.size()) << name;
        // Qt's decoder has multiplied the alpha in.
        const auto format = QImage::Format_ARGB32_Premultiplied;
        EXPECT_EQ(plain.convertToFormat(format), other.convertToFormat(format)) << name;
    }
}

TEST(PlainTiff, LeavesEverythingElseToAnotherDecoder)
{
    const std::pair<const char *, std::function<void(TiffBuilder &)>> changes[] = {
        {"turned", [](TiffBuilder &tiff) { tiff.set(Tag::Orientation, {3}); }},
        {"another compression", [](TiffBuilder &tiff) { tiff.set(Tag::Compression, {5}); }},
        {"deflated", [](TiffBuilder &tiff) { tiff.set(Tag::Compression, {8}); }},
        {"16 bits",
         [](TiffBuilder &tiff) {
             tiff.set(Tag::BitsPerSample, {16, 16, 16});
         }},
        {"not as many bits", [](TiffBuilder &tiff) { tiff.set(Tag::BitsPerSample, {8}); }},
        {"grey", [](TiffBuilder &tiff) { tiff.set(Tag::Photometric, {1}); }},
        {"no samples", [](TiffBuilder &tiff) { tiff.set(Tag::SamplesPerPixel, {0}); }},
        {"alpha multiplied in", [](TiffBuilder &tiff) { tiff.set(kExtraSamples, {1}); }},
        {"predicted", [](TiffBuilder &tiff) { tiff.set(kPredictor, {2}); }},
        {"with a profile", [](TiffBuilder &tiff) { tiff.set(kColorProfile, {1}); }},
        {"in tiles", [](TiffBuilder &tiff) { tiff.set(Tag::TileWidth, {16}); }},
        {"without a width", [](TiffBuilder &tiff) { tiff.set(Tag::ImageWidth, {0}); }},
        {"too high", [](TiffBuilder &tiff) { tiff.set(Tag::ImageLength, {0xffffffff}); }},
        {"without strips", [](TiffBuilder &tiff) { tiff.set(Tag::RowsPerStrip, {0}); }},
        {"a strip too few", [](TiffBuilder &tiff) { tiff.set(Tag::RowsPerStrip, {1}); }},
        {"a short strip", [](TiffBuilder &tiff) { tiff.set(Tag::StripByteCounts, {11}); }},
        {"a strip outside", [](TiffBuilder &tiff) { tiff.set(Tag::StripOffsets, {0xfffffff0}); }},
    };
    for (const auto &[name, change] : changes) {
        TiffBuilder tiff = colorFile(3, kOpaqueBytes);
        change(tiff);
        EXPECT_TRUE(readPlainTiff(tiff.file()).isNull()) << name;
    }
}

TEST(PlainTiff, ReadsNothingOfACutFile)
{
    const QByteArray whole = colorFile(3, kOpaqueBytes).file();
    constexpr qsizetype nextDirectory = 4; // the last field, which nobody asks for
    for (qsizetype size = 0; size < whole.size() - nextDirectory; ++size) {
        const QImage image = readPlainTiff(whole.left(size));
        EXPECT_TRUE(image.isNull() || pixelsOf(image) == kOpaquePixels) << size;
    }
    EXPECT_TRUE(readPlainTiff(whole.left(whole.size() / 2)).isNull());
}
