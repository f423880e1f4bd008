#include "tests/panel/PanelFixture.h"

#include "platform/foundation/UserDefaults.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

using namespace Qt::StringLiterals;

namespace {

class AlertMemoryTest : public PanelFixture
{
protected:
    QVariantMap memory() const
    {
        return UserDefaults::standardUserDefaults().persistentDomainForName(u"com.velkaro.test"_s);
    }
    void remember(const QVariantMap &values)
    {
        UserDefaults::standardUserDefaults().setPersistentDomain(values, u"com.velkaro.test"_s);
    }
};

struct MemoryCase
{
    const char *behaviour;
    QVariant stored; ///< invalid: never stored
    bool shown;
};

class Remembered : public AlertMemoryTest, public testing::WithParamInterface<MemoryCase>
{};

const MemoryCase kMemoryCases[] = {
    {"NeverStored", {}, true},
    {"StoredAsShown", true, true},
    {"StoredAsSuppressed", false, false},
    {"AsTheFileHasIt", u"false"_s, false},
};

TEST_P(Remembered, DecidesWhetherTheAlertIsShown)
{
    createPanel();
    if (GetParam().stored.isValid())
        remember({{u"Best Alert"_s, GetParam().stored}});
    EXPECT_EQ(panel->shouldShowAlert(u"Best Alert"_s), GetParam().shown);
    EXPECT_TRUE(panel->shouldShowAlert(u"Other Alert"_s));
}

INSTANTIATE_TEST_SUITE_P(Cases, Remembered, testing::ValuesIn(kMemoryCases), CaseName());

TEST_F(AlertMemoryTest, RemembersATickedBoxWhicheverButtonEndedTheAlert)
{
    createPanel();
    panel->alertDidEnd({0, true}, 0, u"Best Alert"_s);
    panel->alertDidEnd({1, true}, 1, u"Other Alert"_s);
    EXPECT_EQ(memory(), (QVariantMap{{u"Best Alert"_s, false}, {u"Other Alert"_s, false}}));
    EXPECT_FALSE(panel->shouldShowAlert(u"Best Alert"_s));
}

TEST_F(AlertMemoryTest, RemembersAClearedBoxToo)
{
    createPanel();
    remember({{u"Best Alert"_s, false}, {u"Kept"_s, false}});
    panel->alertDidEnd({0, false}, 0, u"Best Alert"_s);
    EXPECT_EQ(memory(), (QVariantMap{{u"Best Alert"_s, true}, {u"Kept"_s, false}}));
}

TEST_F(AlertMemoryTest, RemembersNothingWithoutAKey)
{
    createPanel();
    panel->alertDidEnd({0, true}, 0, QString());
    EXPECT_TRUE(memory().isEmpty());
}

TEST_F(AlertMemoryTest, ShowsEveryAlertWithoutABundleIdentifier)
{
    bundle->overrideInfo({{u"CFBundleIdentifier"_s, u""_s}});
    createPanel();
    remember({{u"Best Alert"_s, false}});
    panel->alertDidEnd({0, true}, 0, u"Other Alert"_s);
    EXPECT_TRUE(panel->shouldShowAlert(u"Best Alert"_s));
    EXPECT_EQ(memory(), (QVariantMap{{u"Best Alert"_s, false}}));
}

TEST_F(AlertMemoryTest, LastsOverRuns)
{
    createPanel();
    UserDefaults::standardUserDefaults().setFolder(folder.path());
    panel->alertDidEnd({0, true}, 0, u"Best Alert"_s);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"com.velkaro.test.ini"_s)));
    EXPECT_FALSE(panel->shouldShowAlert(u"Best Alert"_s));
}

} // namespace
