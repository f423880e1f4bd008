#include "dialog/host/PrinterMatch.h"
#include "tests/support/CaseName.h"
#include "tests/support/PPDSource.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const PrinterFacts kPrinter{u"Velkaro"_s,
                            u"Velkaro PX-330C [v2]"_s,
                            {u"PageSize"_s, u"VKMediaType"_s},
                            {{u"cupsModelNumber"_s, u"14"_s}, {u"Product"_s, u"PX-330C"_s}}};

QVariant printers(const char *json)
{
    return QJsonDocument::fromJson(json).array().toVariantList();
}

constexpr qsizetype kNoMatch = -1;

struct Match
{
    const char *behaviour;
    const char *printers; // JSON
    qsizetype length;
};

class PrinterMatch : public testing::TestWithParam<Match>
{};

TEST_P(PrinterMatch, HasTheLength)
{
    EXPECT_EQ(matchLength(printers(GetParam().printers), kPrinter).value_or(kNoMatch),
              GetParam().length);
}

const Match kMatches[] = {
    // What fits, and how closely.
    {"ManufacturerCountsItsCharacters", R"([{"Manufacturer": "Velkaro"}])", 7},
    {"CaseDoesNotMatter", R"([{"Manufacturer": "VELKARO"}])", 7},
    {"WildcardsDoNotCount", R"([{"Model": "*PX-33??*"}])", 5},
    {"ManufacturerAndModelCountTogether",
     R"([{"Manufacturer": "Velkaro", "Model": "Velkaro PX-*"}])", 18},
    {"AnyPrinter", R"([{"Manufacturer": "*"}])", 0},
    {"KeywordDoesNotCount", R"([{"Keyword": "VKMediaType"}])", 0},
    {"KeywordsMayBePatterns", R"([{"Keyword": "VK*"}])", 0},
    {"AttributesDoNotCount", R"([{"Attributes": {"cupsModelNumber": "1[0-9]"}}])", 0},
    {"AttributeNamesAreFoundAsLibcupsDoes", R"([{"Attributes": {"PRODUCT": "PX-*"}}])", 0},
    {"LongestOfSeveralCounts",
     R"([{"Keyword": "VK*"}, {"Model": "Velkaro*"}, {"Manufacturer": "V*"}])", 7},
    {"OneOfSeveralIsEnough", R"([{"Manufacturer": "Example"}, {"Keyword": "VK*"}])", 0},
    // What does not.
    {"OtherManufacturer", R"([{"Manufacturer": "Example"}])", kNoMatch},
    {"PatternIsForTheWholeName", R"([{"Model": "PX-330C"}])", kNoMatch},
    {"AllMembersMustFit", R"([{"Manufacturer": "Velkaro", "Keyword": "ExTray"}])", kNoMatch},
    {"AllAttributesMustFit", R"([{"Attributes": {"cupsModelNumber": "14", "Product": "MX*"}}])",
     kNoMatch},
    {"AttributeThatIsNotThere", R"([{"Attributes": {"1284DeviceID": "*"}}])", kNoMatch},
    {"NoAttributes", R"([{"Attributes": {}}])", kNoMatch},
    {"UnknownMember", R"([{"Manufacturer": "Velkaro", "Modell": "*"}])", kNoMatch},
    {"NoMembers", "[{}]", kNoMatch},
    {"NoDescriptions", "[]", kNoMatch},
    {"NoObject", R"(["Velkaro", 5, null])", kNoMatch},
    {"PatternThatIsNoText", R"([{"Manufacturer": ["Velkaro"]}])", kNoMatch},
};

INSTANTIATE_TEST_SUITE_P(Descriptions, PrinterMatch, testing::ValuesIn(kMatches), CaseName());

TEST(PrinterMatchList, MustBeAList)
{
    EXPECT_FALSE(matchLength(QVariant(), kPrinter));
    EXPECT_FALSE(matchLength(u"Velkaro"_s, kPrinter));
}

struct Choice
{
    const char *behaviour;
    QList<BundleCandidate> candidates;
    QString chosen;
};

class BestBundle : public testing::TestWithParam<Choice>
{};

TEST_P(BestBundle, IsChosen)
{
    EXPECT_EQ(bestBundle(GetParam().candidates, kPrinter), GetParam().chosen);
}

const Choice kChoices[] = {
    {"TheOneThatFits",
     {{u"a"_s, printers(R"([{"Manufacturer": "Example"}])")},
      {u"b"_s, printers(R"([{"Keyword": "VK*"}])")}},
     u"b"_s},
    {"TheLongerMatch",
     {{u"a"_s, printers(R"([{"Manufacturer": "Velkaro"}])")},
      {u"b"_s, printers(R"([{"Manufacturer": "Velkaro", "Model": "*PX*"}])")},
      {u"c"_s, printers(R"([{"Keyword": "VK*"}])")}},
     u"b"_s},
    {"TheFirstOfEqualOnes",
     {{u"a"_s, printers(R"([{"Keyword": "VK*"}])")}, {u"b"_s, printers(R"([{"Model": "*"}])")}},
     u"a"_s},
    {"NoneThatDoesNotFit", {{u"a"_s, QVariant()}, {u"b"_s, printers("[{}]")}}, QString()},
    {"NoneOfNone", {}, QString()},
};

INSTANTIATE_TEST_SUITE_P(Bundles, BestBundle, testing::ValuesIn(kChoices), CaseName());

TEST(PrinterFacts, AreReadFromThePPD)
{
    const PPDHandle ppd = PPDSource()
                              .modelName("Velkaro PX-9")
                              .attribute("Manufacturer", "Velkaro")
                              .attribute("VKClass", "newer")
                              .option("VKMediaType/Medium", {"Plain", "Glossy"})
                              .open();
    const PrinterFacts facts = printerFacts(ppd.get());
    EXPECT_EQ(facts.manufacturer, u"Velkaro"_s);
    EXPECT_EQ(facts.model, u"Velkaro PX-9"_s);
    EXPECT_TRUE(facts.keywords.contains(u"VKMediaType"_s));
    EXPECT_EQ(matchLength(printers(R"([{"Attributes": {"VKClass": "new*"}}])"), facts), 0);
}

} // namespace
