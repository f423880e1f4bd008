#include "dialog/host/HostCallback.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "tests/printsettings/PrintPanel.h"

#include <QtWidgets/QComboBox>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

class PaperChange : public PrintPanelTest
{};

struct Warning
{
    QString name;
    QString paper;
    QString medium;
    QString quality;
    bool shown;
    int alerts;
};

void PrintTo(const Warning &row, std::ostream *out)
{
    *out << qPrintable(row.name);
}

class BorderlessWarning : public PrintPanelTest, public testing::WithParamInterface<Warning>
{};

TEST_P(BorderlessWarning, IsRaisedOncePerChangeWhereSomethingMustGiveWay)
{
    const Warning &row = GetParam();
    if (row.shown)
        show();
    else
        open();
    panel->setAndMarkValue(row.medium, u"VKMediaType"_s);
    panel->setAndMarkValue(row.quality, u"VKResolution"_s);
    if (row.shown)
        panel->updateUI();
    for (int announced = 0; announced < row.alerts; ++announced)
        session->alerts().expect();
    session->changePaper(row.paper);
    session->changePaper(row.paper);
    const auto alerts = session->alerts().take();
    ASSERT_EQ(alerts.size(), static_cast<std::size_t>(row.alerts));
    if (alerts.empty())
        return;
    EXPECT_EQ(alerts[0].kind, ShownAlert::Kind::Modal);
    const AlertContent &content = alerts[0].content;
    EXPECT_EQ(content.style, AlertStyle::Critical);
    EXPECT_EQ(content.text, u"Borderless Alert"_s);
    EXPECT_EQ(content.informative, u"Borderless Alert2"_s);
    EXPECT_EQ(content.buttons, QStringList({u"OK"_s}));
    EXPECT_FALSE(content.suppression);
}

INSTANTIATE_TEST_SUITE_P(
    All, BorderlessWarning,
    testing::Values(
        Warning{u"transparencies"_s, u"Letter.Fullbleed"_s, u"Transparencies"_s, u"Normal"_s, true,
                1},
        Warning{u"the fastest quality"_s, u"A4.Fullbleed"_s, u"Plain"_s, u"PlainFast"_s, true, 1},
        Warning{u"a paper whose own name says borderless"_s, u"VkHagaki_B"_s, u"Plain"_s,
                u"PlainFast"_s, true, 1},
        Warning{u"another quality"_s, u"A4.Fullbleed"_s, u"Plain"_s, u"High"_s, true, 0},
        Warning{u"photo paper"_s, u"A4.Fullbleed"_s, u"Glossy"_s, u"Fast"_s, true, 0},
        Warning{u"a paper with borders"_s, u"A3"_s, u"Transparencies"_s, u"Normal"_s, true, 0},
        Warning{u"before the view"_s, u"Letter.Fullbleed"_s, u"Transparencies"_s, u"Normal"_s,
                false, 0}));

TEST_F(PaperChange, AWarnedChangeAppliesTheDefaultsOfTheMedium)
{
    show();
    pickChoice(panel->outlet(u"mediaTypePopup"_s), u"Transparencies"_s);
    log();
    session->alerts().expect();
    session->changePaper(u"Letter.Fullbleed"_s);
    session->alerts().take();
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
    EXPECT_EQ(itemsOf(popup(u"mediaTypePopup"_s)),
              u"Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy HagakiAtena "
              "HagakiUra -Transparencies -PrintableDisc -GlossyPrintableDisc"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"-PlainFast PlainNormal* High Best"_s);
    EXPECT_EQ(log(), QStringList({u"VKBiDir=OFF"_s, u"VKMediaType=Plain"_s,
                                  u"VKResolution=PlainNormal"_s, u"VKBiDir=ON"_s, u"VKBiDir=ON"_s,
                                  u"mono NO"_s, u"natural NO"_s, u"natural NO"_s, u"mono NO"_s}));
}

TEST_F(PaperChange, AnUnwarnedChangePostsNothingAboutColorMatching)
{
    show();
    session->changePaper(u"A3"_s);
    EXPECT_EQ(log(), QStringList({u"VKBiDir=ON"_s, u"VKBiDir=ON"_s, u"mono NO"_s, u"mono NO"_s}));
}

TEST_F(PaperChange, ADiscAppliesTheDefaultsOfTheDisc)
{
    show();
    session->changePaper(u"120x120mm"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=PrintableDisc"_s, u"VKBiDir=OFF"_s,
                                  u"VKResolution=DiscNormal"_s, u"VKBiDir=OFF"_s, u"mono NO"_s,
                                  u"natural YES"_s, u"natural YES"_s, u"mono NO"_s}));
    EXPECT_EQ(panel->pending(), u"PrintableDisc/DiscNormal"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"DiscNormal* DiscSlow"_s);
    EXPECT_EQ(itemsOf(popup(u"mediaTypePopup"_s)),
              u"-Plain -Inkjet VelkaroGlossy -VelkaroGlossyR -VelkaroQM41Matte -Glossy "
              "-HagakiAtena -HagakiUra -Transparencies PrintableDisc* GlossyPrintableDisc"_s);
    log();
    session->changePaper(u"A4"_s);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"PlainFast PlainNormal* High Best"_s);
}

TEST_F(PaperChange, AnEnvelopeTurnsTheDirectionOffByTheRulesThatFollow)
{
    show();
    session->changePaper(u"EnvDL"_s);
    EXPECT_EQ(log(), QStringList({u"VKColorPaperThick=Env"_s, u"VKBiDir=OFF"_s, u"mono NO"_s,
                                  u"mono NO"_s}));
    EXPECT_EQ(stateOf(box(u"biDirButton"_s)), u"off disabled"_s);
}

// --- Menus, exceptions ---------------------------------------------------------------------------

constexpr auto kMenuAction = "NSMenuDidSendActionNotification";

class MenuActions : public PrintPanelTest
{
protected:
    void SetUp() override { open(); }

    // Posts the choice of an item of the menu and tells whether the panel took the new paper.
    bool choosingIsFollowed(const QComboBox *menu, const std::optional<QVariantMap> &userInfo)
    {
        panel->paperName = u"Before"_s;
        panel->checkPageSizeChange({QString::fromLatin1(kMenuAction), menu, userInfo});
        return panel->paperName != "Before"_L1;
    }
};

TEST_F(MenuActions, OfPaperSizesAloneAreFollowed)
{
    QComboBox papers;
    papers.addItems({u"Letter"_s, u"A4"_s});
    QComboBox others;
    others.addItems({u"A4 Borderless"_s, u"a4"_s});
    EXPECT_TRUE(choosingIsFollowed(&papers, QVariantMap()));
    EXPECT_FALSE(choosingIsFollowed(&others, QVariantMap()));
    EXPECT_FALSE(choosingIsFollowed(&papers, std::nullopt));
    EXPECT_FALSE(choosingIsFollowed(nullptr, QVariantMap()));
}

TEST_F(MenuActions, OfAMenuThatHasGoneAreIgnored)
{
    auto menu = std::make_unique<QComboBox>();
    menu->addItem(u"A4"_s);
    const QComboBox *address = menu.get();
    menu.reset();
    EXPECT_FALSE(choosingIsFollowed(address, QVariantMap()));
}

TEST_F(PaperChange, WithoutKeywordsThePanelFollowsThePaperMenu)
{
    session->bundle().overrideInfo({{u"PMPPDKeysSupported"_s, QVariant()}});
    ASSERT_TRUE(panel->initWithCallback(session->host()));
    EXPECT_EQ(registrations(), 3);
    QComboBox papers;
    papers.addItem(u"A4"_s);
    session->setPaper(u"A3"_s, u"A3"_s);
    NotificationCenter::defaultCenter().post(QString::fromLatin1(kMenuAction), &papers,
                                             QVariantMap());
    EXPECT_EQ(panel->paperName, u"A3"_s);
}

// A dialog that throws while it is asked.
class ThrowingHost : public HostCallback
{
public:
    using HostCallback::HostCallback;
    bool throwing = false;
    bool willChangePPDOptionKeyValue(const QString &keyword, const QString &choice) override
    {
        if (throwing)
            throw std::runtime_error("no");
        return HostCallback::willChangePPDOptionKeyValue(keyword, choice);
    }
};

TEST_F(PaperChange, AnExceptionEndsTheRegistrationsAndNothingElse)
{
    const auto host = std::make_shared<ThrowingHost>(session->ppd());
    host->format().paper = PMPaper{u"A4"_s, u"A4"_s, 595, 842};
    ASSERT_TRUE(panel->initWithCallback(host));
    panel->restoreValuesAndReturnError(nullptr);
    panel->panelView();
    panel->willShow();
    host->throwing = true;
    host->format().paper = PMPaper{u"EnvDL"_s, u"EnvDL"_s, 312, 624};
    NotificationCenter &center = NotificationCenter::defaultCenter();
    EXPECT_NO_THROW(center.post(u"PMPrintDestinationPaperDidChangeNotification"_s, host.get()));
    EXPECT_EQ(registrations(), 0);

    host->throwing = false;
    host->format().paper = PMPaper{u"A3"_s, u"A3"_s, 842, 1191};
    center.post(u"PMPrintDestinationPaperDidChangeNotification"_s, host.get());
    EXPECT_EQ(panel->paperName, u"EnvDL"_s);
    pickChoice(panel->outlet(u"mediaTypePopup"_s), u"Glossy"_s);
    EXPECT_EQ(panel->pending(), u"Glossy/Photo"_s);
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
}

} // namespace
