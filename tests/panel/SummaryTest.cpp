#include "tests/panel/PanelFixture.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

using namespace Qt::StringLiterals;

namespace {

class SummaryTest : public PanelFixture
{
protected:
    static QStringList order(const QVariantMap &summary)
    {
        return summary.value(u"Summary Display Order"_s).toStringList();
    }
};

TEST_F(SummaryTest, MapsTextsToTextsInTheOrderOfTheKeywords)
{
    createPanel();
    mark(u"VKResolution"_s, u"Best"_s);
    const QVariantMap summary = panel->summaryInfo();
    EXPECT_EQ(order(summary), (QStringList{u"Media & Type"_s, u"Quality"_s, u"Color & Matching"_s,
                                           u"Mirror & Back"_s, u"Both Ways"_s, u"Slow Drying"_s,
                                           u"Align Lines"_s, u"No Control"_s}));
    EXPECT_EQ(summary.size(), 9);
    EXPECT_EQ(summary.value(u"Media & Type"_s), u"Plain <b>Paper</b>"_s);
    EXPECT_EQ(summary.value(u"Quality"_s), u"Best & Slow"_s);
    EXPECT_EQ(summary.value(u"No Control"_s), u"Choice A"_s);
}

struct TextCase
{
    const char *behaviour;
    QString keyword;
    QString marked;
    QString title;
    QString text;
};

class SummaryText : public SummaryTest, public testing::WithParamInterface<TextCase>
{};

// The bundle of the test has no string table: the key stands for the localised text.
const TextCase kTextCases[] = {
    {"OnIsLocalised", u"VKBiDir"_s, u"ON"_s, u"Both Ways"_s, u"ON"_s},
    {"OffIsLocalised", u"VKBiDir"_s, u"OFF"_s, u"Both Ways"_s, u"OFF"_s},
    {"TrueIsOn", u"MirrorPrint"_s, u"True"_s, u"Mirror & Back"_s, u"ON"_s},
    {"FalseIsOff", u"MirrorPrint"_s, u"False"_s, u"Mirror & Back"_s, u"OFF"_s},
    {"AnyOtherIsTheTextOfTheChoice", u"VKMediaType"_s, u"HagakiUra"_s, u"Media & Type"_s,
     u"Hagaki Ura"_s},
};

TEST_P(SummaryText, OfAValue)
{
    createPanel();
    mark(GetParam().keyword, GetParam().marked);
    EXPECT_EQ(panel->summaryInfo().value(GetParam().title), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Cases, SummaryText, testing::ValuesIn(kTextCases), CaseName());

TEST_F(SummaryTest, LeavesOutAValueThatNoChoiceHas)
{
    usePrinter(PPDSource()
                   .optionWithDefault("VKResolution/Quality", {"Normal"}, "Photo")
                   .optionWithoutDefault("VKMediaType", {"Plain"})
                   .option("VKBiDir/Both Ways", {"OFF/Off", "ON/On"})
                   .open());
    createPanel();
    const QVariantMap summary = panel->summaryInfo();
    EXPECT_EQ(panel->outputBin(), (QVariantMap{{u"VKMediaType"_s, u""_s},
                                               {u"VKResolution"_s, u"Photo"_s},
                                               {u"VKBiDir"_s, u"OFF"_s}}));
    EXPECT_EQ(summary, (QVariantMap{{u"Both Ways"_s, u"OFF"_s},
                                    {u"Summary Display Order"_s, QStringList{u"Both Ways"_s}}}));
}

TEST_F(SummaryTest, HoldsOnlyAnEmptyOrderWithoutKeywords)
{
    ASSERT_TRUE(panel->initWithCallback(host));
    EXPECT_EQ(panel->summaryInfo(), (QVariantMap{{u"Summary Display Order"_s, QStringList()}}));
}

TEST_F(SummaryTest, ReflectsTheMarksAndRefreshesTheControls)
{
    showPanel();
    panel->biDirButton->setChecked(false);
    mark(u"VKBiDir"_s, u"ON"_s);
    EXPECT_EQ(panel->summaryInfo().value(u"Both Ways"_s), u"ON"_s);
    EXPECT_TRUE(panel->biDirButton->isChecked());
    EXPECT_TRUE(calls.isEmpty());
}

} // namespace
