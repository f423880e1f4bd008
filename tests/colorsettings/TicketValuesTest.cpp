#include "tests/colorsettings/ColorPanelFixture.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct TicketCase
{
    const char *name;
    QVariant stored;
    long long value;
};

const TicketCase kTicketCases[] = {
    // within the range
    {"Twenty", u"20"_s, 20},
    {"MinusTwenty", u"-20"_s, -20},
    {"Zero", u"0"_s, 0},
    {"Seven", u"7"_s, 7},
    {"NumberThree", 3, 3},
    {"DoubleCutTowardZero", -3.9, -3},
    {"DoubleJustBelowTwentyOne", 20.9, 20},
    {"SinglePrecision", 5.0F, 5},
    // spelled oddly
    {"PlusSign", u"+5"_s, 5},
    {"LeadingBlanks", u" \t12"_s, 12},
    {"LeadingZeros", u"007"_s, 7},
    {"TextAfterTheNumber", u"8 apples"_s, 8},
    {"FractionInText", u"9.99"_s, 9},
    {"Hexadecimal", u"0x10"_s, 0},
    {"Exponent", u"1e1"_s, 1},
    // outside the range
    {"TwentyOne", u"21"_s, 0},
    {"MinusTwentyOne", u"-21"_s, 0},
    {"NumberTwentyOne", 21, 0},
    {"DoubleMinusTwentyOne", -21.0, 0},
    {"Huge", u"99999999999999999999999999"_s, 0},
    {"HugeNegative", u"-99999999999999999999999999"_s, 0},
    {"WrapsIn32Bits", u"4294967297"_s, 0},
    {"HugeDouble", 1e300, 0},
    {"Infinity", std::numeric_limits<double>::infinity(), 0},
    // no numbers
    {"NotANumber", std::numeric_limits<double>::quiet_NaN(), 0},
    {"Empty", u""_s, 0},
    {"Word", u"seven"_s, 0},
    {"TwoSigns", u"--5"_s, 0},
    {"BlankAfterTheSign", u"- 5"_s, 0},
    {"FullWidthDigit", u"７"_s, 0},
    {"Markup", u"<b>5</b>"_s, 0},
    {"NulFirst", QString(QChar(u'\0')) + u"5"_s, 0},
    {"List", QVariantList{1, 2}, 0},
    {"Map", QVariantMap{{u"a"_s, 1}}, 0},
};

class TicketNonsense : public ColorPanelTest, public testing::WithParamInterface<TicketCase>
{};

} // namespace

TEST_P(TicketNonsense, IsReadAsAWholeNumberWithinTheRange)
{
    for (std::size_t i = 0; i < 5; ++i) {
        ColorDialog dialog;
        dialog.setTicket(kEffectTicketKeys[i], GetParam().stored);
        dialog.create();
        for (std::size_t other = 0; other < 5; ++other) {
            const long long expected = other == i ? GetParam().value : 0;
            EXPECT_EQ(dialog.pending(kEffectKeywords[other]), QVariant(expected));
            EXPECT_EQ(dialog.ticket(kEffectTicketKeys[other]), QVariant(QString::number(expected)));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Values, TicketNonsense, testing::ValuesIn(kTicketCases),
                         [](const auto &test) { return std::string(test.param.name); });

using TicketValuesTest = ColorPanelTest;

TEST_F(TicketValuesTest, AShownPanelHasTheTicketsValuesInSlidersAsIntegerNumbers)
{
    ColorDialog dialog;
    dialog.setTicket(kEffectTicketKeys[0], u"-20"_s);
    dialog.setTicket(kEffectTicketKeys[4], u"20"_s);
    dialog.show();
    EXPECT_EQ(dialog.content("VKBrightness"), QVariant(-20LL));
    EXPECT_EQ(dialog.content("VKBrightness").typeId(), QMetaType::LongLong);
    EXPECT_EQ(dialog.content("VKContrast"), QVariant(0LL));
    EXPECT_EQ(dialog.content("VKBlue"), QVariant(20LL));
}

TEST_F(TicketValuesTest, ChoicesMarkedInThePrinterAreReplacedByTheTicketsValues)
{
    ColorDialog dialog;
    dialog.create();
    dialog.setTicket(kEffectTicketKeys[2], u"4"_s);
    dialog.host->willChangePPDOptionKeyValue(u"VKRed"_s, u"-9"_s);
    dialog.panel->setPPDKeys(QStringList{u"VKRed"_s});
    dialog.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(dialog.pending("VKRed"), QVariant(4LL));
}

TEST_F(TicketValuesTest, ValuesOutsideTheRangeLeaveThePanelAsZero)
{
    ColorDialog dialog;
    dialog.create();
    dialog.panel->setOutputBin({{u"VKBrightness"_s, 21LL}, {u"VKRed"_s, -20LL}});
    dialog.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[0]), QVariant(u"0"_s));
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[1]), QVariant(u"0"_s));
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[2]), QVariant(u"-20"_s));
    EXPECT_EQ(dialog.pending("VKBrightness"), QVariant(21LL)) << "only the ticket is held to it";
}

TEST_F(TicketValuesTest, PrintingAFaxSavesNothing)
{
    ColorDialog dialog;
    dialog.create();
    dialog.panel->setOutputBin({{u"VKRed"_s, 6LL}});
    dialog.host->willChangePPDOptionKeyValue(u"VKOutput"_s, u"FAX"_s);
    EXPECT_TRUE(dialog.panel->shouldPrint());
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[2]), QVariant(u"0"_s));
    dialog.host->willChangePPDOptionKeyValue(u"VKOutput"_s, u"Printer"_s);
    EXPECT_TRUE(dialog.panel->shouldPrint());
    EXPECT_EQ(dialog.ticket(kEffectTicketKeys[2]), QVariant(u"6"_s));
}
