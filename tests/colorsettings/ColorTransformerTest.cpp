#include "colorsettings/ColorTransformer.h"
#include "platform/toolkit/ControlColor.h"
#include "tests/colorsettings/ColorPanelFixture.h"

TEST(ColorTransformer, AnswersTheOrdinaryColourForYesAndTheDimmedOneForNoAndForNone)
{
    const ColorTransformer transformer;
    const auto colorOf = [&](const QVariant &value) {
        return transformer.transformedValue(value).value<ControlColor>();
    };
    EXPECT_EQ(colorOf(true), controlTextColor());
    EXPECT_EQ(colorOf(false), disabledControlTextColor());
    EXPECT_EQ(colorOf(QVariant()), disabledControlTextColor());
    EXPECT_EQ(colorOf(0), disabledControlTextColor());
}

TEST(ColorTransformer, TurnsNothingBack)
{
    const ColorTransformer transformer;
    EXPECT_EQ(transformer.transformedValueClass(), QMetaType::fromType<ControlColor>());
    EXPECT_FALSE(transformer.allowsReverseTransformation());
    EXPECT_FALSE(
        transformer.reverseTransformedValue(QVariant::fromValue(controlTextColor())).isValid());
}
