#include "tests/imaging/Chain.h"
#include "tests/imaging/Reference.h"
#include "tests/imaging/TestPictures.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr CIColor kWhite{1.0, 1.0, 1.0, 1.0};
constexpr CIColor kSepia{0.6, 0.45, 0.3, 1.0};

/// A chain of filters, the same chain by its formulas, and by how many levels of 255 a drawn
/// pixel may differ.
struct ChainCase
{
    const char *name;
    std::vector<ChainLink> links;
    std::vector<ReferenceStep> steps;
    int allowed;
};

ChainLink mixing()
{
    return {QStringLiteral("CIColorMatrix"),
            {{kCIInputRVectorKey, QVariant::fromValue(CIVector{0.2, 0.9, -0.3, 0.1})},
             {kCIInputGVectorKey, QVariant::fromValue(CIVector{0.5, 0.1, 0.4, 0})},
             {kCIInputBVectorKey, QVariant::fromValue(CIVector{-0.1, 0.2, 1.3, -0.2})},
             {kCIInputAVectorKey, QVariant::fromValue(CIVector{0.1, 0, 0, 0.7})},
             {kCIInputBiasVectorKey, QVariant::fromValue(CIVector{0.05, -0.02, 0.01, 0.1})}}};
}

LinearPixel mixed(const LinearPixel &in)
{
    return {0.2 * in.red + 0.9 * in.green - 0.3 * in.blue + 0.1 * in.alpha + 0.05,
            0.5 * in.red + 0.1 * in.green + 0.4 * in.blue - 0.02,
            -0.1 * in.red + 0.2 * in.green + 1.3 * in.blue - 0.2 * in.alpha + 0.01,
            0.1 * in.red + 0.7 * in.alpha + 0.1};
}

const std::vector<ChainCase> &chains()
{
    static const std::vector<ChainCase> cases{
        // No filter, and filters that do nothing.
        {"nothing", {}, {}, 0},
        {"defaults",
         {{QStringLiteral("CIColorControls"), {}}, {QStringLiteral("CIColorMatrix"), {}}},
         {},
         0},
        // The preview's chains, in both orders.
        {"controlsThenGains",
         {controlsLink(1, 0.1, 0.875), gainsLink(1.5, 0.43, 1.1)},
         {controls(1, 0.1, 0.875), gains(1.5, 0.43, 1.1)},
         0},
        {"gainsThenControls",
         {gainsLink(1.5, 0.43, 1.1), controlsLink(1, 0.1, 0.875)},
         {gains(1.5, 0.43, 1.1), controls(1, 0.1, 0.875)},
         0},
        {"controlsThenMono",
         {controlsLink(1, -0.1, 1.125), monoLink(kWhite, 1)},
         {controls(1, -0.1, 1.125), mono(1, 1, 1, 1)},
         1},
        {"monoThenControls",
         {monoLink(kWhite, 1), controlsLink(1, -0.1, 1.125)},
         {mono(1, 1, 1, 1), controls(1, -0.1, 1.125)},
         1},
        // What depends on the luminance alone, tinted; and what only seems to.
        {"sepia", {monoLink(kSepia, 1)}, {mono(0.6, 0.45, 0.3, 1)}, 1},
        {"monoThenGains",
         {monoLink(kWhite, 1), gainsLink(1.4, 1, 0.6)},
         {mono(1, 1, 1, 1), gains(1.4, 1, 0.6)},
         1},
        {"noSaturation", {controlsLink(0, 0.05, 1.1)}, {controls(0, 0.05, 1.1)}, 1},
        {"monoTooSteepForTheKeptLuminance",
         {monoLink(kWhite, 1), controlsLink(1, 0, 9)},
         {mono(1, 1, 1, 1), controls(1, 0, 9)},
         0},
        {"halfMono", {monoLink(kSepia, 0.5)}, {mono(0.6, 0.45, 0.3, 0.5)}, 0},
        {"gainsThenMono",
         {gainsLink(1.5, 0.43, 1.1), monoLink(kWhite, 1)},
         {gains(1.5, 0.43, 1.1), mono(1, 1, 1, 1)},
         0},
        // Channels that depend on each other.
        {"saturated", {controlsLink(1.8, 0, 1)}, {controls(1.8, 0, 1)}, 0},
        {"matrixOfEverything", {mixing()}, {mixed}, 0},
        {"saturatedBeforeTheMatrix",
         {controlsLink(0.4, 0.02, 1.2), mixing()},
         {controls(0.4, 0.02, 1.2), mixed},
         0},
        // Nothing is clamped in between: what is far beyond white comes back.
        {"outOfRangeAndBack",
         {controlsLink(1, 5, 1), controlsLink(1, -5, 1)},
         {controls(1, 5, 1), controls(1, -5, 1)},
         0},
        {"negativeGains", {gainsLink(-1, -0.5, 2)}, {gains(-1, -0.5, 2)}, 0},
        {"everythingBlack", {gainsLink(0, 0, 0)}, {gains(0, 0, 0)}, 0},
        {"everythingWhite", {controlsLink(1, 50, 1)}, {controls(1, 50, 1)}, 0},
    };
    return cases;
}

using Format = QImage::Format;

const char *formatName(Format format)
{
    switch (format) {
    case Format::Format_RGB32:
        return "8BitOpaque";
    case Format::Format_ARGB32:
        return "8BitAlpha";
    case Format::Format_RGBX64:
        return "16BitOpaque";
    default:
        return "16BitAlpha";
    }
}

std::string nameOf(const testing::TestParamInfo<std::tuple<ChainCase, Format>> &info)
{
    return std::string(std::get<0>(info.param).name) + formatName(std::get<1>(info.param));
}

class Chains : public testing::TestWithParam<std::tuple<ChainCase, Format>>
{};

} // namespace

TEST_P(Chains, EveryPixelIsThatOfTheFormulas)
{
    const auto &[chain, format] = GetParam();
    const QImage source = noise({61, 37}, format);

    const QImage result = drawn(chained(CIImage::imageWithPicture(source), chain.links));

    EXPECT_LE(worstDifference(result, source, chain.steps), chain.allowed);
}

INSTANTIATE_TEST_SUITE_P(
    Imaging, Chains,
    testing::Combine(testing::ValuesIn(chains()),
                     testing::Values(Format::Format_RGB32, Format::Format_ARGB32,
                                     Format::Format_RGBX64, Format::Format_RGBA64)),
    nameOf);

TEST(ChainOrder, ShowsInThePixels)
{
    // Linear 0.2159 (sRGB 128), brightness 0.1 and gain 1.5: (0.2159 + 0.1) * 1.5 = 0.4738 is
    // sRGB 183; 0.2159 * 1.5 + 0.1 = 0.4238 is sRGB 174.
    QImage grey(1, 1, QImage::Format_RGB32);
    grey.fill(qRgb(128, 128, 128));
    const Image image = CIImage::imageWithPicture(grey);
    const ChainLink brighter = controlsLink(1, 0.1, 1);
    const ChainLink redder = gainsLink(1.5, 1, 1);

    EXPECT_EQ(qRed(drawn(chained(image, {brighter, redder})).pixel(0, 0)), 183);
    EXPECT_EQ(qRed(drawn(chained(image, {redder, brighter})).pixel(0, 0)), 174);
}

TEST(ChainOverflow, InfiniteAndUndefinedSumsDrawBlackOrWhite)
{
    const double most = std::numeric_limits<double>::max();
    const Image image = CIImage::imageWithPicture(greyRamp());

    const QImage infinite =
        drawn(chained(image, {gainsLink(most, most, most), gainsLink(most, most, most)}));
    const QImage undefined =
        drawn(chained(image, {gainsLink(most, most, most), controlsLink(1, 0, most),
                              controlsLink(1, 0, -most), controlsLink(0.5, 0, 1)}));

    EXPECT_EQ(infinite.pixel(255, 0), qRgb(255, 255, 255));
    for (int x = 0; x < 256; ++x) {
        const int red = qRed(undefined.pixel(x, 0));
        EXPECT_TRUE(red == 0 || red == 255) << red << " at " << x;
    }
}
