#include "tests/panel/PanelFixture.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/KeyWindow.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

using namespace Qt::StringLiterals;

namespace {

class CreationTest : public PanelFixture
{};

TEST_F(CreationTest, TakesCallbackPPDAndBundleAndRunsItsChecksInOrder)
{
    host->ticket().setValues({{u"AP_ColorMatchingMode"_s, u"AP_VendorColorMatching"_s}});
    EXPECT_TRUE(panel->initWithCallback(host));
    EXPECT_EQ(panel->pdePluginCallbackObject, host);
    EXPECT_EQ(panel->ppd, ppd.get());
    EXPECT_EQ(panel->pluginBundle, bundle);
    EXPECT_EQ(panel->thePDEName(), u"TestView"_s);
    EXPECT_EQ(panel->asked, (QStringList{u"checkModelName"_s, u"setDefaults"_s,
                                         u"checkConstraints"_s, u"checkConstraints"_s}));
    EXPECT_EQ(panel->imageModeFlag(), VendorColorMatching);
    EXPECT_TRUE(panel->outputBin().isEmpty()) << "there are no keywords yet";
    EXPECT_FALSE(panel->supportedPPDOptionKeys().has_value());
    EXPECT_TRUE(panel->paperName.isNull());
    EXPECT_FALSE(panel->popupInited);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(CreationTest, FailsWithoutTheOperationThatMarksChoices)
{
    host->setLacking({HostOperation::WillChangePPDOptionKeyValue});
    EXPECT_FALSE(panel->initWithCallback(host));
    EXPECT_EQ(panel->pdePluginCallbackObject, nullptr);
    EXPECT_EQ(panel->pluginBundle, nullptr);
    EXPECT_TRUE(panel->asked.isEmpty());
    EXPECT_EQ(panel->panelView(), nullptr);
    EXPECT_EQ(host.use_count(), 1) << "nothing of the dialog's is kept";
}

TEST_F(CreationTest, FailsWithoutACallback)
{
    EXPECT_FALSE(panel->initWithCallback(nullptr));
    EXPECT_TRUE(panel->asked.isEmpty());
}

TEST_F(CreationTest, HasNoNameWithoutAnInformationDictionary)
{
    Bundle::setMainBundle(Bundle::open(folder.filePath(u"nowhere"_s)));
    EXPECT_TRUE(panel->initWithCallback(host));
    EXPECT_TRUE(panel->thePDEName().isNull());
    EXPECT_EQ(panel->panelView(), nullptr);
}

TEST_F(CreationTest, WorksWithoutABundle)
{
    Bundle::setMainBundle(nullptr);
    EXPECT_TRUE(panel->initWithCallback(host));
    EXPECT_EQ(panel->panelView(), nullptr);
    EXPECT_TRUE(panel->shouldShowHelp());
    EXPECT_TRUE(panel->shouldShowAlert(u"Best Alert"_s));
    EXPECT_TRUE(panel->helpBookPath().isNull());
}

TEST_F(CreationTest, HoldsTheCallbackAsLongAsItLives)
{
    createPanel();
    const std::weak_ptr<HostCallback> watched = host;
    host.reset();
    EXPECT_FALSE(watched.expired());
    panel.reset();
    EXPECT_TRUE(watched.expired());
}

struct KeysCase
{
    const char *behaviour;
    QStringList given;
    QStringList kept;
};

class Keywords : public PanelFixture, public testing::WithParamInterface<KeysCase>
{};

const KeysCase kKeysCases[] = {
    {"AllThere", {u"VKMediaType"_s, u"VKBiDir"_s}, {u"VKMediaType"_s, u"VKBiDir"_s}},
    {"AbsentOnesAreDroppedAndTheOrderIsKept",
     {u"VKBiDir"_s, u"VKMirror"_s, u"VKMediaType"_s, u"VKJpeg"_s, u"MirrorPrint"_s},
     {u"VKBiDir"_s, u"VKMediaType"_s, u"MirrorPrint"_s}},
    {"NoneThere", {u"VKMirror"_s}, {}},
    {"EmptyList", {}, {}},
    {"KeywordThatIsNotAscii", {u"用紙"_s, u"VKBiDir"_s}, {u"VKBiDir"_s}},
};

TEST_P(Keywords, AreThoseThatThePPDHas)
{
    createPanel();
    panel->setPPDKeys(GetParam().given);
    EXPECT_EQ(panel->supportedPPDOptionKeys(), GetParam().kept);
    EXPECT_EQ(panel->availablePPDOptionKeys(), GetParam().kept);
}

INSTANTIATE_TEST_SUITE_P(Cases, Keywords, testing::ValuesIn(kKeysCases), CaseName());

TEST_F(CreationTest, KeepsItsKeywordsWhenThereIsNoList)
{
    createPanel();
    panel->setPPDKeys(QStringList{u"VKBiDir"_s});
    panel->setPPDKeys(std::nullopt);
    EXPECT_EQ(panel->supportedPPDOptionKeys(), QStringList{u"VKBiDir"_s});
}

TEST_F(CreationTest, LeavesTheNotificationCentreWhenItIsDestroyed)
{
    showPanel();
    const void *address = panel.get();
    EXPECT_GT(NotificationCenter::defaultCenter().registrationCount(address), 0);
    panel.reset();
    EXPECT_EQ(NotificationCenter::defaultCenter().registrationCount(address), 0);
}

TEST_F(CreationTest, TakesItsViewAlongWhenItIsDestroyedInADialog)
{
    showPanel();
    QWidget dialog;
    panel->panelView()->setParent(&dialog);
    panel.reset();
    EXPECT_TRUE(dialog.findChildren<QWidget *>().isEmpty());
}

TEST_F(CreationTest, SurvivesADialogThatTookItsViewAlong)
{
    showPanel();
    {
        QWidget dialog;
        panel->panelView()->setParent(&dialog);
    }
    panel.reset();
    EXPECT_EQ(host.use_count(), 1);
}

TEST_F(CreationTest, HasAKindOfItsName)
{
    createPanel();
    EXPECT_EQ(panel->panelKind(), u"com.velkaro.print.pde.CocoaTestView"_s);
    panel->setThePDEName(u"VKInkColorSetting"_s);
    EXPECT_EQ(panel->panelKind(), u"com.velkaro.print.pde.CocoaVKInkColorSetting"_s);
}

} // namespace
