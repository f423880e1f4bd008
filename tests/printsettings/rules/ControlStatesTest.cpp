#include "printsettings/rules/ControlStates.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Direction
{
    QString mediaType;
    QString quality;
    bool leftAlone;
    BoxState state;
};

class DirectionBox : public testing::TestWithParam<Direction>
{};

TEST_P(DirectionBox, FollowsMediumQualityAndPaper)
{
    const Direction &row = GetParam();
    ControlFacts facts;
    facts.mediaType = row.mediaType;
    facts.quality = row.quality;
    facts.directionLeftAlone = row.leftAlone;
    ControlStates expected;
    expected.direction = row.state;
    EXPECT_EQ(controlStates(facts), expected) << qPrintable(row.mediaType + u'/' + row.quality);
}

INSTANTIATE_TEST_SUITE_P(
    All, DirectionBox,
    testing::Values(Direction{u"Plain"_s, u"PlainNormal"_s, false, BoxState::Usable},
                    Direction{u"Glossy"_s, u"Fast"_s, false, BoxState::Usable},
                    Direction{QString(), QString(), false, BoxState::Usable},
                    // Qualities that take one direction.
                    Direction{u"Plain"_s, u"Best"_s, false, BoxState::DisabledAndOff},
                    Direction{u"VelkaroGlossy"_s, u"Photo"_s, false, BoxState::DisabledAndOff},
                    Direction{u"Plain"_s, u"best"_s, false, BoxState::Usable},
                    // Media that take one direction.
                    Direction{u"PrintableDisc"_s, u"DiscNormal"_s, false, BoxState::DisabledAndOff},
                    Direction{u"GlossyPrintableDisc"_s, u"DiscNormal"_s, false,
                              BoxState::DisabledAndOff},
                    Direction{u"Inkjet"_s, u"Normal"_s, false, BoxState::DisabledAndOff},
                    Direction{u"VelkaroQM41Matte"_s, u"Normal"_s, false, BoxState::DisabledAndOff},
                    Direction{u"Transparencies"_s, u"Normal"_s, false, BoxState::DisabledAndOff},
                    Direction{u"Inkjet"_s, QString(), false, BoxState::DisabledAndOff},
                    // Envelopes and postcards keep the tick, unless medium or quality takes it.
                    Direction{u"Plain"_s, u"PlainNormal"_s, true, BoxState::Disabled},
                    Direction{u"Plain"_s, u"Best"_s, true, BoxState::DisabledAndOff},
                    Direction{u"Inkjet"_s, u"Normal"_s, true, BoxState::DisabledAndOff}));

TEST(ControlStates, AreUsableByThemselves)
{
    EXPECT_EQ(controlStates({}), ControlStates());
}

TEST(ControlStates, SwitchOffWhatIsUnavailable)
{
    ControlFacts facts;
    facts.slowDryingUnavailable = true;
    facts.transparenciesPending = true;
    facts.jpegUnavailable = true;
    EXPECT_EQ(controlStates(facts), (ControlStates{BoxState::Usable, BoxState::DisabledAndOff,
                                                   BoxState::Disabled, false}));
}

} // namespace
