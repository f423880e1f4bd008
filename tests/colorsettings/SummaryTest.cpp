#include "tests/colorsettings/ColorPanelFixture.h"

using namespace Qt::StringLiterals;

namespace {

struct SummaryCase
{
    const char *name;
    bool vendorMatching;
    bool mono;
    bool enhancementOn;
    QStringList order;
    QVariantMap entries;
};

const QVariantMap kMatching{{u"Color Matching"_s, u"Vivid"_s}};
const QVariantMap kHalftone{{u"Halftone Pattern"_s, u"Diffusion"_s}};

QVariantMap joined(std::initializer_list<QVariantMap> parts)
{
    QVariantMap all;
    for (const QVariantMap &part : parts)
        all.insert(part);
    return all;
}

const QVariantMap kOff{{u"Color Enhancement"_s, u"Off"_s}};
const QVariantMap kOn{{u"Color Enhancement"_s, u"On"_s}};
const QVariantMap kTwo{{u"Brightness"_s, 3LL}, {u"Contrast"_s, 0LL}};
const QVariantMap kThree{{u"Red"_s, -20LL}, {u"Green"_s, 0LL}, {u"Blue"_s, 20LL}};

const SummaryCase kSummaries[] = {
    {"ColourWithoutEnhancement",
     true,
     false,
     false,
     {u"Color Matching"_s, u"Halftone Pattern"_s, u"Color Enhancement"_s},
     joined({kMatching, kHalftone, kOff})},
    {"ColourWithEnhancement",
     true,
     false,
     true,
     {u"Color Matching"_s, u"Halftone Pattern"_s, u"Color Enhancement"_s, u"Brightness"_s,
      u"Contrast"_s, u"Red"_s, u"Green"_s, u"Blue"_s},
     joined({kMatching, kHalftone, kOn, kTwo, kThree})},
    {"MonoWithEnhancement",
     true,
     true,
     true,
     {u"Halftone Pattern"_s, u"Color Enhancement"_s, u"Brightness"_s, u"Contrast"_s},
     joined({kHalftone, kOn, kTwo})},
    {"MonoWithoutEnhancement",
     true,
     true,
     false,
     {u"Halftone Pattern"_s, u"Color Enhancement"_s},
     joined({kHalftone, kOff})},
    {"ApplicationsColours", false, false, false, {}, {}},
    {"ApplicationsColoursWithEnhancement", false, false, true, {}, {}},
};

class SummaryTest : public ColorPanelTest, public testing::WithParamInterface<SummaryCase>
{
protected:
    static void prepare(ColorDialog &dialog)
    {
        if (!GetParam().vendorMatching)
            dialog.setTicket("AP_ColorMatchingMode", u"AP_ApplicationColorMatching"_s);
        if (GetParam().mono)
            dialog.setTicket("VKMonoColor", u"Mono"_s);
        if (GetParam().enhancementOn)
            dialog.host->willChangePPDOptionKeyValue(u"VKColorEnhancement"_s, u"ON"_s);
        dialog.setTicket(kEffectTicketKeys[0], u"3"_s);
        dialog.setTicket(kEffectTicketKeys[2], u"-20"_s);
        dialog.setTicket(kEffectTicketKeys[4], u"20"_s);
    }

    static void expectSummary(QVariantMap summary)
    {
        EXPECT_EQ(summary.take(u"Summary Display Order"_s).toStringList(), GetParam().order);
        EXPECT_EQ(summary, GetParam().entries);
        for (auto entry = summary.cbegin(); entry != summary.cend(); ++entry)
            EXPECT_EQ(entry->typeId(), GetParam().entries.value(entry.key()).typeId());
    }
};

} // namespace

TEST_P(SummaryTest, ListsWhatAppliesInDisplayOrder)
{
    ColorDialog dialog;
    prepare(dialog);
    expectSummary(dialog.create().summaryInfo());
}

TEST_P(SummaryTest, IsTheSameWithTheViewOnScreen)
{
    ColorDialog dialog;
    prepare(dialog);
    expectSummary(dialog.show().summaryInfo());
}

INSTANTIATE_TEST_SUITE_P(Jobs, SummaryTest, testing::ValuesIn(kSummaries),
                         [](const auto &test) { return std::string(test.param.name); });

using SummaryOfSmallPrinter = ColorPanelTest;

TEST_F(SummaryOfSmallPrinter, LeavesOutValuesThatThePrinterDoesNotName)
{
    ColorDialog dialog(PPDSource()
                           .attribute("APSupportsCustomColorMatching", "true")
                           .option("VKColorEnhancement/Enhance", {"ON/On", "OFF/Off"})
                           .option("VKGreen/Leafy", {"0"})
                           .open());
    dialog.setTicket(kEffectTicketKeys[3], u"-4"_s);
    const QVariantMap expected{{u"Enhance"_s, u"On"_s},
                               {u"Leafy"_s, -4LL},
                               {u"Summary Display Order"_s, QStringList{u"Enhance"_s, u"Leafy"_s}}};
    EXPECT_EQ(dialog.create().summaryInfo(), expected);
}
