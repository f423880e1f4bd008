#include "colorsettings/rules/TicketColors.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Choice
{
    QString choice;
    std::optional<bool> mono;
    std::optional<bool> diffusion;
    std::optional<bool> natural;
};

class TicketColor : public testing::TestWithParam<Choice>
{};

TEST_P(TicketColor, SaysWhatHoldsOrNothing)
{
    const Choice &row = GetParam();
    EXPECT_EQ(monoOfChoice(row.choice), row.mono) << qPrintable(row.choice);
    EXPECT_EQ(diffusionOfChoice(row.choice), row.diffusion) << qPrintable(row.choice);
    EXPECT_EQ(naturalOfChoice(row.choice), row.natural) << qPrintable(row.choice);
}

INSTANTIATE_TEST_SUITE_P(
    All, TicketColor,
    testing::Values(Choice{u"Color"_s, false, {}, {}}, Choice{u"Mono"_s, true, {}, {}},
                    Choice{u"color"_s, true, {}, {}}, Choice{u""_s, true, {}, {}},
                    Choice{u"Dither"_s, true, false, {}},
                    // A halftone's name clears natural matching.
                    Choice{u"Diffusion"_s, true, true, false}, Choice{u"Natural"_s, true, {}, true},
                    Choice{u"Vivid"_s, true, {}, {}}, Choice{QString(), {}, {}, {}}));

TEST(TicketColors, HaveChoices)
{
    EXPECT_EQ(halftoneChoice(true), u"Diffusion"_s);
    EXPECT_EQ(halftoneChoice(false), u"Dither"_s);
    EXPECT_EQ(matchingChoice(true), u"Natural"_s);
    EXPECT_EQ(matchingChoice(false), u"Vivid"_s);
}

TEST(TicketColors, AreNaturalOnADiscOfThisNameAlone)
{
    EXPECT_TRUE(forcesNaturalMatching(u"120x120mm"_s));
    for (const QString &paper : {u"120x120mm.Wide"_s, u"VkDisc12cm"_s, u"A4"_s, QString()})
        EXPECT_FALSE(forcesNaturalMatching(paper)) << qPrintable(paper);
}

TEST(ReferencePicture, FollowsTheMatchingOfThePrinter)
{
    EXPECT_EQ(referencePicture(true, u"Vivid"_s), u"Vivid"_s);
    EXPECT_TRUE(referencePicture(true, QString()).isNull());
    EXPECT_EQ(referencePicture(false, u"Vivid"_s), u"None"_s);
    EXPECT_EQ(referencePicture(false, QString()), u"None"_s);
}

} // namespace
