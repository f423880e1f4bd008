#include "tests/imaging/Chain.h"
#include "tests/imaging/Reference.h"
#include "tests/imaging/TestFile.h"
#include "tests/imaging/TiffBuilder.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

namespace {

constexpr quint32 kSide = 10000;
constexpr quint32 kStripRows = 100;

/// A file in which all strips are the same one: large pictures in few bytes. `height` is a
/// multiple of the strip's rows.
QByteArray repeatedStrip(quint32 width, quint32 height, quint32 rows)
{
    QByteArray strip(qsizetype(width) * rows, '\0');
    for (qsizetype i = 0; i < strip.size(); ++i)
        strip[i] = char(i % 251);
    const std::size_t strips = height / rows;
    return TiffBuilder::grey(width, height, strip)
        .set(TiffBuilder::RowsPerStrip, {rows})
        .set(TiffBuilder::StripOffsets, std::vector(strips, TiffBuilder::kPixelOffset))
        .set(TiffBuilder::StripByteCounts, std::vector(strips, quint32(strip.size())))
        .file();
}

int expectedLevel(int x, int y, double gain)
{
    const auto index = (y % int(kStripRows)) * int(kSide) + x;
    return level(toLinear(index % 251 / 255.0) * gain);
}

double peakMegabytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024.0;
}

} // namespace

TEST(LargePicture, OfAHundredMegapixelsIsReadAndDrawnInBoundedMemory)
{
    const TestFile file(repeatedStrip(kSide, kSide, kStripRows));
    const Image image = CIImage::imageWithContentsOfFile(file.path());
    ASSERT_TRUE(image);
    EXPECT_EQ(image->extent(), QRect(0, 0, int(kSide), int(kSide)));

    const QImage result = drawn(chained(image, {gainsLink(1.3, 1, 0.7)}));
    for (int i = 0; i < int(kSide); i += 7) {
        const QRgb pixel = result.pixel(i, int(kSide) - 1 - i);
        const int y = int(kSide) - 1 - i;
        ASSERT_EQ(pixel,
                  qRgb(expectedLevel(i, y, 1.3), expectedLevel(i, y, 1), expectedLevel(i, y, 0.7)))
            << i;
    }

    const QImage grey = drawn(chained(image, {monoLink({1, 1, 1, 1}, 1)}));
    EXPECT_NEAR(qRed(grey.pixel(9999, 9999)), expectedLevel(9999, 9999, 1), 1);

    // The decoded picture and two targets of 400 MB each, the luminance of 200 MB, and what the
    // decoder had as grey before.
    EXPECT_LT(peakMegabytes(), 1700.0);
}

TEST(LargePicture, OfOneRowMoreThanTheBoundIsRefused)
{
    // 16384 x 8192 is 2^27.
    const TestFile largest(repeatedStrip(16384, 8192, 1));
    const TestFile tooLarge(repeatedStrip(16384, 8193, 1));
    EXPECT_EQ(CIImage::imageWithContentsOfFile(tooLarge.path()), nullptr);
    EXPECT_NE(CIImage::imageWithContentsOfFile(largest.path()), nullptr);
}
