// Every setting of the preview's sliders against the double-precision formulas.

#include "tests/imaging/Chain.h"
#include "tests/imaging/Reference.h"
#include "tests/imaging/TestPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int kSettings = 41; ///< a slider's whole numbers, -20 to 20

float brightnessOf(int setting)
{
    return float(setting - 20) / 200.0F;
}
float contrastOf(int setting)
{
    return float(setting - 20) / 160.0F + 1.0F;
}
double gainOf(int setting)
{
    return (setting - 20) / 35.0 + 1.0;
}

/// Filters that are kept and set anew for every change, as the panel keeps them.
class Preview
{
public:
    explicit Preview(const QImage &picture) : m_picture(CIImage::imageWithPicture(picture))
    {
        m_mono->setValue(CIColor{1.0, 1.0, 1.0, 1.0}, kCIInputColorKey);
    }

    void set(int brightness, int contrast)
    {
        m_controls->setValue(brightnessOf(brightness), kCIInputBrightnessKey);
        m_controls->setValue(contrastOf(contrast), kCIInputContrastKey);
    }

    void setGains(const std::array<int, 3> &gains)
    {
        m_matrix->setValue(CIVector{gainOf(gains[0]), 0, 0, 0}, kCIInputRVectorKey);
        m_matrix->setValue(CIVector{0, gainOf(gains[1]), 0, 0}, kCIInputGVectorKey);
        m_matrix->setValue(CIVector{0, 0, gainOf(gains[2]), 0}, kCIInputBVectorKey);
    }

    const QImage &controlsThenMatrix() { return draw(*m_controls, *m_matrix); }
    const QImage &matrixThenControls() { return draw(*m_matrix, *m_controls); }
    const QImage &controlsThenMono() { return draw(*m_controls, *m_mono); }
    const QImage &monoThenControls() { return draw(*m_mono, *m_controls); }

private:
    const QImage &draw(CIFilter &first, CIFilter &second)
    {
        first.setValue(m_picture, kCIInputImageKey);
        second.setValue(first.outputImage(), kCIInputImageKey);
        m_context.drawImage(second.outputImage(), m_target);
        return m_target;
    }

    Image m_picture;
    std::unique_ptr<CIFilter> m_controls =
        CIFilter::filterWithName(QStringLiteral("CIColorControls"));
    std::unique_ptr<CIFilter> m_matrix = CIFilter::filterWithName(QStringLiteral("CIColorMatrix"));
    std::unique_ptr<CIFilter> m_mono =
        CIFilter::filterWithName(QStringLiteral("CIColorMonochrome"));
    CIContext m_context;
    QImage m_target;
};

using Levels = std::array<quint8, 256>;
using LevelsByGain = std::array<Levels, kSettings>;

double controlled(double linear, int brightness, int contrast)
{
    return (linear + double(brightnessOf(brightness)) - 0.5) * double(contrastOf(contrast)) + 0.5;
}

/// What the 256 values become at one brightness and contrast, for every gain. `formula` takes the
/// linear value and the gain.
template <typename Formula> LevelsByGain expectedLevels(const Formula &formula)
{
    static const auto linear = [] {
        std::array<double, 256> values{};
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = toLinear(double(i) / 255.0);
        return values;
    }();
    LevelsByGain expected;
    for (int gain = 0; gain < kSettings; ++gain)
        for (std::size_t i = 0; i < linear.size(); ++i)
            expected[std::size_t(gain)][i] = quint8(level(formula(linear[i], gainOf(gain))));
    return expected;
}

/// The number of bytes of the drawn grey ramp that are not as expected.
long wrongBytes(const QImage &drawn, const LevelsByGain &expected, const std::array<int, 3> &gains)
{
    long wrong = 0;
    for (int x = 0; x < 256; ++x) {
        const QRgb pixel = drawn.pixel(x, 0);
        const auto value = [&](std::size_t channel) {
            return expected[std::size_t(gains[channel])][std::size_t(x)];
        };
        wrong +=
            (qRed(pixel) != value(0)) + (qGreen(pixel) != value(1)) + (qBlue(pixel) != value(2));
    }
    return wrong;
}

/// Each channel goes through all gains, and no two channels ever have the same.
std::array<int, 3> gainsAt(int gain)
{
    return {gain, (gain + 13) % kSettings, (gain + 29) % kSettings};
}

/// Colours all over the cube, and every grey.
QImage colors()
{
    QImage picture = noise({128, 34}, QImage::Format_RGB32);
    for (int i = 0; i < 256; ++i)
        picture.setPixel(i % 128, i / 128, qRgb(i, i, i));
    return picture;
}

std::vector<double> luminances(const QImage &picture)
{
    std::vector<double> values;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            values.push_back(luminance(linearPixel(picture.pixel(x, y))));
    return values;
}

int worstGrey(const QImage &drawn, const std::vector<int> &expected)
{
    int worst = 0;
    for (int y = 0, i = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x, ++i) {
            const QRgb pixel = drawn.pixel(x, y);
            const int level = expected[std::size_t(i)];
            worst = std::max({worst, std::abs(qRed(pixel) - level), std::abs(qGreen(pixel) - level),
                              std::abs(qBlue(pixel) - level)});
        }
    }
    return worst;
}

} // namespace

TEST(Exactness, NoColourByteIsOffInAnySettingAndEitherOrder)
{
    Preview preview(greyRamp());
    long wrong = 0;
    for (int brightness = 0; brightness < kSettings; ++brightness) {
        for (int contrast = 0; contrast < kSettings; ++contrast) {
            preview.set(brightness, contrast);
            const LevelsByGain matrixLast = expectedLevels([&](double linear, double gain) {
                return controlled(linear, brightness, contrast) * gain;
            });
            const LevelsByGain matrixFirst = expectedLevels([&](double linear, double gain) {
                return controlled(linear * gain, brightness, contrast);
            });
            for (int gain = 0; gain < kSettings; ++gain) {
                const auto gains = gainsAt(gain);
                preview.setGains(gains);
                wrong += wrongBytes(preview.controlsThenMatrix(), matrixLast, gains);
                wrong += wrongBytes(preview.matrixThenControls(), matrixFirst, gains);
            }
        }
    }
    EXPECT_EQ(wrong, 0);
}

// The gains have no part in a monochrome picture.
TEST(Exactness, NoMonoByteIsMoreThanOneLevelOffInAnySettingAndEitherOrder)
{
    const QImage picture = colors();
    const std::vector<double> grey = luminances(picture);
    Preview preview(picture);
    std::vector<int> expected(grey.size());
    int worst = 0;
    for (int brightness = 0; brightness < kSettings; ++brightness) {
        for (int contrast = 0; contrast < kSettings; ++contrast) {
            preview.set(brightness, contrast);
            std::transform(grey.begin(), grey.end(), expected.begin(), [&](double linear) {
                return level(controlled(linear, brightness, contrast));
            });
            worst = std::max(worst, worstGrey(preview.controlsThenMono(), expected));
            worst = std::max(worst, worstGrey(preview.monoThenControls(), expected));
        }
    }
    EXPECT_LE(worst, 1);
}
