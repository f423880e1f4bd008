#include "printsettings/PaperKind.h"

#include "printsettings/CustomSizes.h"
#include "printsettings/DuplexPapers.h"
#include "tests/support/PanelSession.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Kinds
{
    QString paperName;
    QString kinds; ///< of "disc", "borderless", "envelope", "custom"
};

QString kindsOf(const QString &paperName)
{
    QStringList kinds;
    if (isDiscPaper(paperName))
        kinds << u"disc"_s;
    if (isBorderlessPaper(paperName))
        kinds << u"borderless"_s;
    if (isEnvelopePaper(paperName))
        kinds << u"envelope"_s;
    if (isCustomPaper(paperName))
        kinds << u"custom"_s;
    return kinds.join(u' ');
}

class PaperKind : public testing::TestWithParam<Kinds>
{};

TEST_P(PaperKind, IsTakenFromTheName)
{
    EXPECT_EQ(kindsOf(GetParam().paperName), GetParam().kinds) << qPrintable(GetParam().paperName);
}

INSTANTIATE_TEST_SUITE_P(
    All, PaperKind,
    testing::Values(
        Kinds{u"A4"_s, u""_s}, Kinds{u"120x120mm"_s, u"disc"_s},
        Kinds{u"120x120mm.Wide"_s, u"disc"_s}, Kinds{u"X120x120mm"_s, u""_s},
        Kinds{u"VkDisc12cm"_s, u"disc"_s}, Kinds{u"12cm"_s, u"disc"_s}, Kinds{u"12CM"_s, u""_s},
        Kinds{u"120X120mm"_s, u""_s}, Kinds{u"A4.Fullbleed"_s, u"borderless"_s},
        Kinds{u"Fullbleed.A4"_s, u"borderless"_s}, Kinds{u"A4.fullbleed"_s, u""_s},
        Kinds{u"VkHagaki_B"_s, u"borderless"_s}, Kinds{u"A_B4"_s, u"borderless"_s},
        Kinds{u"VkA3_b"_s, u""_s}, Kinds{u"VkA3_S"_s, u""_s}, Kinds{u"EnvDL"_s, u"envelope"_s},
        Kinds{u"Env"_s, u"envelope"_s}, Kinds{u"envDL"_s, u""_s}, Kinds{u"XEnv"_s, u""_s},
        Kinds{u"EnvChou3.Fullbleed"_s, u"borderless envelope"_s}, Kinds{u"Custom"_s, u"custom"_s},
        Kinds{u"Custom.100x200"_s, u"custom"_s}, Kinds{u"custom"_s, u""_s},
        Kinds{u"MyCustom"_s, u""_s}, Kinds{u"Custom_B12cm"_s, u"disc borderless custom"_s},
        Kinds{u""_s, u""_s}, Kinds{QString(), u""_s}));

TEST(DuplexPapers, AreExactlyTheListedOnes)
{
    const QStringList accepted = {u"A3"_s,
                                  u"Tabloid"_s,
                                  u"B4"_s,
                                  u"A3.LongGrain"_s,
                                  u"A3.ShortGrain"_s,
                                  u"Tabloid.ShortGrain"_s,
                                  u"B4.ShortGrain"_s,
                                  u"Letter"_s,
                                  u"Legal"_s,
                                  u"Executive"_s,
                                  u"B5"_s,
                                  u"A4"_s,
                                  u"A5"_s,
                                  u"A6"_s,
                                  u"Postcard"_s,
                                  u"VkA3"_s,
                                  u"VkA3_S"_s,
                                  u"VkLedger_S"_s,
                                  u"VkB4_S"_s};
    for (const QString &name : accepted)
        EXPECT_TRUE(isDuplexPaper(name)) << qPrintable(name);
    for (const QString &name : {u"a4"_s, u"A4.Fullbleed"_s, u"B4.LongGrain"_s, u"Folio"_s,
                                u"VkHagaki_B"_s, u"EnvDL"_s, u"VkA3_s"_s, u""_s, QString()})
        EXPECT_FALSE(isDuplexPaper(name)) << qPrintable(name);
}

// The limits of this printer are 182 to 936 points by 254 to 1368 points.
TEST(CustomSizes, IncludeTheirLimits)
{
    const PPDHandle ppd = openSample(u"velkaro-px-t900"_s);
    EXPECT_TRUE(isWithinCustomSizes(*ppd, {182, 254}));
    EXPECT_TRUE(isWithinCustomSizes(*ppd, {936, 1368}));
    EXPECT_FALSE(isWithinCustomSizes(*ppd, {181, 254}));
    EXPECT_FALSE(isWithinCustomSizes(*ppd, {182, 253}));
    EXPECT_FALSE(isWithinCustomSizes(*ppd, {937, 1368}));
    EXPECT_FALSE(isWithinCustomSizes(*ppd, {936, 1369}));
}

TEST(CustomSizes, HoldNothingWhereThePrinterTakesNone)
{
    const PPDHandle ppd = openSample(u"velkaro-mx-j710dw"_s);
    EXPECT_FALSE(isWithinCustomSizes(*ppd, {595, 842}));
    EXPECT_TRUE(isWithinCustomSizes(*ppd, {0, 0}));
}

TEST(CustomSizes, AreLandscapeBetweenFiveInchesAndLetterByLetterAndA4)
{
    for (const QSizeF size : {QSizeF(595, 842), QSizeF(612, 613), QSizeF(360, 613)})
        EXPECT_TRUE(isLandscapeSize(size)) << size.width() << " x " << size.height();
    for (const QSizeF size :
         {QSizeF(613, 842), QSizeF(595, 843), QSizeF(359, 700), QSizeF(400, 612)})
        EXPECT_FALSE(isLandscapeSize(size)) << size.width() << " x " << size.height();
}

} // namespace
