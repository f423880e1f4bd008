#include "panel/ControlValue.h"
#include "panel/ListedChoices.h"
#include "panel/TicketValue.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct ListedCase
{
    const char *behaviour;
    QString name;
    QString text;
    bool listed;
};

class Listed : public testing::TestWithParam<ListedCase>
{};

const ListedCase kListedCases[] = {
    {"Ordinary", u"Plain"_s, u"Plain Paper"_s, true},
    {"Hagaki", u"HagakiUra"_s, u"Hagaki"_s, false},
    {"HagakiAndMore", u"HagakiUra"_s, u"Hagaki Picture Side"_s, false},
    {"HagakiInAnotherCase", u"HagakiUra"_s, u"hagaki"_s, true},
    {"HagakiLaterInTheText", u"HagakiUra"_s, u"Photo Hagaki"_s, true},
    {"HagakiInTheNameAlone", u"HagakiUra"_s, u"Postcard"_s, true},
    {"TextThatIsShorter", u"HagakiUra"_s, u"Hagak"_s, true},
    {"EmptyText", u"Plain"_s, u""_s, true},
    {"MissingText", u"Plain"_s, QString(), false},
    {"PlainDuplex", u"PlainDuplex"_s, u"Plain Paper"_s, false},
    {"PlainDuplexInTheTextAlone", u"Plain"_s, u"PlainDuplex"_s, true},
};

TEST_P(Listed, AChoiceOfAPopUp)
{
    EXPECT_EQ(isListedChoice(GetParam().name, GetParam().text), GetParam().listed);
}

INSTANTIATE_TEST_SUITE_P(Cases, Listed, testing::ValuesIn(kListedCases), CaseName());

struct ValueCase
{
    const char *behaviour;
    QString keyword;
    bool checked;
    QString value;
};

class BoxValue : public testing::TestWithParam<ValueCase>
{};

const ValueCase kValueCases[] = {
    {"On", u"VKBiDir"_s, true, u"ON"_s},         {"Off", u"VKBiDir"_s, false, u"OFF"_s},
    {"True", u"MirrorPrint"_s, true, u"True"_s}, {"False", u"MirrorPrint"_s, false, u"False"_s},
    {"NoKeyword", QString(), true, u"ON"_s},
};

TEST_P(BoxValue, OfACheckBox)
{
    EXPECT_EQ(checkBoxValue(GetParam().keyword, GetParam().checked), GetParam().value);
    EXPECT_EQ(isCheckedValue(GetParam().value), GetParam().checked);
}

INSTANTIATE_TEST_SUITE_P(Cases, BoxValue, testing::ValuesIn(kValueCases), CaseName());

struct TicketCase
{
    const char *behaviour;
    QVariant value;
    bool boolean;
    long long integer;
};

class TicketReading : public testing::TestWithParam<TicketCase>
{};

constexpr auto kLargest = std::numeric_limits<long long>::max();
constexpr auto kSmallest = std::numeric_limits<long long>::min();

const TicketCase kTicketCases[] = {
    {"Nothing", {}, false, 0},
    {"True", true, true, 1},
    {"False", false, false, 0},
    {"Integer", 7, true, 7},
    {"Zero", 0, false, 0},
    {"NegativeInteger", -7, true, -7},
    {"Fraction", 7.9, true, 7},
    {"NegativeFraction", -7.9, true, -7},
    {"SmallFractionIsNotZero", 0.5, true, 0},
    {"HugeNumber", 1e300, true, kLargest},
    {"HugeNegativeNumber", -1e300, true, kSmallest},
    {"NoNumber", std::numeric_limits<double>::quiet_NaN(), true, 0},
    {"TextOfANumber", u"7"_s, true, 7},
    {"TextThatBeginsWithANumber", u" -12abc"_s, true, -12},
    {"TextOfZero", u"0"_s, false, 0},
    {"TextOfAFraction", u"7.9"_s, true, 7},
    {"TextOfAHugeNumber", u"99999999999999999999"_s, true, kLargest},
    {"Yes", u"YES"_s, true, 0},
    {"SmallTrue", u"true"_s, true, 0},
    {"No", u"NO"_s, false, 0},
    {"OtherText", u"abc"_s, false, 0},
    {"EmptyText", u""_s, false, 0},
};

TEST_P(TicketReading, OfAValue)
{
    EXPECT_EQ(ticketBoolean(GetParam().value), GetParam().boolean);
    EXPECT_EQ(ticketInteger(GetParam().value), GetParam().integer);
}

INSTANTIATE_TEST_SUITE_P(Cases, TicketReading, testing::ValuesIn(kTicketCases), CaseName());

} // namespace
