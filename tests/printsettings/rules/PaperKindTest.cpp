#include "printsettings/rules/PaperKind.h"

#include "tests/support/QStringPrinting.h"

#include <QtCore/QStringList>

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

} // namespace
