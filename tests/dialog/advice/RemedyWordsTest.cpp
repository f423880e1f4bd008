#include "dialog/advice/RemedyWords.h"

#include "tests/support/CaseName.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

PPDHandle printer()
{
    return PPDSource()
        .option("Medium/Paper Type",
                {"Glossy/Glossy Paper", "Plain/Plain Paper", "Matte/Matte", "Photo/Photo Paper",
                 "Card/Card", "Film/Film", "Cotton/100%1 Cotton %2"})
        .option("Quality/Quality", {"Normal/Normal", "High/High", "Twin/High", "Best/Best"})
        .option("Sides/Two-Sided", {"None/Off", "On/On"})
        .option("Speed/Speed", {"Off/Off", "Slow/Slow", "Best/Best"})
        .open();
}

Remedy remedy(const QList<SettingChange> &changes)
{
    return {changes, {}};
}

SettingChange medium(const QString &to)
{
    return {u"Medium"_s, u"Glossy"_s, to};
}

const SettingChange kSides{u"Sides"_s, u"None"_s, u"On"_s};

struct Wording
{
    std::string behaviour;
    QString choice; ///< of Quality
    Advice::Outcome outcome;
    QList<Remedy> remedies;
    QString sentence;
};

class WordsOf : public testing::TestWithParam<Wording>
{};

TEST_P(WordsOf, Advice)
{
    const auto &[behaviour, choice, outcome, remedies, sentence] = GetParam();
    EXPECT_EQ(adviceSentence(printer().get(), {u"Quality"_s, choice, outcome, remedies, {}}),
              sentence);
}

using enum Advice::Outcome;

const Wording kWordings[] = {
    {"WhatIsThere", u"Normal"_s, Available, {}, u"Normal can be chosen."_s},
    {"OneWay",
     u"Normal"_s,
     Possible,
     {remedy({medium(u"Plain"_s)})},
     u"Normal is not there for Glossy Paper. It is there for Plain Paper."_s},
    {"TheBestWayFirstAndTheOthersAsThePrinterHasThem",
     u"Normal"_s,
     Possible,
     {remedy({medium(u"Card"_s)}), remedy({medium(u"Matte"_s)}), remedy({medium(u"Plain"_s)}),
      remedy({kSides})},
     u"Normal is not there for Glossy Paper. It is there for Card, Plain Paper and Matte."_s},
    {"ManyWays",
     u"Normal"_s,
     Possible,
     {remedy({medium(u"Plain"_s)}), remedy({medium(u"Matte"_s)}), remedy({medium(u"Photo"_s)}),
      remedy({medium(u"Card"_s)}), remedy({medium(u"Film"_s)})},
     u"Normal is not there for Glossy Paper. It is there for Plain Paper, Matte and 3 more."_s},
    {"SettingsOfOnAndOffByTheirTitles",
     u"Normal"_s,
     Possible,
     {remedy({kSides})},
     u"Normal is not there for Two-Sided: Off. It is there for Two-Sided: On."_s},
    {"SeveralSettings",
     u"Normal"_s,
     Possible,
     {remedy({kSides, medium(u"Plain"_s)})},
     u"Normal is not there for Two-Sided: Off and Glossy Paper. It is there with Two-Sided: On "
     u"and Plain Paper."_s},
    {"WhereNothingWasMarked",
     u"Normal"_s,
     Possible,
     {remedy({{u"Medium"_s, QString(), u"Plain"_s}})},
     u"Normal is there for Plain Paper."_s},
    {"TextsThatAnotherSettingHasToo",
     u"Best"_s,
     Impossible,
     {},
     u"No setting of this printer gives Quality: Best."_s},
    {"TwinsByTheirNames",
     u"Twin"_s,
     Unknown,
     {},
     u"There are too many conditions to explain why High [Twin] is not there."_s},
};

INSTANTIATE_TEST_SUITE_P(, WordsOf, testing::ValuesIn(kWordings), CaseName());

struct Titling
{
    std::string behaviour;
    Remedy remedy;
    PPDMark wanted;
    QString title;
};

class TitleOf : public testing::TestWithParam<Titling>
{};

TEST_P(TitleOf, ARemedy)
{
    EXPECT_EQ(remedyTitle(printer().get(), GetParam().remedy, GetParam().wanted), GetParam().title);
}

const Titling kTitlings[] = {
    {"OneChange",
     remedy({medium(u"Plain"_s)}),
     {u"Quality"_s, u"Normal"_s},
     u"Use Plain Paper and use Normal"_s},
    {"OneThatIsTurnedOff",
     remedy({{u"Sides"_s, u"On"_s, u"None"_s}}),
     {u"Medium"_s, u"Matte"_s},
     u"Turn off Two-Sided and use Matte"_s},
    {"NamesWithSignsOfPlaces",
     remedy({medium(u"Cotton"_s)}),
     {u"Quality"_s, u"Normal"_s},
     u"Use 100%1 Cotton %2 and use Normal"_s},
    {"SeveralChanges",
     remedy({kSides, medium(u"Plain"_s)}),
     {u"Speed"_s, u"Off"_s},
     u"Turn on Two-Sided and use Plain Paper and turn off Speed"_s},
};

INSTANTIATE_TEST_SUITE_P(, TitleOf, testing::ValuesIn(kTitlings), CaseName());

TEST(RemediesOfOneSetting, AreAllThatASentenceLists)
{
    const Advice advice{u"Quality"_s,
                        u"Normal"_s,
                        Possible,
                        {remedy({medium(u"Card"_s)}), remedy({kSides}), remedy({medium(u"Film"_s)}),
                         remedy({medium(u"Plain"_s)})},
                        {}};
    EXPECT_EQ(remediesOfOneSetting(printer().get(), advice),
              (QList<Remedy>{remedy({medium(u"Card"_s)}), remedy({medium(u"Plain"_s)}),
                             remedy({medium(u"Film"_s)})}));
}

} // namespace
