#include "dialog/job/StandardAttributes.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/CaseName.h"
#include "tests/support/PPDSource.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A printer whose PPD says what its choices are to others.
QByteArray tellingPrinter()
{
    return PPDSource()
               .option("Duplex/Two-Sided", {"None", "DuplexNoTumble", "DuplexTumble"})
               .option("ColorModel/Colour", {"RGB", "Gray", "Sepia"})
               .option("ExQuality/Quality", {"Mid", "Quick", "Best"})
               .option("ExStaple/Staple", {"None", "Corner"})
               .option("ExPunch/Punch", {"None", "Two"})
               .text() +
           "*APPrinterPreset Quick/Quick: \"*ExQuality Quick *ColorModel RGB\n"
           "  com.apple.print.preset.quality low com.apple.print.preset.output-mode color\"\n*End\n"
           "*APPrinterPreset Other/Other: \"*ExQuality Best com.apple.print.preset.quality x\"\n"
           "*APPrinterPreset Lost/Lost: \"*Silk On com.apple.print.preset.quality high\"\n"
           "*cupsIPPFinishings 3/none: \"*ExStaple None *ExPunch None\"\n"
           "*cupsIPPFinishings 4/staple: \"*ExStaple Corner\"\n"
           "*cupsIPPFinishings 5/punch: \"*ExPunch Two\"\n"
           "*cupsIPPFinishings x/nonsense: \"*ExPunch Two\"\n";
}

struct Beside
{
    const char *behaviour;
    QList<PPDMark> marked; ///< beside the defaults
    QStringList sent;      ///< their keywords
    QList<JobOption> attributes;
};

void PrintTo(const Beside &row, std::ostream *out)
{
    *out << row.behaviour;
}

class StandardAttributesBeside : public testing::TestWithParam<Beside>
{};

TEST_P(StandardAttributesBeside, WhatIsMarkedAndSent)
{
    const PPDHandle ppd = openText(tellingPrinter());
    for (const PPDMark &mark : GetParam().marked)
        ASSERT_TRUE(forceChoice(ppd.get(), mark.keyword, mark.choice));
    QList<JobOption> sent;
    for (const QString &keyword : GetParam().sent)
        sent += JobOption{keyword, markedValue(ppd.get(), keyword)};
    const QList<AttributeRule> ofPlugIn{
        {{{u"exquality"_s, u"BEST"_s}}, u"print-quality"_s, u"5"_s},
        {{{u"ColorModel"_s, u"Sepia"_s}}, u"print-color-mode"_s, u"color"_s}};
    EXPECT_EQ(standardAttributes(marksOf(ppd.get()), sent, attributeRulesFor(ppd.get(), ofPlugIn)),
              GetParam().attributes);
}

const JobOption kColor{u"print-color-mode"_s, u"color"_s};
const JobOption kGrey{u"print-color-mode"_s, u"monochrome"_s};
const JobOption kDraft{u"print-quality"_s, u"3"_s};
const JobOption kHigh{u"print-quality"_s, u"5"_s};

INSTANTIATE_TEST_SUITE_P(
    Table, StandardAttributesBeside,
    testing::Values(
        Beside{"NothingThatIsNotSent", {{u"ColorModel"_s, u"Gray"_s}}, {}, {}},
        Beside{"AKeywordOfCups", {{u"ColorModel"_s, u"Gray"_s}}, {u"ColorModel"_s}, {kGrey}},
        Beside{"ADefaultThatIsSent", {}, {u"ColorModel"_s}, {kColor}},
        Beside{"TwoSides",
               {{u"Duplex"_s, u"DuplexTumble"_s}},
               {u"Duplex"_s},
               {{u"sides"_s, u"two-sided-short-edge"_s}}},
        Beside{"AChoiceOfThePlugIn",
               {{u"ExQuality"_s, u"Best"_s}, {u"ColorModel"_s, u"Sepia"_s}},
               {u"ExQuality"_s, u"ColorModel"_s},
               {kHigh, kColor}},
        Beside{"AWholePreset", {{u"ExQuality"_s, u"Quick"_s}}, {u"ExQuality"_s}, {kDraft, kColor}},
        Beside{"NothingBesideHalfAPreset",
               {{u"ExQuality"_s, u"Quick"_s}, {u"ColorModel"_s, u"Gray"_s}},
               {u"ExQuality"_s},
               {}},
        Beside{"AFinishing",
               {{u"ExStaple"_s, u"Corner"_s}},
               {u"ExStaple"_s},
               {{u"finishings"_s, u"4"_s}}},
        Beside{"NoFinishing", {}, {u"ExStaple"_s}, {{u"finishings"_s, u"3"_s}}},
        Beside{"TwoFinishings",
               {{u"ExStaple"_s, u"Corner"_s}, {u"ExPunch"_s, u"Two"_s}},
               {u"ExStaple"_s, u"ExPunch"_s},
               {{u"finishings"_s, u"4,5"_s}}}),
    CaseName());

TEST(StandardAttributes, HaveRulesWithoutAPPD)
{
    EXPECT_EQ(standardAttributes({{u"ColorModel"_s, u"Gray"_s}}, {{u"ColorModel"_s, u"Gray"_s}},
                                 attributeRulesFor(nullptr, {})),
              QList<JobOption>{kGrey});
}

} // namespace
