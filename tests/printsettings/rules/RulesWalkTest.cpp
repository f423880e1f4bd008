#include "printsettings/rules/BorderlessMedia.h"
#include "printsettings/rules/ControlStates.h"
#include "printsettings/rules/DefaultChoices.h"
#include "printsettings/rules/DiscMedia.h"
#include "printsettings/rules/MediaQuality.h"
#include "printsettings/rules/MediumEffects.h"
#include "printsettings/rules/PaperChange.h"
#include "printsettings/rules/PaperKind.h"
#include "printsettings/rules/PrintDirection.h"
#include "printsettings/rules/TwoSidedMedium.h"

#include <QtCore/QStringList>

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;

// Every state that the rules can be asked about: every paper after every other one, with and
// without two-sided printing and colours by the printer, every medium, quality, thickness and
// direction that may be pending. What holds in all of them is written out here by hand; where the
// rules make an exception, it stands by name, and must occur.

namespace {

const QStringList kPlain = {u"Plain"_s, u"PlainDuplex"_s, u"HagakiAtena"_s};
const QStringList kDiscs = {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s};
const QStringList kOthers = {u"Inkjet"_s,         u"VelkaroQM41Matte"_s, u"VelkaroGlossy"_s,
                             u"VelkaroGlossyR"_s, u"Glossy"_s,           u"HagakiUra"_s,
                             u"Transparencies"_s};
const QStringList kQualities = {u"PlainFast"_s, u"PlainNormal"_s, u"High"_s,  u"Best"_s,
                                u"Fast"_s,      u"Normal"_s,      u"Photo"_s, u"DiscNormal"_s,
                                u"DiscSlow"_s,  u"Elsewhere"_s};

// Every name that a rule lists or looks for, with and without its variants.
const QStringList kPaperNames = {u"A4"_s,
                                 u"A4.Fullbleed"_s,
                                 u"A3"_s,
                                 u"A3.Fullbleed"_s,
                                 u"A3.ShortGrain"_s,
                                 u"VkA3"_s,
                                 u"VkA3_B"_s,
                                 u"VkA3_S"_s,
                                 u"Letter"_s,
                                 u"Letter.Fullbleed"_s,
                                 u"Legal"_s,
                                 u"Executive"_s,
                                 u"Tabloid"_s,
                                 u"Tabloid.Fullbleed"_s,
                                 u"B4"_s,
                                 u"B5"_s,
                                 u"A5"_s,
                                 u"A6"_s,
                                 u"A6.Fullbleed"_s,
                                 u"4x6"_s,
                                 u"4x6.Fullbleed"_s,
                                 u"3.5x5"_s,
                                 u"3.5x5.Fullbleed"_s,
                                 u"Postcard"_s,
                                 u"Postcard.Fullbleed"_s,
                                 u"VkHagaki_B"_s,
                                 u"DoublePostcardRotated"_s,
                                 u"EnvDL"_s,
                                 u"Env10"_s,
                                 u"EnvChou3"_s,
                                 u"EnvChou3.Fullbleed"_s,
                                 u"EnvYou4"_s,
                                 u"120x120mm"_s,
                                 u"120x120mm.Wide"_s,
                                 u"VkDisc12cm"_s,
                                 u"Custom.300x400"_s,
                                 u"Custom_B12cm"_s,
                                 u"UnsupportedPaper"_s};

QStringList everyMedium()
{
    return kPlain + kDiscs + kOthers + QStringList{u"Elsewhere"_s};
}

struct Paper
{
    QString name;
    bool disc = isDiscPaper(name);
    bool borderless = isBorderlessPaper(name);
};

const std::vector<Paper> &papers()
{
    static const std::vector<Paper> all = [] {
        std::vector<Paper> list;
        for (const QString &name : kPaperNames)
            list.push_back({name});
        return list;
    }();
    return all;
}

/// What is pending.
struct Values
{
    QString medium;
    QString quality;
    QString direction;

    friend bool operator==(const Values &, const Values &) = default;
};

/// What the values are held against.
struct Job
{
    const Paper *paper;
    bool duplex;
    bool directionLeftAlone;
};

// A dialog that takes everything. The steps and their order are those of the panel's
// checkConstraints(); what it offers stands in the tests of the panel.
void allow(Values &values, const QString &medium, const Job &job)
{
    const AllowedQualities allowed = allowedQualities(medium, job.paper->disc, job.duplex);
    if (!allowed.replacement.isNull()) {
        values.medium = allowed.replacement;
        values.quality = defaultQuality(allowed.replacement, job.paper->name);
    }
    if (!allowed.qualities.contains(values.quality))
        values.quality = defaultQuality(medium, job.paper->name);
}

void correctBorderless(Values &values, const Job &job)
{
    const BorderlessCorrection correction =
        borderlessCorrection(values.medium, values.quality, job.paper->name);
    if (!correction.mediaType.isNull())
        values.medium = correction.mediaType;
    if (!correction.qualityOf.isNull())
        values.quality = defaultQuality(correction.qualityOf, job.paper->name);
    if (!correction.direction.isNull())
        values.direction = correction.direction;
}

Values constrained(Values values, const Job &job)
{
    allow(values, values.medium, job);
    if (job.paper->borderless)
        correctBorderless(values, job);
    if (job.directionLeftAlone)
        values.direction = u"OFF"_s;
    if (job.duplex)
        values.medium = u"PlainDuplex"_s;
    return values;
}

class RulesWalk : public testing::Test
{
protected:
    // Kept once each with an example: a broken rule breaks thousands of states.
    void expect(bool holds, const char *what, const Values &values, const Job &job)
    {
        if (!holds)
            faults.try_emplace(what, values.medium + u'/' + values.quality + u' ' +
                                         job.paper->name + (job.duplex ? u" two-sided"_s : u""_s));
    }

    void TearDown() override
    {
        for (const auto &[what, where] : faults)
            ADD_FAILURE() << what << "\n  " << qPrintable(where);
        for (const auto &[name, occurred] : exceptions)
            EXPECT_GT(occurred, 0) << name;
        RecordProperty("states", static_cast<int>(states));
    }

    void walkValues(const QString &medium, const Paper &paper);
    void check(const Values &pending, const Job &job);
    void checkQuality(const Values &values, const Job &job, bool mediumKept);
    void checkControls(const Values &values, const Job &job);

    long states = 0;
    std::map<std::string, QString> faults;
    std::map<std::string, long> exceptions = {
        {"a glossy disc starts with a quality that it does not allow", 0},
        {"two-sided printing takes the medium and leaves its quality", 0},
    };
};

void RulesWalk::checkQuality(const Values &values, const Job &job, bool mediumKept)
{
    const AllowedQualities allowed = allowedQualities(values.medium, job.paper->disc, job.duplex);
    if (allowed.qualities.contains(values.quality)) {
        const bool available = !job.paper->borderless || !kPlain.contains(values.medium) ||
                               !unavailableWithoutBorders(job.paper->name).contains(values.quality);
        expect(available, "a quality is pending that the borderless paper does not take", values,
               job);
    } else if (!mediumKept) {
        ++exceptions["two-sided printing takes the medium and leaves its quality"];
    } else {
        const bool glossyDisc =
            values.medium == "GlossyPrintableDisc"_L1 && values.quality == "Photo"_L1;
        expect(glossyDisc, "a quality is pending that the medium does not allow", values, job);
        ++exceptions["a glossy disc starts with a quality that it does not allow"];
    }
}

// A box that is switched off is committed as off; one that is usable keeps its tick.
void RulesWalk::checkControls(const Values &values, const Job &job)
{
    ControlFacts facts;
    facts.mediaType = values.medium;
    facts.quality = values.quality;
    facts.directionLeftAlone = job.directionLeftAlone;
    const BoxState state = controlStates(facts).direction;
    const bool oneWay = values.quality == "Photo"_L1 || values.quality == "Best"_L1 ||
                        kDiscs.contains(values.medium) || values.medium == "Inkjet"_L1 ||
                        values.medium == "VelkaroQM41Matte"_L1 ||
                        values.medium == "Transparencies"_L1;
    expect((state == BoxState::DisabledAndOff) == oneWay, "the direction does not follow", values,
           job);
    expect(!job.directionLeftAlone || state != BoxState::Usable,
           "the direction of an envelope or a postcard can be chosen", values, job);
}

void RulesWalk::check(const Values &pending, const Job &job)
{
    ++states;
    const Values first = constrained(pending, job);
    const bool mediumKept = !job.duplex || kPlain.contains(pending.medium);
    checkQuality(first, job, mediumKept && !(job.duplex && job.paper->disc));
    checkControls(first, job);
    const Values second = constrained(first, job);
    expect(!mediumKept || second == first, "the constraints change their own outcome", pending,
           job);
    expect(second == first || constrained(second, job) == second, "the constraints never settle",
           pending, job);
    expect(!job.directionLeftAlone || first.direction == "OFF"_L1,
           "an envelope or a postcard is printed in both directions", pending, job);
    expect(!job.duplex || first.medium == "PlainDuplex"_L1, "two-sided on another medium", pending,
           job);
    expect(job.duplex || job.paper->disc == kDiscs.contains(first.medium),
           "the medium does not go with the disc", pending, job);
}

void RulesWalk::walkValues(const QString &medium, const Paper &paper)
{
    for (const QString &thickness : {u"Regular"_s, u"Thick"_s, u"Env"_s}) {
        const bool leftAlone =
            leavesDirectionAlone(paper.name, countsAsEnvelope(paper.name, thickness));
        for (const bool duplex : {false, true}) {
            for (const QString &quality : kQualities) {
                for (const QString &direction : {u"ON"_s, u"OFF"_s})
                    check({medium, quality, direction}, {&paper, duplex, leftAlone});
            }
        }
    }
}

// The same paper again is no change.
QString mediumOnPaper(const QString &medium, const Paper &before, const Paper &paper)
{
    const QString set = &before == &paper ? QString() : mediumForDisc(before.disc, paper.disc);
    return set.isNull() ? medium : set;
}

TEST_F(RulesWalk, TheConstraintsLeaveEveryStateConsistent)
{
    for (const Paper &before : papers()) {
        for (const Paper &paper : papers()) {
            for (const QString &pending : everyMedium())
                walkValues(mediumOnPaper(pending, before, paper), paper);
        }
    }
    EXPECT_GT(states, 2000000);
}

TEST(EveryMedium, HasQualitiesAndOneReplacementAtMost)
{
    for (const QString &medium : everyMedium()) {
        for (const bool disc : {false, true}) {
            for (const bool duplex : {false, true}) {
                const AllowedQualities allowed = allowedQualities(medium, disc, duplex);
                EXPECT_FALSE(allowed.qualities.isEmpty()) << qPrintable(medium);
                EXPECT_EQ(QStringList(allowed.qualities).removeDuplicates(), 0);
                if (allowed.replacement.isNull())
                    continue;
                EXPECT_TRUE(
                    allowedQualities(allowed.replacement, disc, duplex).replacement.isNull())
                    << qPrintable(medium);
            }
        }
    }
}

TEST(EveryMedium, StartsWithAQualityThatItAllowsButForGlossyDiscs)
{
    for (const Paper &paper : papers()) {
        for (const QString &medium : everyMedium()) {
            for (const bool duplex : {false, true}) {
                const AllowedQualities allowed = allowedQualities(medium, paper.disc, duplex);
                const QString used = allowed.replacement.isNull() ? medium : allowed.replacement;
                EXPECT_EQ(allowedQualities(used, paper.disc, duplex)
                              .qualities.contains(defaultQuality(used, paper.name)),
                          used != "GlossyPrintableDisc"_L1)
                    << qPrintable(used + u' ' + paper.name);
            }
        }
    }
}

TEST(EveryMedium, HasEffectsThatGoTogether)
{
    for (const QString &medium : everyMedium()) {
        const MediumEffects effects = mediumEffects(medium);
        EXPECT_TRUE(effects.slowDrying || !effects.slowDryingOn) << qPrintable(medium);
        EXPECT_TRUE(effects.naturalAtFirst || !effects.natural) << qPrintable(medium);
        EXPECT_EQ(effects.bothDirections, kPlain.contains(medium)) << qPrintable(medium);
        EXPECT_EQ(directionOfMedium(medium), effects.bothDirections ? u"ON"_s : u"OFF"_s);
    }
}

bool disables(const std::vector<MediaChange> &changes, const QString &medium)
{
    bool disabled = false;
    for (const MediaChange &change : changes) {
        if (change.media.contains(medium))
            disabled = !change.enable;
    }
    return disabled;
}

TEST(TheDefaultMedium, IsNeverOneThatThePaperDisables)
{
    for (const bool disc : {false, true}) {
        const QString medium = defaultChoice(RuledPopUp::Medium, {u"Glossy"_s, u"A4"_s, disc});
        EXPECT_FALSE(disables(constrainedMedia(disc), medium)) << qPrintable(medium);
        for (const bool borderless : {false, true})
            EXPECT_FALSE(disables(shownMedia(disc, borderless), medium)) << qPrintable(medium);
    }
}

TEST(ASavedMedium, IsTheSameWhenItIsSavedAgain)
{
    for (const QString &medium : everyMedium()) {
        for (const bool duplex : {false, true}) {
            const SavedValues first = savedByUnshownPanel(medium, duplex);
            const QString saved = first.mediaType.isNull() ? medium : first.mediaType;
            const SavedValues second = savedByUnshownPanel(saved, duplex);
            EXPECT_TRUE(second.mediaType.isNull() || second.mediaType == saved)
                << qPrintable(medium);
        }
    }
}

} // namespace
