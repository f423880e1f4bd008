#include "dialog/printing/SettingOrigins.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using enum SettingOrigin::Kind;

const SettingValues kDefaults{
    {u"Medium"_s, u"Plain"_s}, {u"Quality"_s, u"Normal"_s}, {u"Paper"_s, u"A4"_s}};

SettingValues with(SettingValues values, const QString &name, const QString &value)
{
    values.insert(name, value);
    return values;
}

SettingOrigin of(SettingOrigin::Kind kind)
{
    return {kind, {}, {}};
}

/// A printer whose quality follows the medium.
class Origins : public testing::Test
{
protected:
    Origins() { m_origins.begin(kDefaults, kDefaults, {}); }

    SettingOrigins m_origins;
    const SettingValues m_glossy =
        with(with(kDefaults, u"Medium"_s, u"Glossy"_s), u"Quality"_s, u"Photo"_s);
};

} // namespace

TEST_F(Origins, AreThePrintersAtFirst)
{
    EXPECT_EQ(m_origins.originOf(u"Medium"_s), of(Printer));
    EXPECT_EQ(m_origins.originOf(u"never heard of"_s), of(Printer));
}

TEST_F(Origins, AreWhatWasSavedWhereItWasNamed)
{
    const SettingOrigin preset{Preset, u"photo"_s, {}};
    m_origins.begin(kDefaults, m_glossy, {{u"Medium"_s, preset}, {u"Gone"_s, preset}});
    EXPECT_EQ(m_origins.originOf(u"Medium"_s), preset);
    EXPECT_EQ(m_origins.originOf(u"Quality"_s), of(Rules));
    EXPECT_EQ(m_origins.originOf(u"Paper"_s), of(Printer));
    EXPECT_EQ(m_origins.originOf(u"Gone"_s), of(Printer));
}

TEST_F(Origins, AreNamedThoughTheValueIsTheDefault)
{
    m_origins.begin(kDefaults, kDefaults, {{u"Paper"_s, of(CommandLine)}});
    EXPECT_EQ(m_origins.originOf(u"Paper"_s), of(CommandLine));
}

TEST_F(Origins, AreYouAndWhatFollowsFromYou)
{
    m_origins.takePick(u"Medium"_s, kDefaults, m_glossy);
    EXPECT_EQ(m_origins.originOf(u"Medium"_s), of(You));
    EXPECT_EQ(m_origins.originOf(u"Quality"_s),
              (SettingOrigin{Because, {}, {u"Medium"_s, u"Glossy"_s}}));
    EXPECT_EQ(m_origins.originOf(u"Paper"_s), of(Printer));
}

TEST_F(Origins, AreYoursWhereYouPickWhatRulesHadSet)
{
    m_origins.takePick(u"Medium"_s, kDefaults, m_glossy);
    m_origins.takePick(u"Quality"_s, m_glossy, with(m_glossy, u"Quality"_s, u"Fast"_s));
    EXPECT_EQ(m_origins.originOf(u"Quality"_s), of(You));
    EXPECT_EQ(m_origins.originOf(u"Medium"_s), of(You));
}

TEST_F(Origins, AreYoursWhereNobodyTellsWhatWasPicked)
{
    m_origins.takePick({}, kDefaults, with(kDefaults, u"copies"_s, u"2"_s));
    EXPECT_EQ(m_origins.originOf(u"copies"_s), of(You));
}

TEST_F(Origins, StayWhereAPickWasRefused)
{
    m_origins.takePick(u"Medium"_s, kDefaults, kDefaults);
    EXPECT_EQ(m_origins.originOf(u"Medium"_s), of(Printer));
}

TEST_F(Origins, FollowFromTheLastPickWhereRulesActLater)
{
    m_origins.takePick(u"Paper"_s, kDefaults, with(kDefaults, u"Paper"_s, u"A3"_s));
    m_origins.takeRules(with(kDefaults, u"Paper"_s, u"A3"_s), with(m_glossy, u"Paper"_s, u"A3"_s));
    EXPECT_EQ(m_origins.originOf(u"Medium"_s), (SettingOrigin{Because, {}, {u"Paper"_s, u"A3"_s}}));
    SettingOrigins untouched;
    untouched.begin(kDefaults, kDefaults, {});
    untouched.takeRules(kDefaults, m_glossy);
    EXPECT_EQ(untouched.originOf(u"Medium"_s), of(Rules));
}

TEST_F(Origins, TellOfSettingsThatAreNotSetAnyMore)
{
    const SettingValues two = with(kDefaults, u"copies"_s, u"2"_s);
    m_origins.takePick({}, two, kDefaults);
    EXPECT_EQ(m_origins.originOf(u"copies"_s), of(You));
}
