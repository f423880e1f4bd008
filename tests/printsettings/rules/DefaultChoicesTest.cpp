#include "printsettings/rules/DefaultChoices.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(DefaultOfAPopUp, IsPlainPaperOrTheDisc)
{
    EXPECT_EQ(defaultChoice(RuledPopUp::Medium, {u"Glossy"_s, u"A4"_s, false}), u"Plain"_s);
    EXPECT_EQ(defaultChoice(RuledPopUp::Medium, {u"Glossy"_s, u"120x120mm"_s, true}),
              u"PrintableDisc"_s);
}

TEST(DefaultOfAPopUp, IsTheQualityOfTheShownMediumAndPaper)
{
    EXPECT_EQ(defaultChoice(RuledPopUp::Quality, {u"Plain"_s, u"A4"_s, false}), u"PlainNormal"_s);
    EXPECT_EQ(defaultChoice(RuledPopUp::Quality, {u"Plain"_s, u"A3.Fullbleed"_s, false}),
              u"Best"_s);
    EXPECT_EQ(defaultChoice(RuledPopUp::Quality, {u"Glossy"_s, u"A4"_s, true}), u"Photo"_s);
}

TEST(DefaultOfAPopUp, IsTheFirstTrayForThePaperFeedAndNoneForOthers)
{
    EXPECT_EQ(defaultChoice(RuledPopUp::PaperFeed, {u"Plain"_s, u"A4"_s, true}), u"Tray1"_s);
    EXPECT_TRUE(defaultChoice(RuledPopUp::Other, {u"Plain"_s, u"A4"_s, true}).isNull());
}

struct Kept
{
    const char *behaviour;
    KeywordFacts facts; ///< keyword, pending, marked, default, envelope, direction left alone
    KeywordDefault step;
};

void PrintTo(const Kept &row, std::ostream *out)
{
    *out << row.behaviour;
}

class KeywordFollowsItsDefault : public testing::TestWithParam<Kept>
{};

TEST_P(KeywordFollowsItsDefault, ByWhatIsPendingAndMarked)
{
    EXPECT_EQ(keywordDefault(GetParam().facts), GetParam().step);
}

using Step = KeywordDefault::Step;
const KeywordDefault kKeep{};
const QString kThickness = u"VKColorPaperThick"_s;
const QString kDirection = u"VKBiDir"_s;

INSTANTIATE_TEST_SUITE_P(
    All, KeywordFollowsItsDefault,
    testing::Values(
        Kept{"the default is pending",
             {kThickness, u"Regular"_s, QString(), u"Regular"_s, true, true},
             kKeep},
        Kept{"nothing is marked",
             {kThickness, u"Thick"_s, QString(), u"Regular"_s, true, true},
             {Step::OfferDefault, u"Regular"_s}},
        Kept{"nothing is marked and nothing pending",
             {kDirection, QString(), QString(), u"ON"_s, false, false},
             {Step::OfferDefault, u"ON"_s}},
        Kept{"a missing value is not an empty default",
             {kDirection, QString(), QString(), u""_s, false, false},
             {Step::OfferDefault, u""_s}},
        Kept{"an empty value is", {kDirection, u""_s, QString(), u""_s, false, false}, kKeep},
        Kept{"another choice is marked",
             {kThickness, u"Env"_s, u"Thick"_s, u"Regular"_s, true, true},
             kKeep},
        Kept{"the thickness of an envelope",
             {kThickness, u"Env"_s, u"Regular"_s, u"Regular"_s, true, false},
             {Step::SetAndMark, u"Env"_s}},
        Kept{"the thickness of no envelope",
             {kThickness, u"Env"_s, u"Regular"_s, u"Regular"_s, false, true},
             kKeep},
        Kept{"the direction of a postcard",
             {kDirection, u"OFF"_s, u"ON"_s, u"ON"_s, false, true},
             {Step::SetAndMark, u"OFF"_s}},
        Kept{"the direction of another paper",
             {kDirection, u"OFF"_s, u"ON"_s, u"ON"_s, true, false},
             kKeep},
        Kept{"any other keyword",
             {u"VKMediaType"_s, u"Glossy"_s, u"Plain"_s, u"Plain"_s, true, true},
             kKeep}));

} // namespace
