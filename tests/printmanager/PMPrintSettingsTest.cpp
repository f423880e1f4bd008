#include "platform/printmanager/PMPrintSettings.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct ValueCase
{
    const char *behaviour;
    QVariant value;
};

class TicketValueKind : public testing::TestWithParam<ValueCase>
{};

const ValueCase kValueCases[] = {
    {"Text", u"Portrait"_s},        {"EmptyText", u""_s}, {"Boolean", false}, {"Integer", 7},
    {"LongInteger", QVariant(7LL)}, {"Float", 7.5F},      {"Double", -7.5},
};

TEST_P(TicketValueKind, ComesBackAsItWas)
{
    PMPrintSettings ticket;
    EXPECT_EQ(PMPrintSettingsSetValue(&ticket, u"key"_s, GetParam().value, false), noErr);
    QVariant value;
    EXPECT_EQ(PMPrintSettingsGetValue(&ticket, u"key"_s, &value), noErr);
    EXPECT_EQ(value.typeId(), GetParam().value.typeId());
    EXPECT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Cases, TicketValueKind, testing::ValuesIn(kValueCases), CaseName());

TEST(PMPrintSettingsTest, LeavesTheResultAloneWithoutSuchAKey)
{
    const PMPrintSettings ticket;
    QVariant value = u"before"_s;
    EXPECT_EQ(PMPrintSettingsGetValue(&ticket, u"key"_s, &value), kPMKeyNotFound);
    EXPECT_EQ(value, u"before"_s);
}

TEST(PMPrintSettingsTest, TellsKeysApartByCase)
{
    PMPrintSettings ticket;
    PMPrintSettingsSetValue(&ticket, u"Key"_s, 1, false);
    QVariant value;
    EXPECT_EQ(PMPrintSettingsGetValue(&ticket, u"key"_s, &value), kPMKeyNotFound);
}

TEST(PMPrintSettingsTest, OverwritesAndRemoves)
{
    PMPrintSettings ticket;
    ticket.setValues({{u"a"_s, 1}, {u"b"_s, 2}});
    PMPrintSettingsSetValue(&ticket, u"a"_s, u"new"_s, true);
    PMPrintSettingsSetValue(&ticket, u"b"_s, QVariant(), false);
    EXPECT_EQ(ticket.values(), (QVariantMap{{u"a"_s, u"new"_s}}));
}

TEST(PMPrintSettingsTest, FailsWithoutATicketAKeyOrAPlaceForTheResult)
{
    PMPrintSettings ticket;
    QVariant value;
    EXPECT_EQ(PMPrintSettingsGetValue(nullptr, u"key"_s, &value), kPMInvalidParameter);
    EXPECT_EQ(PMPrintSettingsGetValue(&ticket, u"key"_s, nullptr), kPMInvalidParameter);
    EXPECT_EQ(PMPrintSettingsSetValue(nullptr, u"key"_s, 1, false), kPMInvalidParameter);
    EXPECT_EQ(PMPrintSettingsSetValue(&ticket, QString(), 1, false), kPMInvalidParameter);
    EXPECT_TRUE(ticket.values().isEmpty());
}

} // namespace
