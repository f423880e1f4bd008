#include "platform/foundation/NotificationCenter.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const int kPrinter = 1;
const int kOther = 2;

class NotificationCenterTest : public testing::Test
{
protected:
    NotificationCenter::Handler note(const std::string &who)
    {
        return [this, who](const Notification &) { heard.push_back(who); };
    }

    NotificationCenter center;
    std::vector<std::string> heard;
    const int panel = 0;
    const int otherPanel = 0;
};

struct FilterCase
{
    const char *behaviour;
    QString wantedName;
    const void *wantedObject;
    QString postedName;
    const void *postedObject;
    bool delivered;
};

class Filter : public NotificationCenterTest, public testing::WithParamInterface<FilterCase>
{};

const FilterCase kFilterCases[] = {
    {"SameNameAndObject", u"Paper"_s, &kPrinter, u"Paper"_s, &kPrinter, true},
    {"AnotherName", u"Paper"_s, &kPrinter, u"Duplex"_s, &kPrinter, false},
    {"NameInAnotherCase", u"Paper"_s, nullptr, u"paper"_s, nullptr, false},
    {"AnotherObject", u"Paper"_s, &kPrinter, u"Paper"_s, &kOther, false},
    {"AnObjectIsWantedAndNonePosted", u"Paper"_s, &kPrinter, u"Paper"_s, nullptr, false},
    {"EveryObjectIsWanted", u"Paper"_s, nullptr, u"Paper"_s, &kOther, true},
    {"EveryObjectIsWantedAndNonePosted", u"Paper"_s, nullptr, u"Paper"_s, nullptr, true},
    {"EveryNameIsWanted", QString(), &kPrinter, u"Duplex"_s, &kPrinter, true},
    {"EveryNameIsWantedFromAnotherObject", QString(), &kPrinter, u"Duplex"_s, &kOther, false},
    {"EverythingIsWanted", QString(), nullptr, u"Duplex"_s, &kOther, true},
};

TEST_P(Filter, DeliversByNameAndSender)
{
    center.addObserver(&panel, note("panel"), GetParam().wantedName, GetParam().wantedObject);
    center.post(GetParam().postedName, GetParam().postedObject);
    EXPECT_EQ(heard.size(), GetParam().delivered ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Cases, Filter, testing::ValuesIn(kFilterCases), CaseName());

TEST_F(NotificationCenterTest, HasDeliveredWhenPostReturnsInTheOrderOfRegistration)
{
    center.addObserver(&panel, note("first"), u"Paper"_s);
    center.addObserver(&otherPanel, note("second"), u"Paper"_s);
    center.addObserver(&panel, note("third"), QString());
    center.post(u"Paper"_s);
    EXPECT_EQ(heard, (std::vector<std::string>{"first", "second", "third"}));
}

TEST_F(NotificationCenterTest, CarriesNameSenderAndEntries)
{
    std::vector<Notification> got;
    center.addObserver(
        &panel, [&](const Notification &n) { got.push_back(n); }, QString());
    center.post(u"Paper"_s, &kPrinter, QVariantMap{{u"PointTo"_s, u"VKMonoColor"_s}});
    center.post(u"Paper"_s);
    ASSERT_EQ(got.size(), 2U);
    EXPECT_EQ(got[0].name, u"Paper"_s);
    EXPECT_EQ(got[0].object, &kPrinter);
    EXPECT_EQ(got[0].userInfo.value().value(u"PointTo"_s), u"VKMonoColor"_s);
    EXPECT_EQ(got[1].object, nullptr);
    EXPECT_FALSE(got[1].userInfo.has_value());
}

TEST_F(NotificationCenterTest, DeliversTwiceToWhoRegisteredTwice)
{
    center.addObserver(&panel, note("panel"), u"Paper"_s);
    center.addObserver(&panel, note("panel"), u"Paper"_s);
    EXPECT_EQ(center.registrationCount(&panel), 2);
    center.post(u"Paper"_s);
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(NotificationCenterTest, RemovesEverythingOfAnObserver)
{
    center.addObserver(&panel, note("panel"), u"Paper"_s, &kPrinter);
    center.addObserver(&panel, note("panel"), u"Duplex"_s);
    center.addObserver(&otherPanel, note("other"), u"Duplex"_s);
    center.removeObserver(&panel);
    center.post(u"Paper"_s, &kPrinter);
    center.post(u"Duplex"_s);
    EXPECT_EQ(heard, std::vector<std::string>{"other"});
    EXPECT_EQ(center.registrationCount(&panel), 0);
}

TEST_F(NotificationCenterTest, RemovesOneRegistrationByNameAndObject)
{
    center.addObserver(&panel, note("printer"), u"Paper"_s, &kPrinter);
    center.addObserver(&panel, note("other"), u"Paper"_s, &kOther);
    center.addObserver(&panel, note("duplex"), u"Duplex"_s, &kPrinter);
    center.removeObserver(&panel, u"Paper"_s, &kPrinter);
    center.post(u"Paper"_s, &kPrinter);
    center.post(u"Paper"_s, &kOther);
    center.post(u"Duplex"_s, &kPrinter);
    EXPECT_EQ(heard, (std::vector<std::string>{"other", "duplex"}));
}

TEST_F(NotificationCenterTest, DeliversNothingToAnObserverThatWasRemovedDuringDelivery)
{
    center.addObserver(
        &panel, [&](const Notification &) { center.removeObserver(&otherPanel); }, u"Paper"_s);
    center.addObserver(&otherPanel, note("removed"), u"Paper"_s);
    center.post(u"Paper"_s);
    EXPECT_TRUE(heard.empty());
}

TEST_F(NotificationCenterTest, LetsAnObserverRemoveItselfDuringDelivery)
{
    const std::string who = "a text that is too long to be kept within the handler itself";
    center.addObserver(
        &panel,
        [this, who](const Notification &) {
            center.removeObserver(&panel);
            heard.push_back(who);
        },
        u"Paper"_s);
    center.addObserver(&otherPanel, note("next"), u"Paper"_s);
    center.post(u"Paper"_s);
    center.post(u"Paper"_s);
    EXPECT_EQ(heard, (std::vector<std::string>{who, "next", "next"}));
}

TEST_F(NotificationCenterTest, DeliversTheNextNotificationToAnObserverAddedDuringDelivery)
{
    center.addObserver(
        &panel,
        [this](const Notification &) {
            if (center.registrationCount(&otherPanel) == 0)
                center.addObserver(&otherPanel, note("added"), u"Paper"_s);
        },
        u"Paper"_s);
    center.post(u"Paper"_s);
    EXPECT_TRUE(heard.empty());
    center.post(u"Paper"_s);
    EXPECT_EQ(heard, std::vector<std::string>{"added"});
}

TEST_F(NotificationCenterTest, DeliversANotificationPostedFromAHandlerBeforeItReturns)
{
    center.addObserver(
        &panel,
        [this](const Notification &) {
            center.post(u"Inner"_s);
            heard.push_back("outer");
        },
        u"Outer"_s);
    center.addObserver(&panel, note("inner"), u"Inner"_s);
    center.post(u"Outer"_s);
    EXPECT_EQ(heard, (std::vector<std::string>{"inner", "outer"}));
}

} // namespace
