#include "printsettings/rules/TwoSidedMedium.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(TwoSidedPrinting, IsWhatIsMarkedBesideTheDefault)
{
    const QString none = u"None"_s;
    EXPECT_FALSE(isTwoSided({true, true, none, none}));
    EXPECT_TRUE(isTwoSided({true, true, none, u"DuplexTumble"_s}));
    EXPECT_TRUE(isTwoSided({true, true, u"DuplexTumble"_s, none})) << "whatever they are called";
    EXPECT_TRUE(isTwoSided({true, true, none, QString()}));
    EXPECT_TRUE(isTwoSided({true, true, QString(), QString()}));
}

TEST(TwoSidedPrinting, NeedsTheOptionAndTheMedium)
{
    EXPECT_FALSE(isTwoSided({false, true, u"None"_s, u"DuplexTumble"_s}));
    EXPECT_FALSE(isTwoSided({true, false, QString(), QString()}));
}

TEST(TwoSidedPrinting, IsFollowedByPlainPaperAlone)
{
    EXPECT_TRUE(followsTwoSided(u"Plain"_s));
    EXPECT_TRUE(followsTwoSided(u"PlainDuplex"_s));
    for (const QString &medium : {u"HagakiAtena"_s, u"Glossy"_s, QString()})
        EXPECT_FALSE(followsTwoSided(medium)) << qPrintable(medium);
}

TEST(SavedMedium, OfAShownPanelSwapsPlainPaperAlone)
{
    EXPECT_EQ(savedByShownPanel(u"Plain"_s, true), (SavedValues{u"PlainDuplex"_s, {}}));
    EXPECT_EQ(savedByShownPanel(u"Plain"_s, false), (SavedValues{u"Plain"_s, {}}));
    for (const bool duplex : {false, true})
        EXPECT_EQ(savedByShownPanel(u"Glossy"_s, duplex), SavedValues());
}

TEST(SavedMedium, OfAPanelThatWasNeverShownIsTwoSidedPlainPaperAtNormalQuality)
{
    for (const QString &medium : {u"Plain"_s, u"Glossy"_s, u"PlainDuplex"_s, QString()})
        EXPECT_EQ(savedByUnshownPanel(medium, true),
                  (SavedValues{u"PlainDuplex"_s, u"PlainNormal"_s}))
            << qPrintable(medium);
    EXPECT_EQ(savedByUnshownPanel(u"PlainDuplex"_s, false), (SavedValues{u"Plain"_s, {}}));
    EXPECT_EQ(savedByUnshownPanel(u"Plain"_s, false), SavedValues());
    EXPECT_EQ(savedByUnshownPanel(u"Glossy"_s, false), SavedValues());
}

} // namespace
