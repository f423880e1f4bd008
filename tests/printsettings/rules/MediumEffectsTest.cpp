#include "printsettings/rules/MediumEffects.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Effects
{
    QString mediaType;
    // slow drying, its default, both directions, natural at first, natural, transparencies, tray 2
    MediumEffects effects;
};

class MediumHas : public testing::TestWithParam<Effects>
{};

TEST_P(MediumHas, ItsEffects)
{
    EXPECT_EQ(mediumEffects(GetParam().mediaType), GetParam().effects)
        << qPrintable(GetParam().mediaType);
}

constexpr MediumEffects kPhoto{false, false, false, true, true, false, false};

INSTANTIATE_TEST_SUITE_P(
    All, MediumHas,
    testing::Values(Effects{u"Plain"_s, {true, false, true, false, false, false, true}},
                    Effects{u"PlainDuplex"_s, {false, false, true, true, true, false, false}},
                    Effects{u"HagakiAtena"_s, {true, true, true, true, false, false, false}},
                    Effects{u"Transparencies"_s, {false, false, false, true, true, true, false}},
                    Effects{u"Inkjet"_s, kPhoto}, Effects{u"VelkaroQM41Matte"_s, kPhoto},
                    Effects{u"VelkaroGlossy"_s, kPhoto}, Effects{u"VelkaroGlossyR"_s, kPhoto},
                    Effects{u"Glossy"_s, kPhoto}, Effects{u"HagakiUra"_s, kPhoto},
                    Effects{u"PrintableDisc"_s, kPhoto}, Effects{u"GlossyPrintableDisc"_s, kPhoto},
                    Effects{u"plain"_s, kPhoto}, Effects{QString(), kPhoto}));

TEST(SlowDrying, IsForPlainPaperAndTheAddressSideOfPostcards)
{
    EXPECT_EQ(slowDrying(mediumEffects(u"Plain"_s), true), (SlowDrying{true, false}));
    EXPECT_EQ(slowDrying(mediumEffects(u"HagakiAtena"_s), true), (SlowDrying{true, true}));
    for (const QString &medium : {u"PlainDuplex"_s, u"Glossy"_s, u"Transparencies"_s, QString()})
        EXPECT_EQ(slowDrying(mediumEffects(medium), true), (SlowDrying{false, false}))
            << qPrintable(medium);
}

TEST(SlowDrying, KeepsItsTickWhereTheApplicationMatchesColours)
{
    for (const QString &medium : {u"Plain"_s, u"HagakiAtena"_s, u"Glossy"_s, QString()})
        EXPECT_EQ(slowDrying(mediumEffects(medium), false), (SlowDrying{false, std::nullopt}))
            << qPrintable(medium);
}

} // namespace
