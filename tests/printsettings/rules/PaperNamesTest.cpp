#include "printsettings/rules/PaperNames.h"

#include "tests/support/QStringPrinting.h"

#include <QtCore/QStringList>

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

struct Predicate
{
    const char *name;
    bool (*asked)(const QString &);
    QStringList accepted;
    QStringList rejected;
};

void PrintTo(const Predicate &predicate, std::ostream *out)
{
    *out << predicate.name;
}

const QStringList kTray2Bases = {u"A3"_s,    u"B4"_s,   u"Tabloid"_s, u"A4"_s,         u"Letter"_s,
                                 u"Legal"_s, u"VkA3"_s, u"VkA3_S"_s,  u"VkLedger_S"_s, u"VkB4_S"_s};

const QStringList kPortrait = {u"A3"_s,
                               u"A3.Fullbleed"_s,
                               u"B4"_s,
                               u"Tabloid"_s,
                               u"Tabloid.Fullbleed"_s,
                               u"Legal"_s,
                               u"Folio"_s,
                               u"A5"_s,
                               u"A6"_s,
                               u"A6.Fullbleed"_s,
                               u"4x6"_s,
                               u"4x6.Fullbleed"_s,
                               u"5x8"_s,
                               u"5x8.Fullbleed"_s,
                               u"3.5x5"_s,
                               u"3.5x5.Fullbleed"_s,
                               u"5x7"_s,
                               u"5x7.Fullbleed"_s,
                               u"Postcard"_s,
                               u"Postcard.Fullbleed"_s,
                               u"DoublePostcardRotated"_s,
                               u"EnvC5"_s,
                               u"EnvDL"_s,
                               u"Env10"_s,
                               u"EnvMonarch"_s,
                               u"EnvC6"_s,
                               u"EnvYou4"_s};

// What the other lists name besides, variants included.
const QStringList kOtherPapers = {u"Executive"_s,     u"B5"_s,
                                  u"VkHagaki_B"_s,    u"EnvChou3"_s,
                                  u"EnvChou4"_s,      u"A3.LongGrain"_s,
                                  u"A3.ShortGrain"_s, u"Tabloid.ShortGrain"_s,
                                  u"B4.ShortGrain"_s, u"EnvDL.Fullbleed"_s,
                                  u"Custom.100x100"_s};

const QStringList kBusiness = {u"Velkaro PX-T310W"_s, u"Velkaro PX-T310N"_s, u"Velkaro PX-T320N"_s,
                               u"Velkaro MX-T330W"_s, u"Velkaro MX-T340W"_s, u"Velkaro MX-T350W"_s,
                               u"Velkaro MX-T360W"_s, u"Velkaro MX-T365W"_s, u"Velkaro MX-T370N"_s};

const Predicate kPredicates[] = {
    {"isKindOfPlainPaper",
     isKindOfPlainPaper,
     {u"Plain"_s, u"PlainDuplex"_s, u"HagakiAtena"_s},
     {u"plain"_s, u"Plain.Fullbleed"_s, u"PlainDuple"_s, u"HagakiUra"_s, u"Plain "_s, u"XPlain"_s}},
    {"isKindOfPostcardPaperSize",
     isKindOfPostcardPaperSize,
     {u"Postcard"_s, u"Postcard.Fullbleed"_s, u"VkHagaki_B"_s, u"DoublePostcardRotated"_s},
     {u"postcard"_s, u"Postcard.LongGrain"_s, u"VkHagaki"_s, u"DoublePostcardRotated.Fullbleed"_s,
      u"DoublePostcard"_s, u"APostcard"_s}},
    {"allowTray2PaperSize, whole names",
     allowTray2PaperSize,
     kTray2Bases,
     {u"B5"_s, u"a4"_s, u"A5"_s, u"VkA4"_s, u"VkTabloid"_s, u"A40"_s, u"Executive"_s}},
    {"allowTray2PaperSize, the listed variants match through their base size",
     allowTray2PaperSize,
     {u"A3.LongGrain"_s, u"A3.ShortGrain"_s, u"Tabloid.ShortGrain"_s, u"B4.ShortGrain"_s,
      u"A4.Fullbleed"_s, u"VkA3_S.Anything"_s},
     {u"B5.Fullbleed"_s, u".ShortGrain"_s}},
    {"isKindOfLandscapePaper",
     isKindOfLandscapePaper,
     {u"A4"_s, u"Letter"_s, u"Executive"_s, u"B5"_s, u"A4.Fullbleed"_s, u"Letter.LongGrain"_s,
      u"Executive.ShortGrain"_s, u"B5.Fullbleed"_s},
     {u"A3"_s, u"A3.Fullbleed"_s, u"letter"_s, u"VkA4"_s, u"A4.Fullbleed.Fullbleed"_s, u"Legal"_s}},
    {"isKindOfPortraitPaper",
     isKindOfPortraitPaper,
     kPortrait,
     {u"A3.ShortGrain"_s, u"A3.LongGrain"_s, u"B4.Fullbleed"_s, u"Legal.Fullbleed"_s,
      u"A5.Fullbleed"_s, u"Folio.Fullbleed"_s, u"A4"_s, u"Letter"_s, u"EnvChou3"_s, u"VkA3"_s,
      u"a3"_s, u"3"_s, u"EnvC5.Fullbleed"_s}},
    {"isKindOfManualFeedPaper",
     isKindOfManualFeedPaper,
     {},
     kPortrait + kTray2Bases + kOtherPapers},
    {"isKindOfJPEnvelope",
     isKindOfJPEnvelope,
     {u"EnvChou3"_s, u"EnvChou4"_s, u"EnvChou3.Fullbleed"_s, u"EnvChou4.LongGrain"_s},
     {u"EnvYou4"_s, u"EnvDL"_s, u"envChou3"_s, u"EnvChou"_s, u"EnvChou3.Fullbleed.X"_s,
      u"XEnvChou3"_s}},
    {"isBusinessModel answers the other way round",
     isBusinessModel,
     {u"Velkaro PX-T900"_s, u"velkaro MX-T330W"_s, u"Velkaro MX-T330"_s, u"MX-T330W"_s,
      u"Velkaro MX-T330W "_s, u""_s},
     kBusiness},
    {"isDefaultMediaTypeForVividColorMode",
     isDefaultMediaTypeForVividColorMode,
     {u"Plain"_s, u"HagakiAtena"_s},
     {u"PlainDuplex"_s, u"plain"_s, u"Glossy"_s, u"HagakiUra"_s, u"Plain.Fullbleed"_s}},
};

class PaperNamePredicate : public testing::TestWithParam<Predicate>
{};

TEST_P(PaperNamePredicate, AcceptsExactlyItsNames)
{
    for (const QString &name : GetParam().accepted)
        EXPECT_TRUE(GetParam().asked(name)) << qPrintable(name);
    for (const QString &name : GetParam().rejected)
        EXPECT_FALSE(GetParam().asked(name)) << qPrintable(name);
}

TEST_P(PaperNamePredicate, AnswersNoToAMissingName)
{
    EXPECT_FALSE(GetParam().asked(QString()));
}

INSTANTIATE_TEST_SUITE_P(All, PaperNamePredicate, testing::ValuesIn(kPredicates));

TEST(PaperNames, AnEmptyNameIsNoPaperAndNoMedium)
{
    EXPECT_FALSE(isKindOfPlainPaper(u""_s));
    EXPECT_FALSE(isKindOfPostcardPaperSize(u""_s));
    EXPECT_FALSE(allowTray2PaperSize(u""_s));
    EXPECT_FALSE(isKindOfLandscapePaper(u""_s));
    EXPECT_FALSE(isKindOfPortraitPaper(u""_s));
    EXPECT_FALSE(isKindOfManualFeedPaper(u""_s));
    EXPECT_FALSE(isKindOfJPEnvelope(u""_s));
    EXPECT_FALSE(isDefaultMediaTypeForVividColorMode(u""_s));
}

// "3.5x5" loses its own point; only with a variant is it compared as it is meant.
TEST(PaperNames, StrippingTheVariantCutsAtTheLastPointAlsoWhereItBelongsToTheSize)
{
    EXPECT_FALSE(isKindOfLandscapePaper(u"3.5x5"_s));
    EXPECT_TRUE(isKindOfLandscapePaper(u"A4.5x5"_s));
    EXPECT_TRUE(isKindOfPortraitPaper(u"3.5x5"_s));
}

struct Borderless
{
    QString paperName;
    QString baseSize;
    bool answer;
};

class BorderlessPaperName : public testing::TestWithParam<Borderless>
{};

TEST_P(BorderlessPaperName, IsFoundByItsPrefix)
{
    const Borderless &row = GetParam();
    EXPECT_EQ(isBorderelessForPaperSize(row.paperName, row.baseSize), row.answer)
        << qPrintable(row.paperName);
}

INSTANTIATE_TEST_SUITE_P(
    All, BorderlessPaperName,
    testing::Values(
        Borderless{u"A3.Fullbleed"_s, u"A3"_s, true},
        Borderless{u"A3.Fullbleed.Extra"_s, u"A3"_s, true},
        Borderless{u"VkHagaki_B"_s, u"Hagaki"_s, true}, Borderless{u"VkA3_B2"_s, u"A3"_s, true},
        Borderless{u"Hagaki"_s, u"Hagaki"_s, false}, Borderless{u"A3"_s, u"A3"_s, false},
        Borderless{u"A3.full"_s, u"A3"_s, false}, Borderless{u"a3.Fullbleed"_s, u"A3"_s, false},
        Borderless{u"A3.fullbleed"_s, u"A3"_s, false}, Borderless{u"VkA3"_s, u"A3"_s, false},
        Borderless{u"VkA3_S"_s, u"A3"_s, false}, Borderless{u"A4.Fullbleed"_s, u"A3"_s, false},
        Borderless{u"XA3.Fullbleed"_s, u"A3"_s, false},
        Borderless{u"A3.Fullbleed"_s, QString(), false}, Borderless{QString(), u"A3"_s, false},
        Borderless{QString(), QString(), false}));

} // namespace
