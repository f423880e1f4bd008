#include "dialog/cups/Supplies.h"
#include "dialog/cups/IppAnswer.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Left = SupplyState;

constexpr QRgb kCyan = 0xff00ffff;
constexpr QRgb kMagenta = 0xffff00ff;
constexpr QRgb kYellow = 0xffffff00;
constexpr QRgb kBlack = 0xff000000;

/// What a printer says of its supplies; an empty list: nothing.
struct Told
{
    const char *behaviour;
    std::vector<const char *> names;
    std::vector<const char *> colors;
    std::vector<const char *> types;
    std::vector<int> levels;
    std::vector<int> low;
    std::vector<int> high;
    QList<Supply> supplies;
};

void PrintTo(const Told &row, std::ostream *out)
{
    *out << row.behaviour;
}

void add(ipp_t *printer, const char *name, ipp_tag_t tag, const std::vector<const char *> &values)
{
    if (!values.empty())
        ippAddStrings(printer, IPP_TAG_PRINTER, tag, name, static_cast<int>(values.size()), nullptr,
                      values.data());
}

void add(ipp_t *printer, const char *name, const std::vector<int> &values)
{
    if (!values.empty())
        ippAddIntegers(printer, IPP_TAG_PRINTER, IPP_TAG_INTEGER, name,
                       static_cast<int>(values.size()), values.data());
}

IppHandle answer(const Told &row)
{
    IppHandle printer(ippNew());
    add(printer.get(), "marker-names", IPP_TAG_NAME, row.names);
    add(printer.get(), "marker-colors", IPP_TAG_NAME, row.colors);
    add(printer.get(), "marker-types", IPP_TAG_KEYWORD, row.types);
    add(printer.get(), "marker-levels", row.levels);
    add(printer.get(), "marker-low-levels", row.low);
    add(printer.get(), "marker-high-levels", row.high);
    return printer;
}

class Supplies : public testing::TestWithParam<Told>
{};

TEST_P(Supplies, AreWhatThePrinterTells)
{
    const QList<Supply> found = suppliesOf(answer(GetParam()).get());
    ASSERT_EQ(found.size(), GetParam().supplies.size());
    for (qsizetype index = 0; index < found.size(); ++index) {
        const Supply &expected = GetParam().supplies[index];
        EXPECT_EQ(found[index].name, expected.name);
        EXPECT_EQ(found[index].colors, expected.colors) << index;
        EXPECT_EQ(found[index].isWaste, expected.isWaste) << index;
        EXPECT_EQ(found[index].level, expected.level) << index;
        EXPECT_EQ(static_cast<int>(found[index].state), static_cast<int>(expected.state)) << index;
    }
}

const QString kLong(60, u'x');
const std::string kVeryLong(4000, 'x');

const Told kTold[] = {
    {"Nothing", {}, {}, {}, {}, {}, {}, {}},
    {"AllOfIt",
     {"Cyan ink", "Black ink", "Waste ink"},
     {"#00FFFF", "#000000", "none"},
     {"ink-cartridge", "ink", "waste-ink"},
     {80, 7, 95},
     {10, 10, 0},
     {100, 100, 90},
     {{u"Cyan ink"_s, {kCyan}, false, 80, Left::Good},
      {u"Black ink"_s, {kBlack}, false, 7, Left::Low},
      {u"Waste ink"_s, {}, true, 95, Left::Low}}},
    {"NamesAlone", {"Cyan", "Black"}, {}, {}, {}, {}, {}, {{u"Cyan"_s}, {u"Black"_s}}},
    {"LevelsAlone",
     {},
     {},
     {},
     {40, 0},
     {},
     {},
     {{u"Supply 1"_s, {}, false, 40, Left::Good}, {u"Supply 2"_s, {}, false, 0, Left::Empty}}},
    {"LevelsThatAreNoLevels",
     {"a", "b", "c", "d", "e"},
     {},
     {},
     {-1, -2, -3, -4, 101},
     {10, 10, 10, 10, 10},
     {},
     {{u"a"_s}, {u"b"_s}, {u"c"_s, {}, false, {}, Left::SomeLeft}, {u"d"_s}, {u"e"_s}}},
    {"NoLowLevel", {"a"}, {}, {}, {1}, {}, {}, {{u"a"_s, {}, false, 1, Left::Good}}},
    {"LowLevelsThatAreNoLevels",
     {"a", "b"},
     {},
     {},
     {1, 100},
     {-1, 101},
     {},
     {{u"a"_s, {}, false, 1, Left::Good}, {u"b"_s, {}, false, 100, Left::Good}}},
    {"AFullContainer",
     {"a", "b"},
     {},
     {"wasteToner", "waste-ink"},
     {100, 0},
     {},
     {},
     {{u"a"_s, {}, true, 100, Left::Empty}, {u"b"_s, {}, true, 0, Left::Good}}},
    {"FewerLevelsThanNames",
     {"a", "b"},
     {"#00FFFF", "#000000"},
     {},
     {5},
     {10, 10},
     {},
     {{u"a"_s, {kCyan}}, {u"b"_s, {kBlack}}}},
    {"MoreOfAllThanNames",
     {"a"},
     {"#00FFFF", "#000000"},
     {"ink", "waste-ink"},
     {5, 6},
     {10, 10},
     {90, 90},
     {{u"a"_s}}},
    {"ACartridgeOfThreeColors",
     {"a"},
     {"#00FFFF#FF00FF#FFFF00"},
     {},
     {50},
     {},
     {},
     {{u"a"_s, {kCyan, kMagenta, kYellow}, false, 50, Left::Good}}},
    {"ColorsThatAreNone",
     {"a", "b", "c", "d", "e", "f", "g"},
     {"cyan", "#00FFF", "#00FFFF0", "00FFFF", "#00FFFF;#000000", "#0x12FF", "#00FFFF\n"},
     {},
     {},
     {},
     {},
     {{u"a"_s}, {u"b"_s}, {u"c"_s}, {u"d"_s}, {u"e"_s}, {u"f"_s}, {u"g"_s}}},
    {"NamesOfAllSorts",
     {"", " \n ", "a\x1b[31m\xe2\x80\xae<b>b</b>", kVeryLong.c_str()},
     {},
     {},
     {},
     {},
     {},
     {{u"Supply 1"_s}, {u"Supply 2"_s}, {u"a [31m<b>b</b>"_s}, {kLong + QChar(0x2026)}}},
};

INSTANTIATE_TEST_SUITE_P(Table, Supplies, testing::ValuesIn(kTold), CaseName());

TEST(Supplies, AreNoMoreThanAPersonCanRead)
{
    const IppHandle printer(ippNew());
    add(printer.get(), "marker-levels", std::vector<int>(5000, 50));
    add(printer.get(), "marker-colors", IPP_TAG_NAME,
        std::vector<const char *>(5000, "#000000#111111#222222#333333#444444#555555#666666#777777"
                                        "#888888#999999"));
    const QList<Supply> found = suppliesOf(printer.get());
    ASSERT_EQ(found.size(), 32);
    EXPECT_EQ(found.constLast().colors.size(), 8);
}

TEST(Supplies, OfAnotherSyntaxTellNothing)
{
    const IppHandle printer(ippNew());
    add(printer.get(), "marker-names", {1, 2});
    add(printer.get(), "marker-levels", IPP_TAG_NAME, {"80", "7"});
    EXPECT_TRUE(suppliesOf(printer.get()).isEmpty());
}

// --- Words ---------------------------------------------------------------------------------------

struct Worded
{
    const char *behaviour;
    Supply supply;
    QString words;
};

class Level : public testing::TestWithParam<Worded>
{};

TEST_P(Level, HasItsWords)
{
    EXPECT_EQ(levelText(GetParam().supply), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Level,
    testing::Values(Worded{"Unknown", {u"a"_s}, u"Not known"_s},
                    Worded{"Some", {u"a"_s, {}, false, {}, Left::SomeLeft}, u"Some left"_s},
                    Worded{"SomeRoom", {u"a"_s, {}, true, {}, Left::SomeLeft}, u"Some room left"_s},
                    Worded{"Good", {u"a"_s, {}, false, 80, Left::Good}, u"80%"_s},
                    Worded{"GoodWaste", {u"a"_s, {}, true, 80, Left::Good}, u"80% full"_s},
                    Worded{"Low", {u"a"_s, {}, false, 8, Left::Low}, u"Low: 8%"_s},
                    Worded{"LowWaste", {u"a"_s, {}, true, 95, Left::Low}, u"Almost full: 95%"_s},
                    Worded{"Empty", {u"a"_s, {}, false, 0, Left::Empty}, u"Empty"_s},
                    Worded{"FullWaste", {u"a"_s, {}, true, 100, Left::Empty}, u"Full"_s}),
    CaseName());

struct Warned
{
    const char *behaviour;
    QList<Supply> supplies;
    QStringList inColor;
    QStringList inBlack;
};

class WordBeforePrinting : public testing::TestWithParam<Warned>
{};

TEST_P(WordBeforePrinting, IsOnWhatTheJobNeeds)
{
    EXPECT_EQ(sentencesOn(GetParam().supplies, true), GetParam().inColor);
    EXPECT_EQ(sentencesOn(GetParam().supplies, false), GetParam().inBlack);
}

const Supply kLowCyan{u"Cyan"_s, {kCyan}, false, 8, Left::Low};
const Supply kEmptyYellow{u"Yellow"_s, {kYellow}, false, 0, Left::Empty};
const Supply kLowGrey{u"Grey"_s, {0xff1a1b1c}, false, 8, Left::Low};
const Supply kLowTricolor{u"Color"_s, {kCyan, kMagenta, kYellow}, false, 8, Left::Low};
const Supply kLowWithBlack{u"All"_s, {kCyan, kBlack}, false, 8, Left::Low};
const Supply kLowOfNoColor{u"Toner"_s, {}, false, 8, Left::Low};
const Supply kFullWaste{u"Waste"_s, {}, true, 100, Left::Empty};
const Supply kFullerWaste{u"Waste"_s, {}, true, 95, Left::Low};

INSTANTIATE_TEST_SUITE_P(
    Table, WordBeforePrinting,
    testing::Values(
        Warned{"Nothing", {}, {}, {}},
        Warned{
            "NothingAboutWhatIsThere",
            {{u"a"_s}, {u"b"_s, {}, false, {}, Left::SomeLeft}, {u"c"_s, {}, false, 9, Left::Good}},
            {},
            {}},
        Warned{"AColor", {kLowCyan}, {u"Running low in the printer: Cyan."_s}, {}},
        Warned{"AColorThatIsUsedUp", {kEmptyYellow}, {u"Used up in the printer: Yellow."_s}, {}},
        Warned{"TheWorstFirst",
               {kLowCyan, kFullWaste, kEmptyYellow, kLowTricolor},
               {u"Used up in the printer: Yellow."_s, u"Full in the printer: Waste."_s,
                u"Running low in the printer: Cyan, Color."_s},
               {u"Full in the printer: Waste."_s}},
        Warned{"AGrey",
               {kLowGrey},
               {u"Running low in the printer: Grey."_s},
               {u"Running low in the printer: Grey."_s}},
        Warned{"ACartridgeWithBlackAmongOthers",
               {kLowWithBlack},
               {u"Running low in the printer: All."_s},
               {u"Running low in the printer: All."_s}},
        Warned{"WhatMayBeAnyColor",
               {kLowOfNoColor},
               {u"Running low in the printer: Toner."_s},
               {u"Running low in the printer: Toner."_s}},
        Warned{"NothingAboutAContainerThatStillTakesSome", {kFullerWaste}, {}, {}}),
    CaseName());

} // namespace
