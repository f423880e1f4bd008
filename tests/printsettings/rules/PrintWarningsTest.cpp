#include "printsettings/rules/PrintWarnings.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Warnings, OfBestQualityAreForAllButPlainPaper)
{
    for (const QString &medium : {u"Glossy"_s, u"Inkjet"_s, u"Transparencies"_s, QString()})
        EXPECT_TRUE(warnsOfBestQuality(u"Best"_s, medium)) << qPrintable(medium);
    for (const QString &medium : {u"Plain"_s, u"PlainDuplex"_s, u"HagakiAtena"_s})
        EXPECT_FALSE(warnsOfBestQuality(u"Best"_s, medium)) << qPrintable(medium);
    EXPECT_FALSE(warnsOfBestQuality(u"Photo"_s, u"Glossy"_s));
}

TEST(Warnings, OfBorderlessPaperAreForTransparenciesAndTheFastestQuality)
{
    EXPECT_TRUE(warnsOfBorderless(true, u"Normal"_s, u"Transparencies"_s));
    EXPECT_TRUE(warnsOfBorderless(true, u"PlainFast"_s, u"Plain"_s));
    EXPECT_FALSE(warnsOfBorderless(true, u"PlainNormal"_s, u"Plain"_s));
    EXPECT_FALSE(warnsOfBorderless(false, u"PlainFast"_s, u"Transparencies"_s));
}

TEST(Warnings, AskForADiscBeforeADiscIsPrinted)
{
    EXPECT_TRUE(asksForDisc(true, u"PrintableDisc"_s));
    EXPECT_TRUE(asksForDisc(true, u"GlossyPrintableDisc"_s));
    EXPECT_FALSE(asksForDisc(true, u"Plain"_s));
    EXPECT_FALSE(asksForDisc(true, QString()));
    EXPECT_FALSE(asksForDisc(false, u"PrintableDisc"_s));
}

} // namespace
