#include "printsettings/rules/PrintDirection.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(PrintDirection, OfAMediumIsOnForPlainPaperAlone)
{
    for (const QString &medium : {u"Plain"_s, u"PlainDuplex"_s, u"HagakiAtena"_s})
        EXPECT_EQ(directionOfMedium(medium), u"ON"_s) << qPrintable(medium);
    for (const QString &medium : {u"Glossy"_s, u"Transparencies"_s, u"PrintableDisc"_s, QString()})
        EXPECT_EQ(directionOfMedium(medium), u"OFF"_s) << qPrintable(medium);
}

TEST(PrintDirection, AfterAThicknessIsOffOnACustomEnvelopeAndOnForPlainPaper)
{
    EXPECT_EQ(directionAfterThickness(true, u"Plain"_s), u"OFF"_s);
    EXPECT_EQ(directionAfterThickness(true, u"Glossy"_s), u"OFF"_s);
    EXPECT_EQ(directionAfterThickness(false, u"HagakiAtena"_s), u"ON"_s);
    EXPECT_TRUE(directionAfterThickness(false, u"Glossy"_s).isNull());
    EXPECT_TRUE(directionAfterThickness(false, QString()).isNull());
}

} // namespace
