#include "printsettings/rules/PaperChange.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(MediumForDisc, IsTheDiscOnADiscAndPlainPaperAfterOne)
{
    EXPECT_TRUE(mediumForDisc(false, false).isNull());
    EXPECT_EQ(mediumForDisc(false, true), u"PrintableDisc"_s);
    EXPECT_EQ(mediumForDisc(true, false), u"Plain"_s);
    EXPECT_EQ(mediumForDisc(true, true), u"Plain"_s);
}

TEST(PaperThickness, IsThatOfAnEnvelopeOrRegular)
{
    EXPECT_EQ(paperThickness(true), u"Env"_s);
    EXPECT_EQ(paperThickness(false), u"Regular"_s);
}

struct Envelope
{
    QString paperName;
    QString thickness;
    bool counts;
    bool directionLeftAlone;
    std::optional<bool> custom;
};

class EnvelopeOf : public testing::TestWithParam<Envelope>
{};

TEST_P(EnvelopeOf, NameAndThickness)
{
    const Envelope &row = GetParam();
    EXPECT_EQ(countsAsEnvelope(row.paperName, row.thickness), row.counts);
    EXPECT_EQ(leavesDirectionAlone(row.paperName, row.counts), row.directionLeftAlone);
    EXPECT_EQ(customEnvelope(row.paperName, row.thickness), row.custom);
}

INSTANTIATE_TEST_SUITE_P(All, EnvelopeOf,
                         testing::Values(Envelope{u"EnvDL"_s, u"Regular"_s, true, true, {}},
                                         Envelope{u"EnvChou3"_s, u"Env"_s, true, true, {}},
                                         Envelope{u"A4"_s, u"Env"_s, false, false, {}},
                                         Envelope{u"Postcard"_s, u"Regular"_s, false, true, {}},
                                         Envelope{u"VkHagaki_B"_s, u"Env"_s, false, true, {}},
                                         Envelope{u"Custom.300x400"_s, u"Env"_s, true, true, true},
                                         Envelope{u"Custom.300x400"_s, u"Regular"_s, false, false,
                                                  false},
                                         Envelope{u"Custom"_s, QString(), false, false, false},
                                         Envelope{QString(), u"Env"_s, false, false, {}}));

TEST(DefaultsAfterPaper, AreAppliedOnADiscAndAfterAWarning)
{
    EXPECT_TRUE(appliesDefaultsAfterPaper(u"PrintableDisc"_s, false));
    EXPECT_TRUE(appliesDefaultsAfterPaper(u"Plain"_s, true));
    EXPECT_FALSE(appliesDefaultsAfterPaper(u"Plain"_s, false));
    EXPECT_FALSE(appliesDefaultsAfterPaper(u"GlossyPrintableDisc"_s, false));
}

} // namespace
