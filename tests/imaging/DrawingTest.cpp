#include "tests/imaging/AllocationCounter.h"
#include "tests/imaging/Chain.h"
#include "tests/imaging/TestPictures.h"

#include <gtest/gtest.h>

namespace {

constexpr CIColor kPaperWhite{1.0, 1.0, 1.0, 1.0};

Image picture(QImage::Format format, QSize size = {300, 200})
{
    return CIImage::imageWithPicture(noise(size, format));
}

} // namespace

TEST(AllocationCounting, SeesTheHeapOfThisProgramAndOfItsLibraries)
{
    const AllocationCounter counter;
    const auto own = std::make_unique<std::array<char, 1000>>();
    const QImage ofQt(1000, 1000, QImage::Format_RGB32);
    EXPECT_GE(counter.allocations(), 2);
    EXPECT_GE(counter.bytes(), 4'001'000U);
}

TEST(ImageExtent, IsThePicturesRectangle)
{
    EXPECT_EQ(picture(QImage::Format_RGB32)->extent(), QRect(0, 0, 300, 200));
    EXPECT_EQ(CIImage::imageWithPicture(QImage()), nullptr);
}

TEST(Recipes, AreMadeWithoutLookingAtThePixels)
{
    const Image image = picture(QImage::Format_RGB32, {2000, 1000});
    chained(image,
            {controlsLink(1, 0.1, 1.1), monoLink(kPaperWhite, 1)}); // the filters' own first use

    const AllocationCounter counter;
    const Image output = chained(image, {controlsLink(1, 0.1, 1.1), monoLink(kPaperWhite, 1)});

    EXPECT_EQ(output->extent(), image->extent());
    EXPECT_LT(counter.bytes(), 20'000U);
}

struct RepeatCase
{
    const char *name;
    QImage::Format format;
    std::vector<ChainLink> links;
};

class RepeatedDrawing : public testing::TestWithParam<RepeatCase>
{};

TEST_P(RepeatedDrawing, AllocatesNothingAndTouchesNoNewPage)
{
    const Image image = picture(GetParam().format, {640, 480});
    const Image first = chained(image, GetParam().links);
    const Image second = chained(first, GetParam().links);
    CIContext context;
    QImage target;
    context.drawImage(first, target);
    const uchar *pixels = target.constBits();

    const AllocationCounter counter;
    context.drawImage(second, target);
    const long allocations = counter.allocations();
    const long pageFaults = counter.pageFaults();

    EXPECT_EQ(allocations, 0);
    EXPECT_EQ(pageFaults, 0);
    EXPECT_EQ(target.constBits(), pixels);
}

INSTANTIATE_TEST_SUITE_P(
    Imaging, RepeatedDrawing,
    testing::Values(
        RepeatCase{"Colour", QImage::Format_RGB32, {controlsLink(1, 0.1, 1.1)}},
        RepeatCase{"ColourWithAlpha", QImage::Format_ARGB32, {gainsLink(1.1, 1, 0.9)}},
        RepeatCase{
            "Mono", QImage::Format_RGB32, {controlsLink(1, 0.1, 1.1), monoLink(kPaperWhite, 1)}},
        RepeatCase{"MixedChannels", QImage::Format_RGB32, {controlsLink(1.5, 0.1, 1.1)}},
        RepeatCase{"SixteenBits", QImage::Format_RGBA64, {controlsLink(1, 0.1, 1.1)}}),
    [](const auto &test) { return test.param.name; });

TEST(DrawingTarget, GetsAFormatThatIsExact)
{
    const std::vector<ChainLink> alphaHalved{
        {QStringLiteral("CIColorMatrix"),
         {{kCIInputAVectorKey, QVariant::fromValue(CIVector{0, 0, 0, 0.5})}}}};
    EXPECT_EQ(drawn(picture(QImage::Format_RGB32)).format(), QImage::Format_RGB32);
    EXPECT_EQ(drawn(picture(QImage::Format_RGBX64)).format(), QImage::Format_RGB32);
    EXPECT_EQ(drawn(picture(QImage::Format_ARGB32)).format(), QImage::Format_ARGB32);
    EXPECT_EQ(drawn(picture(QImage::Format_RGBA64)).format(), QImage::Format_ARGB32);

    const QImage halved = drawn(chained(picture(QImage::Format_RGB32), alphaHalved));
    EXPECT_EQ(halved.format(), QImage::Format_ARGB32);
    EXPECT_EQ(qAlpha(halved.pixel(0, 0)), 128);
}

TEST(DrawingTarget, OfAnotherSizeOrFormatIsReplaced)
{
    const QImage source = noise({31, 17}, QImage::Format_RGB32);
    const Image image = CIImage::imageWithPicture(source);
    for (QImage target : {QImage(), QImage(30, 17, QImage::Format_RGB32),
                          QImage(31, 17, QImage::Format_ARGB32_Premultiplied),
                          QImage(17, 31, QImage::Format_Grayscale8)}) {
        CIContext().drawImage(image, target);
        EXPECT_EQ(target, source);
    }
}

TEST(DrawingTarget, ThatIsSharedIsLeftToItsOtherOwner)
{
    QImage target(300, 200, QImage::Format_RGB32);
    target.fill(Qt::red);
    const QImage other = target;

    CIContext().drawImage(picture(QImage::Format_RGB32), target);

    EXPECT_EQ(other.pixel(7, 7), qRgb(255, 0, 0));
    EXPECT_EQ(target, noise({300, 200}, QImage::Format_RGB32));
}

TEST(DrawingTarget, BecomesNullWithoutAnImage)
{
    QImage target(3, 2, QImage::Format_RGB32);
    CIContext().drawImage(nullptr, target);
    EXPECT_TRUE(target.isNull());
}

TEST(DrawingTarget, WithGapsBetweenItsRowsIsDrawnRowByRow)
{
    const QImage source = noise({31, 17}, QImage::Format_RGB32);
    std::vector<uchar> memory(17UL * 200, uchar(7));
    QImage target(memory.data(), 31, 17, 200, QImage::Format_RGB32);

    CIContext().drawImage(CIImage::imageWithPicture(source), target);

    EXPECT_EQ(target, source);
    EXPECT_EQ(memory[31UL * 4], 7) << "wrote beyond the end of a row";
}

TEST(DrawnPicture, OfEveryWidthHasItsLastPixel)
{
    for (int width = 1; width <= 9; ++width) {
        const QImage source = noise({width, 3}, QImage::Format_ARGB32);
        EXPECT_EQ(drawn(CIImage::imageWithPicture(source)), source) << width;
        const QImage grey =
            drawn(chained(CIImage::imageWithPicture(source.convertedTo(QImage::Format_RGB32)),
                          {monoLink(kPaperWhite, 1)}));
        EXPECT_TRUE(grey.isGrayscale()) << width;
        EXPECT_EQ(grey.width(), width);
    }
}

TEST(DecodedPicture, IsNotChangedByDrawingOrByItsFormerOwner)
{
    QImage source = noise({31, 17}, QImage::Format_RGB32);
    const QImage copy = source.copy();
    const Image image = CIImage::imageWithPicture(source);
    drawn(chained(image, {controlsLink(1, 0.1, 1.1)}));
    source.fill(Qt::red);
    EXPECT_EQ(drawn(image), copy);
}
