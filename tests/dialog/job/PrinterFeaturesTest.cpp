#include "dialog/job/PrinterFeatures.h"

#include "dialog/host/CustomParameters.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/job/FeatureTexts.h"
#include "tests/support/FeaturePrinter.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using enum PrinterFeature::Kind;

class Features : public testing::Test
{
protected:
    PrinterFeature feature(const QString &keyword)
    {
        for (const FeatureGroup &group : printerFeatures(m_ppd.get(), {}))
            for (const PrinterFeature &one : group.features)
                if (one.keyword == keyword)
                    return one;
        ADD_FAILURE() << keyword.toStdString();
        return {};
    }

    PPDHandle m_ppd = openText(featurePrinter());
};

// A keyword that a server reads by itself (copies) is none of the printer's, and where there is one
// choice there is nothing to choose.
TEST_F(Features, StandInTheGroupsOfThePPDWithWhatIsInstalledLast)
{
    EXPECT_EQ(printerFeatures(m_ppd.get(), {u"duplex"_s}),
              (QList<FeatureGroup>{
                  {u"Finishing"_s,
                   false,
                   {{u"Finisher"_s, u"Finish"_s, Many}, {u"Jog"_s, u"Jog Stacks"_s, Switch}}},
                  {u"Paper Handling"_s,
                   false,
                   {{u"Weight"_s, u"Paper Weight"_s, One},
                    {u"Stamp"_s, u"Stamp"_s, One},
                    {u"Hold"_s, u"Private Print"_s, One},
                    {u"Tone"_s, u"Tone"_s, One}}},
                  {u"Options Installed"_s, true, {{u"Tray2"_s, u"Second Tray"_s, Switch}}}}));
}

TEST_F(Features, OfNoPPDAreNone)
{
    EXPECT_TRUE(printerFeatures(nullptr, {}).isEmpty());
}

TEST_F(Features, ThatAreLeftOutLeaveNoEmptyGroup)
{
    const QList<FeatureGroup> groups =
        printerFeatures(m_ppd.get(), {u"DUPLEX"_s, u"Finisher"_s, u"Jog"_s, u"Tray2"_s});
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(groups[0].text, u"Paper Handling"_s);
}

// A Boolean that is spelt otherwise is no check box: its choices say what they are.
TEST_F(Features, AreSwitchesOnlyWithTrueAndFalse)
{
    QByteArray text = featurePrinter();
    text.replace("*Jog True/Yes", "*Jog On/Yes").replace("*Jog False", "*Jog Off");
    m_ppd = openText(text);
    EXPECT_EQ(feature(u"Jog"_s).kind, One);
}

TEST_F(Features, InSubgroupsAreFound)
{
    QByteArray text = featurePrinter();
    text.replace("*OpenUI *Jog", "*OpenSubGroup: Stacking/Stacking\n*OpenUI *Jog")
        .replace("*CloseUI: *Jog\n", "*CloseUI: *Jog\n*CloseSubGroup: Stacking\n");
    m_ppd = openText(text);
    EXPECT_EQ(feature(u"Jog"_s).text, u"Jog Stacks"_s);
}

struct Tick
{
    const char *before;
    const char *choice;
    bool isTicked;
    const char *after;
};

class Ticks : public Features, public testing::WithParamInterface<Tick>
{};

TEST_P(Ticks, LeaveTheChoices)
{
    ASSERT_TRUE(forceChoice(m_ppd.get(), u"Finisher"_s, QLatin1String(GetParam().before)));
    EXPECT_EQ(choicesAfter(m_ppd.get(), feature(u"Finisher"_s), QLatin1String(GetParam().choice),
                           GetParam().isTicked)
                  .join(u','),
              QLatin1String(GetParam().after));
}

INSTANTIATE_TEST_SUITE_P(All, Ticks,
                         testing::Values(Tick{"None", "Staple", true, "Staple"},
                                         Tick{"Staple", "Punch", true, "Staple,Punch"},
                                         Tick{"Staple,Punch", "Staple", false, "Punch"},
                                         Tick{"Staple,Punch", "None", true, "None"},
                                         Tick{"Punch", "Punch", false, "None"},
                                         Tick{"None", "None", false, "None"}));

struct ValueOf
{
    const char *keyword;
    const char *value;
    const char *text;
};

class ValueTexts : public Features, public testing::WithParamInterface<ValueOf>
{};

TEST_P(ValueTexts, AreThePrintersWords)
{
    EXPECT_EQ(valueText(m_ppd.get(), QLatin1String(GetParam().keyword),
                        QString::fromUtf8(GetParam().value)),
              QString::fromUtf8(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    All, ValueTexts,
    testing::Values(ValueOf{"Finisher", "Staple", "Staple"},
                    ValueOf{"Finisher", "Staple,Punch", "Staple, Punch & Fold"},
                    ValueOf{"Weight", "Custom.120", "Grams 120"},
                    ValueOf{"Stamp", R"({Text="a b" Angle=1.5 Offset=2})",
                            "Words a b, Angle 1.5, Offset 0.71 mm"},
                    ValueOf{"Hold", "Custom.1234", "Code ••••"}, ValueOf{"Weight", "Silk", "Silk"},
                    ValueOf{"Nothing", "x", "x"}));

struct Wrong
{
    const char *keyword;
    const char *value;
    const char *sentence;
};

class WrongValues : public Features, public testing::WithParamInterface<Wrong>
{};

TEST_P(WrongValues, AreToldInOneSentence)
{
    CustomParameter parameter =
        customParameters(m_ppd.get(), QLatin1String(GetParam().keyword)).constFirst();
    parameter.value = QLatin1String(GetParam().value);
    EXPECT_EQ(faultText(parameter), QLatin1String(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    All, WrongValues,
    testing::Values(Wrong{"Weight", "59", "Grams is at least 60."},
                    Wrong{"Weight", "301", "Grams is at most 300."},
                    Wrong{"Weight", "x", "Grams is a number."},
                    Wrong{"Hold", "123", "Code has at least 4 characters."},
                    Wrong{"Hold", "123456789", "Code has at most 8 characters."},
                    Wrong{"Hold", "12x4", "Code consists of digits."}, Wrong{"Hold", "1234", ""}));

} // namespace
