#include "tests/imaging/Chain.h"
#include "tests/imaging/TestPictures.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

std::unique_ptr<CIFilter> controls()
{
    return CIFilter::filterWithName(QStringLiteral("CIColorControls"));
}

std::unique_ptr<CIFilter> matrix()
{
    return CIFilter::filterWithName(QStringLiteral("CIColorMatrix"));
}

Image somePicture()
{
    return CIImage::imageWithPicture(greyRamp());
}

} // namespace

TEST(FilterNames, TheThreeFiltersExistAndNoOthers)
{
    for (const QString &name : {QStringLiteral("CIColorControls"), QStringLiteral("CIColorMatrix"),
                                QStringLiteral("CIColorMonochrome")}) {
        const auto filter = CIFilter::filterWithName(name);
        ASSERT_TRUE(filter) << qPrintable(name);
        EXPECT_EQ(filter->name(), name);
    }
    for (const QString &name : {QString(), QStringLiteral(""), QStringLiteral("cicolorcontrols"),
                                QStringLiteral("CIColorMatrix "), QStringLiteral("CIGammaAdjust")})
        EXPECT_FALSE(CIFilter::filterWithName(name)) << qPrintable(name);
}

TEST(FilterDefaults, AreThoseOfTheDocumentation)
{
    const auto colors = controls();
    EXPECT_EQ(colors->valueForKey(kCIInputSaturationKey), QVariant(1.0));
    EXPECT_EQ(colors->valueForKey(kCIInputBrightnessKey), QVariant(0.0));
    EXPECT_EQ(colors->valueForKey(kCIInputContrastKey), QVariant(1.0));

    const auto rows = matrix();
    EXPECT_EQ(rows->vectorForKey(QStringLiteral("inputRVector")), (CIVector{1, 0, 0, 0}));
    EXPECT_EQ(rows->vectorForKey(QStringLiteral("inputGVector")), (CIVector{0, 1, 0, 0}));
    EXPECT_EQ(rows->vectorForKey(QStringLiteral("inputBVector")), (CIVector{0, 0, 1, 0}));
    EXPECT_EQ(rows->vectorForKey(QStringLiteral("inputAVector")), (CIVector{0, 0, 0, 1}));
    EXPECT_EQ(rows->vectorForKey(QStringLiteral("inputBiasVector")), (CIVector{0, 0, 0, 0}));

    const auto mono = CIFilter::filterWithName(QStringLiteral("CIColorMonochrome"));
    EXPECT_EQ(mono->valueForKey(kCIInputColorKey).value<CIColor>(), (CIColor{0.6, 0.45, 0.3, 1}));
    EXPECT_EQ(mono->valueForKey(kCIInputIntensityKey), QVariant(1.0));
}

TEST(FilterKeys, HaveTheirPublicNames)
{
    EXPECT_EQ(kCIInputImageKey, QStringLiteral("inputImage"));
    EXPECT_EQ(kCIOutputImageKey, QStringLiteral("outputImage"));
    EXPECT_EQ(kCIInputBrightnessKey, QStringLiteral("inputBrightness"));
    EXPECT_EQ(kCIInputContrastKey, QStringLiteral("inputContrast"));
    EXPECT_EQ(kCIInputSaturationKey, QStringLiteral("inputSaturation"));
    EXPECT_EQ(kCIInputColorKey, QStringLiteral("inputColor"));
    EXPECT_EQ(kCIInputIntensityKey, QStringLiteral("inputIntensity"));
}

TEST(FilterValues, ANumberKeepsItsKind)
{
    const auto filter = controls();

    filter->setValue(0.1F, kCIInputBrightnessKey);
    EXPECT_EQ(filter->valueForKey(kCIInputBrightnessKey).typeId(), QMetaType::Float);
    EXPECT_EQ(filter->numberForKey(kCIInputBrightnessKey), double(0.1F));

    filter->setValue(0.1, kCIInputBrightnessKey);
    EXPECT_EQ(filter->valueForKey(kCIInputBrightnessKey).typeId(), QMetaType::Double);
    EXPECT_EQ(filter->numberForKey(kCIInputBrightnessKey), 0.1);

    filter->setValue(qlonglong(1), kCIInputBrightnessKey);
    EXPECT_EQ(filter->valueForKey(kCIInputBrightnessKey).typeId(), QMetaType::LongLong);
}

TEST(FilterValues, UnknownKeysAndWrongKindsChangeNothing)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const auto filter = controls();
    filter->setValue(0.25, kCIInputBrightnessKey);

    filter->setValue(QStringLiteral("0.5"), kCIInputBrightnessKey);
    filter->setValue(QVariant(), kCIInputBrightnessKey);
    filter->setValue(true, kCIInputBrightnessKey);
    filter->setValue(nan, kCIInputBrightnessKey);
    filter->setValue(-infinity, kCIInputBrightnessKey);
    filter->setValue(CIVector{1, 2, 3, 4}, kCIInputBrightnessKey);
    filter->setValue(somePicture(), kCIInputBrightnessKey);
    EXPECT_EQ(filter->valueForKey(kCIInputBrightnessKey), QVariant(0.25));

    filter->setValue(0.5, QStringLiteral("inputGamma"));
    filter->setValue(0.5, QString());
    filter->setValue(0.5, kCIInputIntensityKey); // another filter's
    EXPECT_FALSE(filter->valueForKey(QStringLiteral("inputGamma")).isValid());
    EXPECT_FALSE(filter->valueForKey(kCIInputIntensityKey).isValid());

    const auto rows = matrix();
    rows->setValue(2.0, kCIInputRVectorKey);
    rows->setValue(CIColor{2, 2, 2, 2}, kCIInputRVectorKey);
    rows->setValue(CIVector{1, nan, 0, 0}, kCIInputRVectorKey);
    EXPECT_EQ(rows->vectorForKey(kCIInputRVectorKey), (CIVector{1, 0, 0, 0}));

    const auto mono = CIFilter::filterWithName(QStringLiteral("CIColorMonochrome"));
    mono->setValue(CIVector{1, 1, 1, 1}, kCIInputColorKey);
    mono->setValue(CIColor{infinity, 1, 1, 1}, kCIInputColorKey);
    EXPECT_EQ(mono->valueForKey(kCIInputColorKey).value<CIColor>(), (CIColor{0.6, 0.45, 0.3, 1}));
}

TEST(FilterValues, ReadingAnotherKindGivesZero)
{
    EXPECT_EQ(controls()->vectorForKey(kCIInputContrastKey), CIVector());
    EXPECT_EQ(matrix()->numberForKey(kCIInputRVectorKey), 0.0);
    EXPECT_EQ(controls()->numberForKey(QStringLiteral("inputGamma")), 0.0);
}

TEST(FilterImage, IsTakenOnlyAsAnImageAndCanBeTakenAway)
{
    const auto filter = controls();
    const Image image = somePicture();
    filter->setValue(image, kCIInputImageKey);
    filter->setValue(3.0, kCIInputImageKey);
    filter->setValue(QVariant(), kCIInputImageKey);
    EXPECT_EQ(filter->inputImage(), image);
    EXPECT_EQ(filter->valueForKey(kCIInputImageKey).value<Image>(), image);

    filter->setValue(Image(), kCIInputImageKey);
    EXPECT_EQ(filter->inputImage(), nullptr);
}

TEST(FilterOutput, IsNullWithoutAnInputImage)
{
    EXPECT_EQ(controls()->outputImage(), nullptr);
    const QVariant output = controls()->valueForKey(kCIOutputImageKey);
    EXPECT_EQ(output.metaType(), QMetaType::fromType<Image>());
    EXPECT_EQ(output.value<Image>(), nullptr);
}

TEST(FilterOutput, IsTheSameUnderItsKey)
{
    const auto filter = controls();
    filter->setValue(somePicture(), kCIInputImageKey);
    filter->setValue(0.1, kCIInputBrightnessKey);
    EXPECT_EQ(drawn(filter->valueForKey(kCIOutputImageKey).value<Image>()),
              drawn(filter->outputImage()));
}

TEST(FilterOutput, IsNotReachedByLaterChangesOfTheFilter)
{
    const auto filter = controls();
    filter->setValue(somePicture(), kCIInputImageKey);
    filter->setValue(0.1, kCIInputBrightnessKey);
    const Image output = filter->outputImage();
    const QImage before = drawn(output);

    filter->setValue(-0.1, kCIInputBrightnessKey);
    filter->setValue(Image(), kCIInputImageKey);

    EXPECT_EQ(drawn(output), before);
}

TEST(FilterSetDefaults, PutsTheInputsBackAndKeepsTheImage)
{
    const auto filter = controls();
    const Image image = somePicture();
    filter->setValue(image, kCIInputImageKey);
    filter->setValue(0.1F, kCIInputBrightnessKey);
    filter->setValue(3, kCIInputContrastKey);

    filter->setDefaults();

    EXPECT_EQ(filter->valueForKey(kCIInputBrightnessKey), QVariant(0.0));
    EXPECT_EQ(filter->valueForKey(kCIInputContrastKey), QVariant(1.0));
    EXPECT_EQ(filter->inputImage(), image);
}
