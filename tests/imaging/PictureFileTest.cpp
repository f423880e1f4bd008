#include "tests/imaging/Chain.h"
#include "tests/imaging/Reference.h"
#include "tests/imaging/TestFile.h"
#include "tests/imaging/TestPictures.h"
#include "tests/imaging/TiffBuilder.h"

#include <QtGui/QColorSpace>
#include <QtGui/QImageReader>

#include <gtest/gtest.h>

namespace {

QImage drawnFile(const TestFile &file)
{
    const Image image = CIImage::imageWithContentsOfFile(file.path());
    EXPECT_TRUE(image);
    return drawn(image);
}

QImage filled(QImage::Format format, QRgb color)
{
    QImage picture(4, 3, format);
    picture.fill(QColor::fromRgba(color));
    return picture;
}

struct FileCase
{
    const char *name;
    const char *format;
    QImage::Format pixels;
    int compression;
};

class PictureFiles : public testing::TestWithParam<FileCase>
{};

} // namespace

TEST_P(PictureFiles, AreReadAndFilteredByTheFormulas)
{
    const QImage source = noise({53, 29}, GetParam().pixels);
    const TestFile file(source, GetParam().format, GetParam().compression);

    const Image image = CIImage::imageWithContentsOfFile(file.path());
    ASSERT_TRUE(image);

    EXPECT_EQ(image->extent(), QRect(0, 0, 53, 29));
    EXPECT_EQ(worstDifference(drawn(image), source, {}), 0);
    EXPECT_EQ(worstDifference(
                  drawn(chained(image, {controlsLink(1, -0.05, 1.1), gainsLink(1.2, 0.9, 1.5)})),
                  source, {controls(1, -0.05, 1.1), gains(1.2, 0.9, 1.5)}),
              0);
}

INSTANTIATE_TEST_SUITE_P(
    Imaging, PictureFiles,
    testing::Values(FileCase{"TiffOpaque", "tiff", QImage::Format_RGB32, 0},
                    FileCase{"TiffOpaqueCompressed", "tiff", QImage::Format_RGB32, 1},
                    FileCase{"Tiff16Bit", "tiff", QImage::Format_RGBX64, 0},
                    FileCase{"Tiff16BitAlpha", "tiff", QImage::Format_RGBA64, 1},
                    FileCase{"PngOpaque", "png", QImage::Format_RGB32, 50},
                    FileCase{"PngAlpha", "png", QImage::Format_ARGB32, 50},
                    FileCase{"Png16BitAlpha", "png", QImage::Format_RGBA64, 50}),
    [](const auto &test) { return test.param.name; });

// The decoder multiplies the alpha into the colours of such a file, and has to be undone: only
// what can be seen of a pixel survives it.
TEST(PictureFile, OfTiffWith8BitsAndAlphaKeepsWhatCanBeSeen)
{
    const QImage source = noise({53, 29}, QImage::Format_ARGB32);
    for (const int compression : {0, 1}) {
        const TestFile file(source, "tiff", compression);
        const Image image = CIImage::imageWithContentsOfFile(file.path());
        ASSERT_TRUE(image);
        const QImage decoded = drawn(image);
        for (int y = 0; y < source.height(); ++y) {
            for (int x = 0; x < source.width(); ++x) {
                const QRgb before = source.pixel(x, y);
                const QRgb after = decoded.pixel(x, y);
                ASSERT_EQ(qAlpha(after), qAlpha(before));
                ASSERT_LE(std::abs(qRed(after) - qRed(before)) * qAlpha(before), 255);
                ASSERT_LE(std::abs(qGreen(after) - qGreen(before)) * qAlpha(before), 255);
                ASSERT_LE(std::abs(qBlue(after) - qBlue(before)) * qAlpha(before), 255);
            }
        }
        EXPECT_EQ(worstDifference(drawn(chained(image, {controlsLink(1, -0.05, 1.1)})), decoded,
                                  {controls(1, -0.05, 1.1)}),
                  0);
    }
}

TEST(PictureFile, OfGreysIsReadAsColoursOfEqualParts)
{
    QImage grey(256, 1, QImage::Format_Grayscale8);
    for (int i = 0; i < 256; ++i)
        grey.scanLine(0)[i] = uchar(i);
    EXPECT_EQ(drawnFile(TestFile(grey, "tiff")), greyRamp());
}

TEST(PictureFile, Of16BitGreysKeepsTheFineShadesForTheFilters)
{
    // 100 and 200 of 65535 are both black in 8 bits; times 16 in linear light they are
    // 1600 / 65535 = 6.2 and 12.5 of 255 on the straight part of the curve.
    QImage grey(2, 1, QImage::Format_Grayscale16);
    reinterpret_cast<quint16 *>(grey.scanLine(0))[0] = 100;
    reinterpret_cast<quint16 *>(grey.scanLine(0))[1] = 200;
    const TestFile file(grey, "tiff");

    const QImage result =
        drawn(chained(CIImage::imageWithContentsOfFile(file.path()), {gainsLink(16, 16, 16)}));

    EXPECT_EQ(result.pixel(0, 0), qRgb(6, 6, 6));
    EXPECT_EQ(result.pixel(1, 0), qRgb(12, 12, 12));
}

TEST(PictureFile, OfAPaletteIsReadInItsColours)
{
    QImage palette(3, 1, QImage::Format_Indexed8);
    palette.setColorTable({qRgb(10, 20, 30), qRgb(200, 100, 50), qRgb(0, 255, 0)});
    for (int i = 0; i < 3; ++i)
        palette.setPixel(i, 0, uint(i));
    const QImage result = drawnFile(TestFile(palette, "tiff"));
    EXPECT_EQ(result.pixel(0, 0), qRgb(10, 20, 30));
    EXPECT_EQ(result.pixel(1, 0), qRgb(200, 100, 50));
    EXPECT_EQ(result.pixel(2, 0), qRgb(0, 255, 0));
}

TEST(PictureFile, OfOneBitIsReadInBlackAndWhite)
{
    QImage bits(2, 1, QImage::Format_Mono);
    bits.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    bits.setPixel(0, 0, 0);
    bits.setPixel(1, 0, 1);
    const QImage result = drawnFile(TestFile(bits, "tiff"));
    EXPECT_EQ(result.pixel(0, 0), qRgb(0, 0, 0));
    EXPECT_EQ(result.pixel(1, 0), qRgb(255, 255, 255));
}

TEST(PictureFile, OfOnePixelIsDrawn)
{
    QImage one(1, 1, QImage::Format_RGB32);
    one.fill(qRgb(12, 34, 56));
    const QImage result = drawnFile(TestFile(one, "tiff"));
    EXPECT_EQ(result.size(), QSize(1, 1));
    EXPECT_EQ(result.pixel(0, 0), qRgb(12, 34, 56));
}

TEST(PictureFile, KeepsTheColourUnderTransparentPixels)
{
    const QImage result =
        drawnFile(TestFile(filled(QImage::Format_ARGB32, qRgba(90, 80, 70, 1)), "png", 50));
    EXPECT_EQ(result.pixel(1, 1), qRgba(90, 80, 70, 1));
}

TEST(PictureFile, WithAColourProfileIsConvertedToSrgb)
{
    // Linear 55, 128 and 255 of 255 are 128, 188 and 255 in sRGB.
    QImage linear = filled(QImage::Format_RGB32, qRgb(55, 128, 255));
    linear.setColorSpace(QColorSpace(QColorSpace::SRgbLinear));
    const QRgb result = drawnFile(TestFile(linear, "tiff")).pixel(2, 2);
    EXPECT_NEAR(qRed(result), 128, 1);
    EXPECT_NEAR(qGreen(result), 188, 1);
    EXPECT_EQ(qBlue(result), 255);
}

TEST(PictureFile, WithTheSrgbProfileIsReadAsItStands)
{
    QImage tagged = noise({53, 29}, QImage::Format_RGB32);
    tagged.setColorSpace(QColorSpace(QColorSpace::SRgb));
    EXPECT_EQ(worstDifference(drawnFile(TestFile(tagged, "tiff")), tagged, {}), 0);
}

TEST(PictureFile, OfGreysWithAColourProfileIsConvertedToSrgb)
{
    for (const QImage::Format format : {QImage::Format_Grayscale8, QImage::Format_Grayscale16}) {
        QImage linear = filled(format, qRgb(55, 55, 55));
        linear.setColorSpace(QColorSpace(QColorSpace::SRgbLinear));
        const QRgb result = drawnFile(TestFile(linear, "tiff")).pixel(2, 2);
        EXPECT_NEAR(qRed(result), 128, 1) << format;
        EXPECT_EQ(qRed(result), qGreen(result)) << format;
        EXPECT_EQ(qRed(result), qBlue(result)) << format;
    }
}

TEST(PictureFile, StandsTheWayUpThatItAsksFor)
{
    // Orientation 6: the first row is the right-hand side.
    const QByteArray pixels("\x0a\x14", 2);
    const TestFile file(TiffBuilder::grey(2, 1, pixels).set(TiffBuilder::Orientation, {6}).file());
    const QImage result = drawnFile(file);
    ASSERT_EQ(result.size(), QSize(1, 2));
    EXPECT_EQ(qRed(result.pixel(0, 0)), 10);
    EXPECT_EQ(qRed(result.pixel(0, 1)), 20);
}

TEST(PictureFile, ThatChangesLaterDoesNotChangeTheImage)
{
    const QImage source = noise({53, 29}, QImage::Format_RGB32);
    const TestFile file(source, "tiff");
    const Image image = CIImage::imageWithContentsOfFile(file.path());
    ASSERT_TRUE(QFile::remove(file.path()));
    EXPECT_EQ(worstDifference(drawn(image), source, {}), 0);
}

TEST(PictureFile, LeavesTheApplicationsAllocationLimitAsItWas)
{
    const int former = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(77);
    const TestFile file(filled(QImage::Format_RGB32, qRgb(1, 2, 3)), "tiff");
    CIImage::imageWithContentsOfFile(file.path());
    EXPECT_EQ(QImageReader::allocationLimit(), 77);
    QImageReader::setAllocationLimit(former);
}
