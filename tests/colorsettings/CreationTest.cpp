#include "colorsettings/EffectVal.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/ValueTransformer.h"
#include "platform/pde/PDEPanel.h"
#include "tests/colorsettings/ColorPanelFixture.h"

using namespace Qt::StringLiterals;

using CreationTest = ColorPanelTest;

TEST_F(CreationTest, ANewJobHasZeroUnderAllFiveKeysWhateverThePrinterSays)
{
    ColorDialog dialog(PPDSource().option("VKBrightness", {"5", "0"}).open());
    dialog.create();
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(dialog.pending(kEffectKeywords[i]), QVariant(0LL));
        EXPECT_EQ(dialog.ticket(kEffectTicketKeys[i]), QVariant(u"0"_s));
    }
}

TEST_F(CreationTest, WithoutATicketTheValuesAreThePrintersDefaults)
{
    ColorDialog dialog(PPDSource()
                           .option("VKBrightness", {"5"})
                           .option("VKRed", {"-3x"})
                           .option("VKBlue", {"Much"})
                           .optionWithoutDefault("VKGreen", {"7"})
                           .open());
    dialog.host->setLacking({HostOperation::PrintSettings});
    dialog.create();
    EXPECT_EQ(dialog.pending("VKBrightness"), QVariant(5LL));
    EXPECT_EQ(dialog.pending("VKRed"), QVariant(-3LL));
    EXPECT_EQ(dialog.pending("VKBlue"), QVariant(0LL));
    EXPECT_EQ(dialog.pending("VKGreen"), QVariant(0LL));
    EXPECT_FALSE(dialog.pending("VKContrast").isValid());
    EXPECT_TRUE(dialog.host->ticket().values().isEmpty());
}

TEST_F(CreationTest, TheTicketsMonoModeHoldsRightAfterCreation)
{
    ColorDialog dialog;
    dialog.setTicket("VKMonoColor", u"Mono"_s);
    dialog.create();
    EXPECT_TRUE(dialog.hasFlag(MonoColorMode));
}

TEST_F(CreationTest, ATicketWithoutColourModeLeavesThePanelInColour)
{
    ColorDialog dialog;
    dialog.create();
    EXPECT_FALSE(dialog.hasFlag(MonoColorMode));
}

TEST_F(CreationTest, PostsOneNotificationWithoutUserInformationAndHearsItItself)
{
    ColorDialog dialog;
    std::vector<Notification> posted;
    int observer = 0;
    auto &center = NotificationCenter::defaultCenter();
    center.addObserver(
        &observer, [&](const Notification &n) { posted.push_back(n); },
        u"VKInkPrintSettingNotification"_s);
    dialog.create();
    center.removeObserver(&observer);
    ASSERT_EQ(posted.size(), 1U);
    EXPECT_EQ(posted[0].object, dialog.host.get());
    EXPECT_FALSE(posted[0].userInfo.has_value());
}

TEST_F(CreationTest, TakesItsKeywordsFromTheBundleAndDropsThoseThePrinterLacks)
{
    ColorDialog full;
    EXPECT_EQ(full.create().supportedPPDOptionKeys(),
              QStringList({u"VKColorMatching"_s, u"VKHalfTonePattern"_s, u"VKColorEnhancement"_s}));
    ColorDialog one(PPDSource().option("VKHalfTonePattern", {"Dither"}).open());
    EXPECT_EQ(one.create().supportedPPDOptionKeys(), QStringList{u"VKHalfTonePattern"_s});
}

TEST_F(CreationTest, MarksNothing)
{
    ColorDialog dialog;
    dialog.create();
    EXPECT_EQ(dialog.calls, QStringList());
}

TEST_F(CreationTest, NamesItselfItsViewAndItsHelp)
{
    ColorDialog dialog;
    const auto &panel = dialog.create();
    EXPECT_EQ(panel.thePDEName(), u"VKInkColorSetting"_s);
    EXPECT_EQ(panel.panelName(), u"Color Settings"_s);
    EXPECT_EQ(panel.panelKind(), u"com.velkaro.print.pde.CocoaVKInkColorSetting"_s);
    EXPECT_EQ(panel.helpBook(), u"Velkaro Color Settings Help"_s);
    EXPECT_EQ(panel.shortName(), u"color"_s);
    EXPECT_EQ(panel.inspectedClassName(), u"VKInkColorSettingPDE"_s);
    EXPECT_TRUE(panel.inspectedHasPicture());
    EXPECT_EQ(panel.inspectedPicture(), nullptr);
}

TEST_F(CreationTest, ALaterPanelsColourTransformerReplacesTheFirst)
{
    ColorDialog first;
    first.create();
    const auto before = ValueTransformer::valueTransformerForName(u"VKColorTransformer"_s);
    ASSERT_TRUE(before);
    ColorDialog second;
    second.create();
    EXPECT_NE(ValueTransformer::valueTransformerForName(u"VKColorTransformer"_s), before);
}

TEST_F(CreationTest, AHostThatMarksNothingGetsNoPanelAndNothingIsPostedOrRegistered)
{
    ColorDialog dialog;
    dialog.host->setLacking({HostOperation::WillChangePPDOptionKeyValue});
    EffectVal = {2, 9};
    bool posted = false;
    int observer = 0;
    auto &center = NotificationCenter::defaultCenter();
    center.addObserver(
        &observer, [&](const Notification &) { posted = true; }, QString());
    VKInkColorSettingPDE panel;
    EXPECT_FALSE(panel.initWithCallback(dialog.host));
    center.removeObserver(&observer);
    EXPECT_FALSE(posted);
    EXPECT_EQ(center.registrationCount(&panel), 0);
    EXPECT_EQ(EffectVal.code, 2);
    EXPECT_EQ(EffectVal.value, 9);
    EXPECT_TRUE(panel.outputBin().isEmpty());
    EXPECT_TRUE(dialog.host->ticket().values().isEmpty());
    EXPECT_EQ(dialog.host.use_count(), 1);
}

TEST_F(CreationTest, AReleasedPanelHearsNothingAndLetsTheHostGo)
{
    ColorDialog dialog;
    const void *address = &dialog.show();
    dialog.panel.reset();
    EXPECT_EQ(NotificationCenter::defaultCenter().registrationCount(address), 0);
    EXPECT_EQ(dialog.host.use_count(), 1);
    dialog.postMono(true);
    dialog.postPaper();
    EXPECT_EQ(dialog.calls, QStringList());
}

TEST_F(CreationTest, NothingFailsBeforeTheViewIsLoaded)
{
    ColorDialog dialog;
    auto &panel = dialog.create();
    panel.setEffectDefaults();
    panel.restoreEffectValues();
    panel.saveEffectValues();
    panel.updateUI();
    panel.redrawEffectImage();
    panel.updateImage(nullptr);
    panel.effectValueDidChange(nullptr);
    panel.revertEffectDialog(nullptr);
    panel.requestNewOutputBin(nullptr);
    EXPECT_TRUE(panel.determineKey(nullptr).isNull());
    EXPECT_EQ(panel.determineUI(u"VKColorMatching"_s), nullptr);
    EXPECT_EQ(panel.determineField(u"VKRed"_s), nullptr);
    EXPECT_EQ(dialog.pending("VKRed"), QVariant(0LL));
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[2]), QVariant(u"0"_s));
    EXPECT_EQ(dialog.calls, QStringList());
}
