#include "printsettings/rules/MediaQuality.h"

#include "tests/printsettings/rules/MediaTable.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class MediaQuality : public testing::TestWithParam<MediumRow>
{
protected:
    void expectAllowed(bool disc, bool duplex, const QString &qualities, const QString &replacement)
    {
        const AllowedQualities allowed = allowedQualities(GetParam().medium, disc, duplex);
        EXPECT_EQ(allowed.qualities.join(u' '), qualities);
        EXPECT_EQ(allowed.replacement, replacement);
        EXPECT_EQ(allowed.replacement.isNull(), replacement.isNull());
    }
};

TEST_P(MediaQuality, IsAllowedByDiscAndTwoSidedPrinting)
{
    const MediumRow &row = GetParam();
    expectAllowed(false, false, row.oneSided, row.replacement);
    expectAllowed(false, true, row.twoSided, row.replacement);
    expectAllowed(true, false, row.onDisc, row.replacementOnDisc);
    expectAllowed(true, true, row.onDisc, row.replacementOnDisc);
}

TEST_P(MediaQuality, StartsWithTheDefaultOfMediumAndPaper)
{
    const MediumRow &row = GetParam();
    for (const QString &paper : {u"A4"_s, u"A3"_s, u"A4.Fullbleed"_s, u"Letter.Fullbleed"_s,
                                 u"120x120mm"_s, u"VkA3"_s, QString()})
        EXPECT_EQ(defaultQuality(row.medium, paper), row.defaultQuality) << qPrintable(paper);
    for (const QString &paper : {u"A3.Fullbleed"_s, u"VkA3_B"_s})
        EXPECT_EQ(defaultQuality(row.medium, paper), row.defaultOnBorderlessA3)
            << qPrintable(paper);
}

INSTANTIATE_TEST_SUITE_P(EveryMedium, MediaQuality, testing::ValuesIn(mediaTable()));

// The one quality that a glossy disc allows is not its default: the driver counts on it.
TEST(MediaQualityOddity, TheDefaultOfAGlossyDiscIsNoneOfItsQualities)
{
    const QString medium = u"GlossyPrintableDisc"_s;
    EXPECT_FALSE(
        allowedQualities(medium, true, false).qualities.contains(defaultQuality(medium, u"A4"_s)));
}

TEST(UnavailableQualities, WithoutBordersAreTheFastestAndOnA3AllButTheBestOfPlainPaper)
{
    const QStringList onA3 = {u"PlainFast"_s, u"PlainNormal"_s, u"High"_s};
    EXPECT_EQ(unavailableWithoutBorders(u"A3.Fullbleed"_s), onA3);
    EXPECT_EQ(unavailableWithoutBorders(u"VkA3_B"_s), onA3);
    for (const QString &paper : {u"A4.Fullbleed"_s, u"Letter.Fullbleed"_s, u"A3"_s, QString()})
        EXPECT_EQ(unavailableWithoutBorders(paper), QStringList({u"PlainFast"_s}))
            << qPrintable(paper);
}

TEST(MediaWithQualitiesOfTheirOwn, AreAllThatTheTablesName)
{
    const QStringList media = {
        u"Plain"_s,          u"PlainDuplex"_s,      u"HagakiAtena"_s,
        u"Inkjet"_s,         u"VelkaroQM41Matte"_s, u"VelkaroGlossy"_s,
        u"VelkaroGlossyR"_s, u"Glossy"_s,           u"HagakiUra"_s,
        u"Transparencies"_s, u"PrintableDisc"_s,    u"GlossyPrintableDisc"_s};
    EXPECT_EQ(knownMedia(), media);
}

TEST(QualitiesLeftFromADisc, AreThoseOfDiscsBesideOtherMedia)
{
    EXPECT_TRUE(isLeftFromDisc(u"DiscNormal"_s, u"Glossy"_s, false));
    EXPECT_TRUE(isLeftFromDisc(u"DiscSlow"_s, u"GlossyPrintableDisc"_s, false));
    EXPECT_TRUE(isLeftFromDisc(u"DiscSlow"_s, QString(), false));
    EXPECT_FALSE(isLeftFromDisc(u"DiscSlow"_s, u"PrintableDisc"_s, false));
    EXPECT_FALSE(isLeftFromDisc(u"DiscSlow"_s, u"Glossy"_s, true));
    EXPECT_FALSE(isLeftFromDisc(u"Photo"_s, u"Glossy"_s, false));
    EXPECT_FALSE(isLeftFromDisc(QString(), u"Glossy"_s, false));
}

TEST(QualityOfBorderlessLetter, IsResetOnOneModelAlone)
{
    EXPECT_TRUE(resetsQuality(u"Letter.Fullbleed"_s, 12));
    EXPECT_FALSE(resetsQuality(u"Letter.Fullbleed"_s, 11));
    EXPECT_FALSE(resetsQuality(u"Letter.Fullbleed"_s, 13));
    EXPECT_FALSE(resetsQuality(u"Letter"_s, 12));
    EXPECT_FALSE(resetsQuality(u"A4.Fullbleed"_s, 12));
}

} // namespace
