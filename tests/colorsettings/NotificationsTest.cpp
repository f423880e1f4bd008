#include "platform/foundation/NotificationCenter.h"
#include "tests/colorsettings/ColorPanelFixture.h"

using namespace Qt::StringLiterals;

using NotificationsTest = ColorPanelTest;

TEST_F(NotificationsTest, NaturalNoMarksVivid)
{
    ColorDialog dialog;
    dialog.create();
    dialog.panel->setAndMarkValue(u"Natural"_s, u"VKColorMatching"_s);
    dialog.calls.clear();
    dialog.postNatural(false);
    EXPECT_EQ(dialog.calls, QStringList{u"VKColorMatching=Vivid"_s});
    EXPECT_EQ(dialog.pending("VKColorMatching"), QVariant(u"Vivid"_s));
    EXPECT_EQ(dialog.marked("VKColorMatching"), u"Vivid"_s);
    EXPECT_FALSE(dialog.hasFlag(NaturalColorMatching));
}

TEST_F(NotificationsTest, NaturalYesMarksNaturalAndLeavesTheTicketsBit)
{
    ColorDialog dialog;
    dialog.create();
    dialog.postNatural(true);
    EXPECT_EQ(dialog.marked("VKColorMatching"), u"Natural"_s);
    EXPECT_FALSE(dialog.hasFlag(NaturalColorMatching));
}

TEST_F(NotificationsTest, AMissingNaturalEntryMeansVivid)
{
    ColorDialog dialog;
    dialog.create();
    dialog.postNatural(true);
    dialog.post(QVariantMap{{u"PointTo"_s, u"VKColorMatching"_s}});
    EXPECT_EQ(dialog.marked("VKColorMatching"), u"Vivid"_s);
}

TEST_F(NotificationsTest, ColourModeChangesOneBitAndMarksNothing)
{
    ColorDialog dialog;
    dialog.create();
    const auto before = dialog.panel->imageModeFlag();
    dialog.postMono(true);
    EXPECT_EQ(dialog.panel->imageModeFlag(), before | MonoColorMode);
    dialog.postMono(false);
    EXPECT_EQ(dialog.panel->imageModeFlag(), before);
    EXPECT_EQ(dialog.calls, QStringList());
}

TEST_F(NotificationsTest, HalftoneMarksDiffusionOrDither)
{
    ColorDialog dialog;
    dialog.create();
    dialog.panel->restoreValuesAndReturnError(nullptr);
    const auto post = [&](bool diffusion) {
        dialog.post(QVariantMap{{u"VKHalfTonePattern"_s, diffusion},
                                {u"PointTo"_s, u"VKHalfTonePattern"_s}});
    };
    post(false);
    EXPECT_FALSE(dialog.hasFlag(DiffusionHalftone));
    EXPECT_EQ(dialog.marked("VKHalfTonePattern"), u"Dither"_s);
    post(true);
    EXPECT_TRUE(dialog.hasFlag(DiffusionHalftone));
    EXPECT_EQ(dialog.marked("VKHalfTonePattern"), u"Diffusion"_s);
    EXPECT_EQ(dialog.calls,
              QStringList({u"VKHalfTonePattern=Dither"_s, u"VKHalfTonePattern=Diffusion"_s}));
}

TEST_F(NotificationsTest, OtherSubjectsAndEmptyInformationChangeNothing)
{
    ColorDialog dialog;
    dialog.setTicket("VKMonoColor", u"Mono"_s);
    dialog.create();
    dialog.setTicket("VKMonoColor", u"Color"_s);
    const auto before = dialog.panel->imageModeFlag();
    dialog.post(QVariantMap{});
    dialog.post(QVariantMap{{u"PointTo"_s, u"VKRed"_s}, {u"VKRed"_s, true}});
    EXPECT_EQ(dialog.panel->imageModeFlag(), before) << "an empty dictionary is user information";
    EXPECT_EQ(dialog.calls, QStringList());
}

TEST_F(NotificationsTest, AnotherDialogsNotificationIsNotHeard)
{
    ColorDialog dialog;
    ColorDialog other;
    dialog.create();
    other.create();
    other.postMono(true);
    EXPECT_FALSE(dialog.hasFlag(MonoColorMode));
    EXPECT_TRUE(other.hasFlag(MonoColorMode));
}

TEST_F(NotificationsTest, ARefusedHalftoneKeepsTheOldChoiceThoughTheBitHasChanged)
{
    ColorDialog dialog;
    dialog.create();
    dialog.panel->restoreValuesAndReturnError(nullptr);
    dialog.host->setRefused({u"VKHalfTonePattern=Dither"_s});
    dialog.post(
        QVariantMap{{u"VKHalfTonePattern"_s, true}, {u"PointTo"_s, u"VKHalfTonePattern"_s}});
    dialog.post(
        QVariantMap{{u"VKHalfTonePattern"_s, false}, {u"PointTo"_s, u"VKHalfTonePattern"_s}});
    EXPECT_EQ(dialog.calls, QStringList{u"VKHalfTonePattern=Dither refused"_s});
    EXPECT_EQ(dialog.pending("VKHalfTonePattern"), QVariant(u"Diffusion"_s));
    EXPECT_FALSE(dialog.hasFlag(DiffusionHalftone));
}

TEST_F(NotificationsTest, ARefusedMatchingKeepsTheOldOne)
{
    ColorDialog dialog;
    dialog.show();
    dialog.host->setRefused({u"VKColorMatching"_s});
    dialog.postNatural(true);
    EXPECT_EQ(dialog.calls, QStringList{u"VKColorMatching=Natural refused"_s});
    EXPECT_EQ(dialog.pending("VKColorMatching"), QVariant(u"Vivid"_s));
    EXPECT_EQ(dialog.marked("VKColorMatching"), u"Vivid"_s);
}

namespace {

struct TicketBits
{
    const char *name;
    QVariantMap ticket;
    std::int32_t before; // of the three bits
    std::int32_t after;
};

constexpr std::int32_t kThreeBits = MonoColorMode | DiffusionHalftone | NaturalColorMatching;

const TicketBits kTicketBits[] = {
    {"EmptyTicketLeavesAll", {}, kThreeBits, kThreeBits},
    {"EmptyTicketSetsNone", {}, 0, 0},
    {"ColorClearsMono", {{u"VKMonoColor"_s, u"Color"_s}}, MonoColorMode, 0},
    {"MonoSetsMono", {{u"VKMonoColor"_s, u"Mono"_s}}, 0, MonoColorMode},
    {"AnyOtherModeSetsMono", {{u"VKMonoColor"_s, u"color"_s}}, 0, MonoColorMode},
    {"ANumberSetsMono", {{u"VKMonoColor"_s, 0}}, 0, MonoColorMode},
    {"ListSetsMono", {{u"VKMonoColor"_s, QVariantList{1}}}, 0, MonoColorMode},
    {"DitherClearsDiffusion", {{u"VKHalfTonePattern"_s, u"Dither"_s}}, DiffusionHalftone, 0},
    {"DiffusionSetsDiffusion", {{u"VKHalfTonePattern"_s, u"Diffusion"_s}}, 0, DiffusionHalftone},
    {"OtherHalftoneIsLeft",
     {{u"VKHalfTonePattern"_s, u"Lines"_s}},
     DiffusionHalftone,
     DiffusionHalftone},
    {"NaturalSetsNatural", {{u"VKColorMatching"_s, u"Natural"_s}}, 0, NaturalColorMatching},
    {"VividLeavesNaturalSet",
     {{u"VKColorMatching"_s, u"Vivid"_s}},
     NaturalColorMatching,
     NaturalColorMatching},
    {"VividLeavesNaturalClear", {{u"VKColorMatching"_s, u"Vivid"_s}}, 0, 0},
    {"OnlyDiffusionClearsNatural",
     {{u"VKColorMatching"_s, u"Diffusion"_s}},
     NaturalColorMatching,
     0},
};

class TicketBranch : public ColorPanelTest, public testing::WithParamInterface<TicketBits>
{};

// A ticket that brings the panel's three bits into the state.
QVariantMap ticketFor(std::int32_t bits)
{
    return {{u"VKMonoColor"_s, bits & MonoColorMode ? u"Mono"_s : u"Color"_s},
            {u"VKHalfTonePattern"_s, bits & DiffusionHalftone ? u"Diffusion"_s : u"Dither"_s},
            {u"VKColorMatching"_s, bits & NaturalColorMatching ? u"Natural"_s : u"Diffusion"_s}};
}

} // namespace

TEST_P(TicketBranch, BringsTheBitsInLineWithTheTicket)
{
    ColorDialog dialog;
    dialog.create();
    dialog.host->ticket().setValues(ticketFor(GetParam().before));
    dialog.post(std::nullopt);
    ASSERT_EQ(dialog.panel->imageModeFlag() & kThreeBits, GetParam().before);
    dialog.host->ticket().setValues(GetParam().ticket);
    dialog.post(std::nullopt);
    EXPECT_EQ(dialog.panel->imageModeFlag() & kThreeBits, GetParam().after);
    EXPECT_EQ(dialog.calls, QStringList()) << "nothing is marked";
}

INSTANTIATE_TEST_SUITE_P(Values, TicketBranch, testing::ValuesIn(kTicketBits),
                         [](const auto &test) { return std::string(test.param.name); });

namespace {

// What the Print Settings panel posts for a medium, one after the other, and what becomes of it.
struct MediumCase
{
    const char *medium;
    bool first;
    bool second;
    const char *marked;
    QStringList calls; // of a panel whose matching is "Vivid" before
};

const MediumCase kMedia[] = {
    {"Plain", false, false, "Vivid", {}},
    {"HagakiAtena",
     true,
     false,
     "Vivid",
     {u"VKColorMatching=Natural"_s, u"VKColorMatching=Vivid"_s}},
    {"PlainDuplex", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
    {"Inkjet", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
    {"VelkaroQM41Matte", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
    {"VelkaroGlossy", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
    {"VelkaroGlossyR", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
    {"Glossy", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
    {"HagakiUra", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
    {"Transparencies", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
    {"PrintableDisc", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
    {"GlossyPrintableDisc", true, true, "Natural", {u"VKColorMatching=Natural"_s}},
};

class MediumNotifications : public ColorPanelTest, public testing::WithParamInterface<MediumCase>
{};

} // namespace

TEST_P(MediumNotifications, MarkTheMatchingOfTheMedium)
{
    ColorDialog dialog;
    dialog.show();
    dialog.postNatural(GetParam().first);
    dialog.postNatural(GetParam().second);
    EXPECT_EQ(dialog.marked("VKColorMatching"), QLatin1String(GetParam().marked));
    EXPECT_EQ(dialog.pending("VKColorMatching"), QVariant(QLatin1String(GetParam().marked)));
    EXPECT_EQ(dialog.calls, GetParam().calls);
}

INSTANTIATE_TEST_SUITE_P(Media, MediumNotifications, testing::ValuesIn(kMedia),
                         [](const auto &test) { return std::string(test.param.medium); });
