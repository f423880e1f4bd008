#include "panel/PPDCheck.h"

#include "panel/KeywordControls.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

void PrintTo(const PPDFinding &finding, std::ostream *out)
{
    *out << finding.sentence.data() << ": " << finding.names.join(u' ').toStdString();
}

namespace {

using Findings = QList<PPDFinding>;

class PPDCheckTest : public testing::Test
{
protected:
    PPDHandle ppd = PPDSource()
                        .optionWithDefault("Finish", {"Matt", "shiny"}, "MATT")
                        .option("Box", {"off", "ON", "Maybe"})
                        .option("Mirror", {"False", "True"})
                        .open();
    PPDCheck check{ppd.get()};
};

TEST_F(PPDCheckTest, KnowsTheChoicesAsTheyAreSpelt)
{
    EXPECT_TRUE(check.has(u"finish"_s));
    EXPECT_FALSE(check.has(u"Coat"_s));
    EXPECT_EQ(check.choices(u"FINISH"_s), (QStringList{u"Matt"_s, u"shiny"_s}));
    EXPECT_EQ(check.choices(u"Coat"_s), QStringList());
}

TEST_F(PPDCheckTest, TellsOtherLettersFromMissingAndUnknownChoices)
{
    check.expectChoices(u"Finish"_s, {u"Matt"_s, u"Shiny"_s, u"Coarse"_s});
    check.expectNoOthersThan(u"Finish"_s, {u"Shiny"_s});
    EXPECT_EQ(check.findings(), (Findings{{"PPD Letters"_L1, {u"Finish"_s, u"shiny"_s, u"Shiny"_s}},
                                          {"PPD Choice Missing"_L1, {u"Finish"_s, u"Coarse"_s}},
                                          {"PPD Choice Unknown"_L1, {u"Finish"_s, u"Matt"_s}}}));
}

TEST_F(PPDCheckTest, PassesOverKeywordsThatThePPDLacks)
{
    check.expectChoices(u"Coat"_s, {u"Thin"_s});
    check.expectNoOthersThan(u"Coat"_s, {u"Thin"_s});
    check.expectSpelling(u"Coat"_s, {u"Thin"_s});
    check.expectDefault(u"Coat"_s);
    EXPECT_EQ(check.findings(), Findings());
}

TEST_F(PPDCheckTest, MissesAPartnerThatIsAKeywordAChoiceOrAnAttribute)
{
    check.expectPartner(u"Finish"_s, u"Box"_s);
    check.expectPartner(u"Finish"_s, u"Box"_s, u"on"_s);
    EXPECT_EQ(check.findings(), Findings());
    check.expectPartner(u"Finish"_s, u"Coat"_s);
    check.expectPartner(u"Finish=Matt"_s, u"Box"_s, u"Never"_s);
    check.expectAttribute(u"Finish"_s, "SomeAttribute");
    EXPECT_EQ(check.findings(),
              (Findings{{"PPD Partner Missing"_L1, {u"Finish"_s, u"Coat"_s}},
                        {"PPD Partner Missing"_L1, {u"Finish=Matt"_s, u"Box=Never"_s}},
                        {"PPD Partner Missing"_L1, {u"Finish"_s, u"SomeAttribute"_s}}}));
}

TEST_F(PPDCheckTest, ChecksTheBoxesAndTheDefaultsOfATable)
{
    static constexpr KeywordControl kTable[] = {
        {"Finish"_L1, "finishPopup"_L1, "finishLabel"_L1},
        {"Box"_L1, "box"_L1, {}},
        {"Mirror"_L1, {}, "label"_L1},
    };
    check.expectControls(kTable);
    EXPECT_EQ(check.findings(), (Findings{{"PPD Default"_L1, {u"Finish"_s, u"MATT"_s}},
                                          {"PPD Letters"_L1, {u"Box"_s, u"off"_s, u"OFF"_s}},
                                          {"PPD Choice Unknown"_L1, {u"Box"_s, u"Maybe"_s}}}));
}

} // namespace
