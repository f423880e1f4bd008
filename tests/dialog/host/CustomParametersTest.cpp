#include "dialog/host/CustomParameters.h"

#include "dialog/host/PPDMarks.h"
#include "tests/support/FeaturePrinter.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Kind = CustomParameter::Kind;

class CustomParameters : public testing::Test
{
protected:
    const PPDHandle m_ppd = openText(featurePrinter());
};

TEST_F(CustomParameters, StandInTheirOrderWithTypesAndLimits)
{
    EXPECT_EQ(customParameters(m_ppd.get(), u"Stamp"_s),
              (QList<CustomParameter>{{u"Text"_s, u"Words"_s, Kind::Text, 1, 20, QString()},
                                      {u"Angle"_s, u"Angle"_s, Kind::Number, -90, 90, u"0"_s},
                                      {u"Offset"_s, u"Offset"_s, Kind::Points, 0, 200, u"0"_s}}));
    EXPECT_EQ(customParameters(m_ppd.get(), u"Tone"_s),
              (QList<CustomParameter>{{u"Gamma"_s, u"Gamma"_s, Kind::Number, 0.5, 2.5, u"0"_s},
                                      {u"Inverse"_s, u"Inverse"_s, Kind::Number, 0.5, 2.5, u"0"_s},
                                      {u"Key"_s, u"Key"_s, Kind::Password, 0, 12, QString()}}));
    EXPECT_EQ(customParameters(m_ppd.get(), u"weight"_s),
              (QList<CustomParameter>{{u"Grams"_s, u"Grams"_s, Kind::Integer, 60, 300, u"0"_s}}));
    EXPECT_EQ(customParameters(m_ppd.get(), u"Hold"_s),
              (QList<CustomParameter>{{u"Code"_s, u"Code"_s, Kind::Passcode, 4, 8, QString()}}));
    for (const QString &without : {u"Jog"_s, u"PageSize"_s, u"Nothing"_s})
        EXPECT_TRUE(customParameters(m_ppd.get(), without).isEmpty()) << without.toStdString();
}

struct Value
{
    const char *keyword;
    const char *value;
    bool isTaken;
};

class CustomValues : public CustomParameters, public testing::WithParamInterface<Value>
{};

// What libcups has of the value when it reads the mark again is what was marked.
TEST_P(CustomValues, AreMarkedWithinTheirLimitsAlone)
{
    const QString keyword = QString::fromLatin1(GetParam().keyword);
    const QString value = QString::fromUtf8(GetParam().value);
    const QString before = markedValue(m_ppd.get(), keyword);
    EXPECT_EQ(forceChoice(m_ppd.get(), keyword, value), GetParam().isTaken);
    EXPECT_EQ(markedValue(m_ppd.get(), keyword), GetParam().isTaken ? value : before);
}

INSTANTIATE_TEST_SUITE_P(
    All, CustomValues,
    testing::Values(Value{"Weight", "Custom.60", true}, Value{"Weight", "Custom.300", true},
                    Value{"Weight", "Custom.59", false}, Value{"Weight", "Custom.301", false},
                    Value{"Weight", "Custom.", false}, Value{"Weight", "Custom.7x", false},
                    Value{"Weight", "Custom.99999999999", false},
                    Value{"Weight", "Custom.nan", false}, Value{"Jog", "Custom.1", false},
                    Value{"Hold", "Custom.0123", true}, Value{"Hold", "Custom.012", false},
                    Value{"Hold", "Custom.123456789", false}, Value{"Hold", "Custom.12a4", false},
                    Value{"Stamp", R"({Text="Ab" Angle=-12.5 Offset=0.1})", true},
                    Value{"Stamp", R"({Text="a \"b\" \\ {c} 'd' ü" Angle=90 Offset=200})", true},
                    Value{"Stamp", R"({Text="" Angle=0 Offset=0})", false},
                    Value{"Stamp", R"({Text="a" Angle=91 Offset=0})", false},
                    Value{"Stamp", R"({Text="a" Angle=nan Offset=0})", false},
                    Value{"Stamp", R"({Text="a" Angel=0 Offset=0})", false},
                    Value{"Stamp", "{}", false}, Value{"Stamp", "{", false},
                    Value{"Stamp", "Custom.a", false},
                    Value{"Tone", R"({Gamma=1.25 Inverse=0.5 Key="a b"})", true}));

TEST_F(CustomParameters, ReachAnotherReaderOfThePPD)
{
    ASSERT_TRUE(
        forceChoice(m_ppd.get(), u"Stamp"_s, uR"({Text="a \"b\" \\ {c}" Angle=-12.5 Offset=7})"_s));
    // As a filter has it: options are quoted once, and read by cupsParseOptions().
    QByteArray value = markedValue(m_ppd.get(), u"Stamp"_s).toUtf8();
    value.replace('\\', "\\\\").replace('"', "\\\"").replace(' ', "\\ ");
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(("Stamp=" + value).constData(), 0, &options);
    const PPDHandle filter = openText(featurePrinter());
    cupsMarkOptions(filter.get(), count, options);
    cupsFreeOptions(count, options);
    ppd_coption_t *stamp = ppdFindCustomOption(filter.get(), "Stamp");
    EXPECT_STREQ(ppdFindCustomParam(stamp, "Text")->current.custom_string, R"(a "b" \ {c})");
    EXPECT_EQ(ppdFindCustomParam(stamp, "Angle")->current.custom_real, -12.5F);
    EXPECT_EQ(ppdFindCustomParam(stamp, "Offset")->current.custom_points, 7.0F);
}

} // namespace
