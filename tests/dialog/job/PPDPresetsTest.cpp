#include "dialog/job/PPDPresets.h"

#include "tests/endtoend/JobPrinting.h"
#include "tests/support/PPDSource.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray printerWith(const QByteArray &presets)
{
    return PPDSource()
               .option("Finish/Finish", {"Matt", "Shiny"})
               .option("Weight/Weight", {"Light", "Heavy"})
               .option("copies", {"1", "99"})
               .text() +
           presets;
}

QList<PPDPreset> presetsIn(const QByteArray &text)
{
    const PPDHandle ppd = openText(printerWith(text));
    return presetsOf(ppd.get());
}

TEST(PPDPresets, AreTheChoicesThatTheyName)
{
    EXPECT_EQ(presetsIn("*APPrinterPreset Photo/Photo on <3C>b<3E> Paper: \"\n"
                        "  *Finish Shiny\n  *Weight heavy\n"
                        "  com.apple.print.preset.quality high\"\n*End\n"
                        "*APPrinterPreset Draft: \"*Weight Light\"\n"),
              (QList<PPDPreset>{{u"Photo"_s,
                                 u"Photo on <b> Paper"_s,
                                 {{u"Finish"_s, u"Shiny"_s}, {u"Weight"_s, u"Heavy"_s}}},
                                {u"Draft"_s, u"Draft"_s, {{u"Weight"_s, u"Light"_s}}}}));
}

TEST(PPDPresets, OfWhatThePrinterLacksAreNotThere)
{
    EXPECT_EQ(presetsIn("*APPrinterPreset A/A: \"*Silk On *Finish Silk *copies 99\"\n"
                        "*APPrinterPreset B/B: \"\"\n"
                        "*APPrinterPreset C/C: \"*Finish\"\n"),
              QList<PPDPreset>());
    EXPECT_EQ(presetsOf(nullptr), QList<PPDPreset>());
}

} // namespace
