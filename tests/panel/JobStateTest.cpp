#include "tests/panel/PanelFixture.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

class JobStateTest : public PanelFixture
{};

struct FaxCase
{
    const char *behaviour;
    QString marked; ///< null: the printer has no fax at all
    bool fax;
};

class Fax : public JobStateTest, public testing::WithParamInterface<FaxCase>
{};

const FaxCase kFaxCases[] = {
    {"Fax", u"FAX"_s, true},
    {"Printer", u"PRINTER"_s, false},
    {"None", u"None"_s, false},
    {"NoSuchOption", QString(), false},
};

TEST_P(Fax, FollowsTheMarkedChoice)
{
    createPanel();
    if (GetParam().marked.isNull())
        panel->ppd = nullptr;
    else
        mark(u"VKOutput"_s, GetParam().marked);
    for (const bool before : {false, true}) {
        panel->setFlag(FaxOutput, before);
        panel->checkFax();
        EXPECT_EQ((panel->imageModeFlag() & FaxOutput) != 0, GetParam().fax);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, Fax, testing::ValuesIn(kFaxCases), CaseName());

TEST_F(JobStateTest, HasNoFaxOutputWhereNothingIsMarked)
{
    usePrinter(PPDSource().optionWithoutDefault("VKOutput", {"FAX", "PRINTER"}).open());
    ASSERT_TRUE(panel->initWithCallback(host));
    panel->setFlag(FaxOutput, true);
    panel->checkFax();
    EXPECT_EQ(panel->imageModeFlag() & FaxOutput, 0);
}

struct ColorCase
{
    const char *behaviour;
    bool attribute;
    bool ticket;
    QVariant mode;              ///< invalid: none in the ticket
    std::optional<bool> vendor; ///< none: as it was
};

class ColorSync : public JobStateTest, public testing::WithParamInterface<ColorCase>
{};

const ColorCase kColorCases[] = {
    {"NoAttribute", false, true, u"AP_VendorColorMatching"_s, false},
    {"NoAttributeAndNoTicket", false, false, {}, false},
    {"NoTicket", true, false, {}, std::nullopt},
    {"NoMode", true, true, {}, true},
    {"Vendor", true, true, u"AP_VendorColorMatching"_s, true},
    {"Application", true, true, u"AP_ApplicationColorMatching"_s, false},
    {"AnotherMode", true, true, u"AP_SomethingElse"_s, true},
    {"EmptyMode", true, true, u""_s, true},
    {"ModeThatIsNoText", true, true, 7, true},
};

TEST_P(ColorSync, DecidesWhoseColourSettingsApply)
{
    if (!GetParam().ticket)
        host->setLacking({HostOperation::PrintSettings});
    createPanel();
    const PPDHandle without = PPDSource().open();
    if (!GetParam().attribute)
        panel->ppd = without.get();
    if (GetParam().mode.isValid())
        host->ticket().setValues({{u"AP_ColorMatchingMode"_s, GetParam().mode}});
    for (const bool before : {false, true}) {
        panel->setFlag(VendorColorMatching, before);
        panel->checkColorSync();
        EXPECT_EQ((panel->imageModeFlag() & VendorColorMatching) != 0,
                  GetParam().vendor.value_or(before));
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, ColorSync, testing::ValuesIn(kColorCases), CaseName());

constexpr auto kFoldKey = "com.velkaro.print.PrintSettings.advancedItem"_L1;

struct FoldCase
{
    const char *behaviour;
    QVariant stored; ///< invalid: none in the ticket
    bool unfoldedBefore;
    bool unfoldedAfter;
    bool toggled;
};

class Fold : public JobStateTest, public testing::WithParamInterface<FoldCase>
{};

const FoldCase kFoldCases[] = {
    {"NothingStoredAndUnfoldedIsFolded", {}, true, false, true},
    {"NothingStoredAndFoldedStays", {}, false, false, false},
    {"StoredUnfoldedOpens", true, false, true, true},
    {"StoredUnfoldedAndUnfoldedStays", true, true, true, false},
    {"StoredFoldedCloses", false, true, false, true},
    {"StoredFoldedAndFoldedStays", false, false, false, false},
    {"ANumberStandsForABoolean", 1, false, true, true},
    {"ZeroIsFalse", 0, true, false, true},
    {"ATextStandsForABoolean", u"true"_s, false, true, true},
    {"AnotherTextIsFalse", u"no"_s, true, false, true},
};

TEST_P(Fold, IsRestoredFromTheTicket)
{
    showPanel();
    panel->effectContent->setValue(u"advancedItem"_s, GetParam().unfoldedBefore);
    host->ticket().setValues({});
    if (GetParam().stored.isValid())
        host->ticket().setValues({{kFoldKey, GetParam().stored}});
    panel->restoreOptionState();
    EXPECT_EQ(panel->effectContent->value(u"advancedItem"_s), QVariant(GetParam().unfoldedAfter));
    EXPECT_EQ(panel->optionButton->isChecked(), GetParam().unfoldedAfter);
    EXPECT_EQ(panel->asked,
              GetParam().toggled ? QStringList{u"toggleShowOption"_s} : QStringList{});
}

INSTANTIATE_TEST_SUITE_P(Cases, Fold, testing::ValuesIn(kFoldCases), CaseName());

TEST_F(JobStateTest, FoldsAnOpenSectionOfADialogWithoutATicket)
{
    showPanel();
    panel->effectContent->setValue(u"advancedItem"_s, true);
    host->setLacking({HostOperation::PrintSettings});
    panel->restoreOptionState();
    EXPECT_FALSE(panel->effectContent->boolValue(u"advancedItem"_s));
}

TEST_F(JobStateTest, RestoresNoFoldStateBeforeTheViewIsLoaded)
{
    createPanel();
    host->ticket().setValues({{kFoldKey, true}});
    panel->restoreOptionState();
    EXPECT_TRUE(panel->asked.isEmpty());
}

TEST_F(JobStateTest, TogglesTheSectionWhenTheUserClicksTheButton)
{
    showPanel();
    panel->optionButton->click();
    EXPECT_EQ(panel->asked, QStringList{u"toggleShowOption"_s});
    EXPECT_TRUE(panel->effectContent->boolValue(u"advancedItem"_s));
}

struct SavedFoldCase
{
    const char *behaviour;
    QVariant entry;
    bool saved;
};

class SavedFold : public JobStateTest, public testing::WithParamInterface<SavedFoldCase>
{};

const SavedFoldCase kSavedFoldCases[] = {
    {"Unfolded", true, true},
    {"Folded", false, false},
    {"NoEntry", {}, false},
};

TEST_P(SavedFold, IsABooleanOfTheTicket)
{
    showPanel();
    panel->effectContent->setValue(u"advancedItem"_s, GetParam().entry);
    panel->saveAllValues();
    EXPECT_EQ(host->ticket().values(), (QVariantMap{{kFoldKey, GetParam().saved}}));
    EXPECT_EQ(host->ticket().values().value(kFoldKey).typeId(), QMetaType::Bool);
}

INSTANTIATE_TEST_SUITE_P(Cases, SavedFold, testing::ValuesIn(kSavedFoldCases), CaseName());

TEST_F(JobStateTest, SavesTheFoldStateAsFoldedBeforeTheViewIsLoaded)
{
    createPanel();
    panel->saveOptionState();
    EXPECT_EQ(host->ticket().values(), (QVariantMap{{kFoldKey, false}}));
}

TEST_F(JobStateTest, NamesTheFoldStateAfterThePanel)
{
    createPanel();
    EXPECT_EQ(panel->optionName(), u"advancedItem"_s);
    panel->setThePDEName(u"VKInkColorSetting"_s);
    EXPECT_EQ(panel->optionName(), u"advancedcolorItem"_s);
    panel->saveOptionState();
    EXPECT_EQ(host->ticket().values(),
              (QVariantMap{{u"com.velkaro.print.PrintSettings.advancedcolorItem"_s, false}}));
    panel->setThePDEName(u"vkinkcolorsetting"_s);
    EXPECT_EQ(panel->optionName(), u"advancedItem"_s);
}

} // namespace
