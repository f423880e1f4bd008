#include "dialog/advice/RemedySearch.h"

#include "dialog/advice/Scratch.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// "A=1 B=2"
using Settings = std::map<QString, QString>;

Settings settings(const QString &text)
{
    Settings all;
    for (const QString &one : text.split(u' ', Qt::SkipEmptyParts))
        all.emplace(one.section(u'=', 0, 0), one.section(u'=', 1));
    return all;
}

/// A printer that is a table: settings from 0 to 2, and what gives the wanted choice.
struct Printer
{
    std::string behaviour;
    QString base;             ///< "A=0 B=0"
    QStringList gives;        ///< settings that give the choice when all of them are so
    QStringList notNoticed;   ///< keywords that make no difference to anything else
    QMap<QString, int> costs; ///< "A=1" to how many other settings that changes
    int trials = 1000;
    Advice::Outcome outcome = Advice::Outcome::Possible;
    QStringList remedies; ///< "A=1 B=1", in order
};

class TableScratch : public Scratch
{
public:
    explicit TableScratch(const Printer &printer)
        : m_printer(printer), m_base(settings(printer.base)), m_left(printer.trials)
    {}

    bool isHad() override { return isGiven(m_base); }

    bool tryEach(const QList<SettingChange> &made, Look,
                 const std::function<bool(const SettingChange &)> &filter,
                 const std::function<void(const Trial &)> &take) override
    {
        Settings ground = m_base;
        for (const SettingChange &change : made)
            ground[change.keyword] = change.to;
        for (const auto &[keyword, from] : ground)
            for (const QString &to : {u"0"_s, u"1"_s, u"2"_s}) {
                const SettingChange change{keyword, from, to};
                if (from == to || ground[keyword] != m_base[keyword] || !filter(change))
                    continue;
                if (m_left-- == 0)
                    return false;
                take(trialOf(ground, change));
            }
        return true;
    }

private:
    bool isGiven(const Settings &now) const
    {
        return std::ranges::any_of(m_printer.gives, [&](const QString &needed) {
            return std::ranges::all_of(
                settings(needed), [&](const auto &one) { return now.at(one.first) == one.second; });
        });
    }

    Trial trialOf(Settings now, const SettingChange &change) const
    {
        now[change.keyword] = change.to;
        Trial trial{change, isGiven(now), false, {}, {}, {}};
        for (int count = m_printer.costs.value(change.keyword + u'=' + change.to); count > 0;
             --count)
            trial.beside += SettingChange{u"other%1"_s.arg(count), u"0"_s, u"1"_s};
        for (const auto &[keyword, choice] : now)
            trial.state += (keyword + choice).toLatin1();
        if (!m_printer.notNoticed.contains(change.keyword))
            trial.effect = change.to.toLatin1();
        return trial;
    }

    const Printer &m_printer;
    Settings m_base;
    int m_left;
};

QStringList words(const QList<Remedy> &remedies)
{
    QStringList all;
    for (const Remedy &remedy : remedies) {
        QStringList changes;
        for (const SettingChange &change : remedy.changes)
            changes += change.keyword + u'=' + change.to;
        all += changes.join(u' ');
    }
    return all;
}

class RemediesOf : public testing::TestWithParam<Printer>
{};

TEST_P(RemediesOf, AreTheSmallestSetsOfChanges)
{
    TableScratch scratch(GetParam());
    const FoundRemedies found = findRemedies(scratch);
    EXPECT_EQ(found.outcome, GetParam().outcome);
    EXPECT_EQ(words(found.remedies), GetParam().remedies);
}

const Printer kPrinters[] = {
    {"NothingIsChangedForWhatIsThere",
     u"A=0 B=0"_s,
     {u"A=0"_s},
     {},
     {},
     0,
     Advice::Outcome::Available,
     {}},
    {"OneSettingInEveryWay",
     u"A=0 B=0 C=0"_s,
     {u"A=1"_s, u"C=2"_s},
     {},
     {},
     1000,
     Advice::Outcome::Possible,
     {u"A=1"_s, u"C=2"_s}},
    {"TheOneThatChangesLeastBesideFirst",
     u"A=0 B=0 C=0"_s,
     {u"A=1"_s, u"B=1"_s, u"C=2"_s},
     {},
     {{u"A=1"_s, 2}, {u"B=1"_s, 1}},
     1000,
     Advice::Outcome::Possible,
     {u"C=2"_s, u"B=1"_s, u"A=1"_s}},
    {"NoTwoWhereOneDoes",
     u"A=0 B=0 C=0"_s,
     {u"C=1"_s, u"A=1 B=1"_s},
     {},
     {},
     1000,
     Advice::Outcome::Possible,
     {u"C=1"_s}},
    {"TwoOnceInWhateverOrder",
     u"A=0 B=0 C=0"_s,
     {u"A=1 C=2"_s},
     {},
     {},
     1000,
     Advice::Outcome::Possible,
     {u"A=1 C=2"_s}},
    {"TwoOfWhichOneIsNotNoticed",
     u"A=0 B=0 C=0"_s,
     {u"A=1 C=2"_s},
     {u"A"_s},
     {},
     1000,
     Advice::Outcome::Possible,
     {u"C=2 A=1"_s}},
    {"ThreeSettings",
     u"A=0 B=0 C=0 D=0"_s,
     {u"A=1 B=2 D=1"_s},
     {},
     {},
     1000,
     Advice::Outcome::Possible,
     {u"A=1 B=2 D=1"_s}},
    {"NoneBeyondThree",
     u"A=0 B=0 C=0 D=0"_s,
     {u"A=1 B=1 C=1 D=1"_s},
     {},
     {},
     1000,
     Advice::Outcome::Impossible,
     {}},
    {"NotKnownWithoutTime",
     u"A=0 B=0 C=0 D=0"_s,
     {u"D=1"_s},
     {},
     {},
     3,
     Advice::Outcome::Unknown,
     {}},
    {"WhatWasFoundInTime",
     u"A=0 B=0 C=0 D=0"_s,
     {u"A=1"_s, u"D=1"_s},
     {},
     {},
     3,
     Advice::Outcome::Possible,
     {u"A=1"_s}},
};

INSTANTIATE_TEST_SUITE_P(, RemediesOf, testing::ValuesIn(kPrinters), CaseName());

} // namespace
