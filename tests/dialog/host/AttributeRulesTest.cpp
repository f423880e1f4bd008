#include "dialog/host/AttributeRules.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

AttributeRules rulesIn(const QByteArray &entry)
{
    // A document is an object or an array: what stands in it is what is meant.
    const QByteArray document = "{\"entry\": " + entry + '}';
    return attributeRules(QJsonDocument::fromJson(document).toVariant().toMap()[u"entry"_s]);
}

TEST(AttributeRules, AreTheRowsOfTheEntry)
{
    const AttributeRules read = rulesIn(
        R"([{"Keyword": "ExTone", "Choice": "Grey", "Attribute": "print-color-mode",
             "Value": "monochrome"},
            {"Keyword": "ExToner", "Choice": "Save", "Attribute": "print-quality", "Value": "3"}])");
    EXPECT_EQ(read.wrongRow, 0);
    EXPECT_EQ(read.rules, (QList<AttributeRule>{
                              {{{u"ExTone"_s, u"Grey"_s}}, u"print-color-mode"_s, u"monochrome"_s},
                              {{{u"ExToner"_s, u"Save"_s}}, u"print-quality"_s, u"3"_s}}));
}

TEST(AttributeRules, AreNoneWithoutTheEntry)
{
    EXPECT_EQ(attributeRules({}).wrongRow, 0);
    EXPECT_EQ(rulesIn("[]").wrongRow, 0);
    EXPECT_TRUE(rulesIn("[]").rules.isEmpty());
}

struct WrongEntry
{
    const char *behaviour;
    std::string entry;
    int row;
};

class AWrongEntry : public testing::TestWithParam<WrongEntry>
{};

TEST_P(AWrongEntry, IsToldByItsFirstWrongRow)
{
    EXPECT_EQ(rulesIn(QByteArray::fromStdString(GetParam().entry)).wrongRow, GetParam().row);
}

std::string rule(const std::string &attribute, const std::string &value)
{
    return R"({"Keyword": "A", "Choice": "B", "Attribute": ")" + attribute + R"(", "Value": ")" +
           value + "\"}";
}

INSTANTIATE_TEST_SUITE_P(
    Table, AWrongEntry,
    testing::Values(
        WrongEntry{"NoList", R"({"Keyword": "A"})", 1},
        WrongEntry{"AText", R"("print-quality")", 1}, WrongEntry{"NoObject", "[7]", 1},
        WrongEntry{"WithoutItsValue", R"([{"Keyword": "A", "Choice": "B", "Attribute": "sides"}])",
                   1},
        WrongEntry{"OfMoreMembers",
                   R"([{"Keyword": "A", "Choice": "B", "Attribute": "print-quality",
                                    "Value": "3", "Also": "4"}])",
                   1},
        WrongEntry{"OfNoChoice",
                   R"([{"Keyword": "A", "Choice": "", "Attribute": "print-quality",
                                    "Value": "3"}])",
                   1},
        WrongEntry{"Paper", "[" + rule("media", "iso_a4_210x297mm") + "]", 1},
        WrongEntry{"OfNoStandard", "[" + rule("print-magic", "3") + "]", 1},
        WrongEntry{"QualityInWords", "[" + rule("print-quality", "high") + "]", 1},
        WrongEntry{"NoSides", "[" + rule("sides", "both") + "]", 1},
        WrongEntry{"WithSpaces", "[" + rule("print-color-mode", "two colours") + "]", 1},
        WrongEntry{"OfNoText", "[" + rule("output-bin", "") + "]", 1},
        WrongEntry{"FinishingOfNoStandard", "[" + rule("finishings", "2") + "]", 1},
        WrongEntry{"FinishingBeyondAll", "[" + rule("finishings", "1000") + "]", 1},
        WrongEntry{"FinishingWithASign", "[" + rule("finishings", "+4") + "]", 1},
        WrongEntry{"SecondRow", "[" + rule("sides", "one-sided") + ", " + rule("raw", "true") + "]",
                   2}),
    CaseName());

} // namespace
