#include "dialog/host/HostCallback.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "tests/printsettings/PrintPanel.h"
#include "tests/support/PPDSource.h"

#include <QtWidgets/QComboBox>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kMappedPaper = "com.apple.print.PageToPaperMappingMediaName";

void setTicket(PanelSession &session, const char *key, const QVariant &value)
{
    PMPrintSettingsSetValue(&session.host()->ticket(), QString::fromLatin1(key), value, false);
}

class PageSetup : public PrintPanelTest
{
protected:
    int registrations() const
    {
        return NotificationCenter::defaultCenter().registrationCount(panel.get());
    }

    // Whether the reading changed something; the outcome without the panel's other rules.
    bool read(const QString &name, const QString &ppdName, QSizeF size = {595, 842})
    {
        session->setPaper(name, ppdName, size);
        return panel->readPageSetup();
    }
    bool read(const QString &name) { return read(name, name); }
};

// --- The paper's name ----------------------------------------------------------------------------

TEST_F(PageSetup, TheSamePaperAgainChangesNothing)
{
    open();
    const QVariantMap before = panel->outputBin();
    const std::int32_t flags = panel->imageModeFlag();
    EXPECT_FALSE(read(u"A4"_s));
    session->changePaper(u"A4"_s);
    EXPECT_EQ(panel->outputBin(), before);
    EXPECT_EQ(panel->imageModeFlag(), flags);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(PageSetup, TheMappedPaperComesBeforeThePagesOwn)
{
    open();
    setTicket(*session, kMappedPaper, u"EnvDL"_s);
    EXPECT_TRUE(read(u"A3"_s));
    EXPECT_EQ(panel->paperName, u"EnvDL"_s);
    EXPECT_TRUE(panel->hasFlag(EnvelopePaper));
    setTicket(*session, kMappedPaper, QVariant());
    EXPECT_TRUE(panel->readPageSetup());
    EXPECT_EQ(panel->paperName, u"A3"_s);
}

struct Letter
{
    QString ppdName;
    QSizeF size;
    QString name; ///< what the panel makes of it
};

// The limits of this printer are 182 to 936 points by 254 to 1368 points.
TEST_F(PageSetup, AUsersOwnLetterOutsideThePrintersLimitsIsUnsupported)
{
    open();
    for (const Letter &row :
         {Letter{{}, {937, 842}, u"UnsupportedPaper"_s},
          Letter{{}, {936.5, 842}, u"UnsupportedPaper"_s}, Letter{{}, {936, 842}, u"Letter"_s},
          Letter{{}, {595, 1369}, u"UnsupportedPaper"_s}, Letter{{}, {595, 1368}, u"Letter"_s},
          Letter{{}, {181, 842}, u"UnsupportedPaper"_s}, Letter{{}, {182, 842}, u"Letter"_s},
          Letter{{}, {595, 253}, u"UnsupportedPaper"_s}, Letter{{}, {595, 254}, u"Letter"_s},
          Letter{u"Letter"_s, {9999, 9999}, u"Letter"_s}}) {
        panel->paperName = u"Before"_s;
        EXPECT_TRUE(read(u"Letter"_s, row.ppdName, row.size));
        EXPECT_EQ(panel->paperName, row.name) << row.size.width() << " x " << row.size.height();
    }
    panel->paperName = u"Before"_s;
    EXPECT_TRUE(read(u"letter"_s, {}, {9999, 9999}));
    EXPECT_EQ(panel->paperName, u"letter"_s);
}

TEST_F(PageSetup, AMappedLetterWithoutAPaperStaysLetter)
{
    open();
    setTicket(*session, kMappedPaper, u"Letter"_s);
    session->host()->format().paper.reset();
    EXPECT_TRUE(panel->readPageSetup());
    EXPECT_EQ(panel->paperName, u"Letter"_s);
}

TEST_F(PageSetup, APageThatCannotBeReadChangesNothing)
{
    open();
    session->host()->format().paper->name = QString();
    EXPECT_FALSE(panel->readPageSetup());
    session->host()->format().paper.reset();
    EXPECT_FALSE(panel->readPageSetup());
    session->setPaper(u"A3"_s, u"A3"_s);
    session->host()->setLacking({HostOperation::PageFormat});
    EXPECT_FALSE(panel->readPageSetup());
    session->host()->setLacking({HostOperation::PrintSettings});
    EXPECT_FALSE(panel->readPageSetup());
    EXPECT_EQ(panel->paperName, u"A4"_s);
    EXPECT_EQ(registrations(), 2);
}

// A host whose ticket is missing though it offers one.
class HostWithoutTicket : public HostCallback
{
public:
    using HostCallback::HostCallback;
    bool missing = false;
    PMPrintSettings *printSettings() const override
    {
        return missing ? nullptr : HostCallback::printSettings();
    }
};

TEST_F(PageSetup, AMissingTicketEndsTheRegistrations)
{
    const auto host = std::make_shared<HostWithoutTicket>(session->ppd());
    host->format().paper = PMPaper{u"A4"_s, u"A4"_s, 595, 842};
    ASSERT_TRUE(panel->initWithCallback(host));
    EXPECT_EQ(registrations(), 2);
    host->missing = true;
    EXPECT_FALSE(panel->readPageSetup());
    EXPECT_EQ(registrations(), 0);
    EXPECT_EQ(panel->paperName, u"A4"_s);
}

// --- What the paper brings -----------------------------------------------------------------------

TEST_F(PageSetup, ADiscTakesThePrintableDiscAndLeavingItPlainPaper)
{
    open();
    EXPECT_TRUE(read(u"120x120mm"_s));
    EXPECT_EQ(pending(u"VKMediaType"_s), u"PrintableDisc"_s);
    EXPECT_TRUE(panel->hasFlag(DiscPaper));
    EXPECT_FALSE(panel->hasFlag(PreviousDiscPaper));
    EXPECT_TRUE(read(u"A4"_s));
    EXPECT_EQ(pending(u"VKMediaType"_s), u"Plain"_s);
    EXPECT_FALSE(panel->hasFlag(DiscPaper));
    EXPECT_TRUE(panel->hasFlag(PreviousDiscPaper));
    EXPECT_TRUE(read(u"A3"_s));
    EXPECT_FALSE(panel->hasFlag(PreviousDiscPaper));
}

TEST_F(PageSetup, FromOneDiscToAnotherSetsPlainPaperWhichTheConstraintsReplace)
{
    open();
    session->changePaper(u"120x120mm"_s);
    log();
    EXPECT_TRUE(read(u"VkDisc12cm"_s));
    EXPECT_EQ(log(), QStringList({u"VKMediaType=Plain"_s}));
    EXPECT_EQ(pending(u"VKMediaType"_s), u"Plain"_s);
    EXPECT_TRUE(panel->hasFlag(DiscPaper));
    EXPECT_TRUE(panel->hasFlag(PreviousDiscPaper));
    panel->checkConstraints();
    EXPECT_EQ(panel->pending(), u"PrintableDisc/DiscNormal"_s);
}

TEST_F(PageSetup, FromOneDiscToAnotherTellsTheHostBoth)
{
    open();
    session->changePaper(u"120x120mm"_s);
    log();
    session->changePaper(u"VkDisc12cm"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=Plain"_s, u"VKMediaType=PrintableDisc"_s,
                                  u"VKBiDir=ON"_s, u"mono NO"_s}));
    EXPECT_EQ(panel->pending(), u"PrintableDisc/DiscNormal"_s);
}

TEST_F(PageSetup, ACustomPaperInheritsTheThicknessOfThePaperBefore)
{
    open();
    EXPECT_TRUE(read(u"EnvDL"_s));
    EXPECT_EQ(pending(u"VKColorPaperThick"_s), u"Env"_s);
    EXPECT_TRUE(read(u"Custom.300x400"_s, {}, {300, 400}));
    EXPECT_EQ(pending(u"VKColorPaperThick"_s), u"Env"_s);
    EXPECT_TRUE(panel->hasFlag(EnvelopePaper));
    EXPECT_TRUE(panel->hasFlag(BiDirLeftAlone));
    EXPECT_TRUE(read(u"A4"_s));
    EXPECT_EQ(pending(u"VKColorPaperThick"_s), u"Regular"_s);
    EXPECT_TRUE(read(u"Custom.301x400"_s, {}, {301, 400}));
    EXPECT_EQ(pending(u"VKColorPaperThick"_s), u"Regular"_s);
    EXPECT_FALSE(panel->hasFlag(EnvelopePaper));
    EXPECT_FALSE(panel->hasFlag(BiDirLeftAlone));
}

TEST_F(PageSetup, AThicknessOfTheUsersOwnGoesWithThePaper)
{
    show();
    panel->setAndMarkValue(u"Thick"_s, u"VKColorPaperThick"_s);
    EXPECT_TRUE(read(u"A3"_s));
    EXPECT_EQ(pending(u"VKColorPaperThick"_s), u"Regular"_s);
    EXPECT_TRUE(read(u"EnvDL"_s));
    EXPECT_EQ(popup(u"paperThickPopup"_s)->selectedObject(), u"Env"_s);
    EXPECT_TRUE(read(u"A4"_s));
    EXPECT_EQ(popup(u"paperThickPopup"_s)->selectedObject(), u"Regular"_s);
}

TEST_F(PageSetup, AnEnvelopeOrPostcardLeavesTheDirectionAlone)
{
    show();
    for (const QString &name : {u"EnvDL"_s, u"Postcard"_s, u"VkHagaki_B"_s, u"EnvChou3"_s}) {
        for (const QString &direction : {u"ON"_s, u"OFF"_s}) {
            read(u"A4"_s);
            panel->recordPendingValue(u"VKBiDir"_s, direction);
            log();
            EXPECT_TRUE(read(name));
            EXPECT_EQ(pending(u"VKBiDir"_s), direction) << qPrintable(name);
            EXPECT_TRUE(panel->hasFlag(BiDirLeftAlone)) << qPrintable(name);
            EXPECT_EQ(session->log().takeOffers().filter(u"VKBiDir"_s), QStringList());
        }
    }
}

TEST_F(PageSetup, AnyOtherPaperPrintsPlainMediaInBothDirections)
{
    show();
    for (const auto &[medium, direction] :
         {std::pair(u"Plain"_s, u"ON"_s), std::pair(u"HagakiAtena"_s, u"ON"_s),
          std::pair(u"PlainDuplex"_s, u"ON"_s), std::pair(u"Glossy"_s, u"OFF"_s),
          std::pair(u"Transparencies"_s, u"OFF"_s)}) {
        EXPECT_TRUE(read(u"A4.Fullbleed"_s));
        panel->recordPendingValue(u"VKMediaType"_s, medium);
        log();
        EXPECT_TRUE(read(u"A3"_s));
        EXPECT_EQ(pending(u"VKBiDir"_s), direction) << qPrintable(medium);
        EXPECT_EQ(box(u"biDirButton"_s)->isChecked(), direction == "ON"_L1);
        EXPECT_EQ(log(), QStringList({u"VKBiDir="_s + direction}));
        EXPECT_TRUE(read(u"A4"_s));
    }
}

TEST_F(PageSetup, BeforeTheViewTheDirectionIsOnlyRecorded)
{
    open();
    panel->recordPendingValue(u"VKMediaType"_s, u"Glossy"_s);
    EXPECT_TRUE(read(u"A3"_s));
    EXPECT_EQ(pending(u"VKBiDir"_s), u"OFF"_s);
    EXPECT_EQ(session->marked(u"VKBiDir"_s), u"ON"_s);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(PageSetup, BorderlessPapersAreNoted)
{
    open();
    for (const auto &[name, borderless] :
         {std::pair(u"A4.Fullbleed"_s, true), std::pair(u"VkHagaki_B"_s, true),
          std::pair(u"A3"_s, false), std::pair(u"VkA3_S"_s, false)}) {
        EXPECT_TRUE(read(name));
        EXPECT_EQ(panel->hasFlag(BorderlessPaper), borderless) << qPrintable(name);
    }
}

// --- The change ----------------------------------------------------------------------------------

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

TEST_F(PageSetup, AWarnedChangeAppliesTheDefaultsOfTheMedium)
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

TEST_F(PageSetup, AnUnwarnedChangePostsNothingAboutColorMatching)
{
    show();
    session->changePaper(u"A3"_s);
    EXPECT_EQ(log(), QStringList({u"VKBiDir=ON"_s, u"VKBiDir=ON"_s, u"mono NO"_s, u"mono NO"_s}));
}

TEST_F(PageSetup, ADiscAppliesTheDefaultsOfTheDisc)
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

TEST_F(PageSetup, AnEnvelopeTurnsTheDirectionOffByTheRulesThatFollow)
{
    show();
    session->changePaper(u"EnvDL"_s);
    EXPECT_EQ(log(), QStringList({u"VKColorPaperThick=Env"_s, u"VKBiDir=OFF"_s, u"mono NO"_s,
                                  u"mono NO"_s}));
    EXPECT_EQ(stateOf(box(u"biDirButton"_s)), u"off disabled"_s);
}

// --- Menus, exceptions ---------------------------------------------------------------------------

constexpr auto kMenuAction = "NSMenuDidSendActionNotification";

class MenuActions : public PageSetup
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

TEST_F(PageSetup, WithoutKeywordsThePanelFollowsThePaperMenu)
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

TEST_F(PageSetup, AnExceptionEndsTheRegistrationsAndNothingElse)
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

// --- Two-sided printing --------------------------------------------------------------------------

class TwoSided : public PrintPanelTest
{};

TEST_F(TwoSided, IsOnWhereAnotherChoiceThanTheDefaultIsMarked)
{
    open();
    for (const auto &[choice, on] : {std::pair("None", false), std::pair("DuplexNoTumble", true),
                                     std::pair("DuplexTumble", true), std::pair("None", false)}) {
        ppdMarkOption(session->ppd(), "Duplex", choice);
        panel->checkDuplex();
        EXPECT_EQ(panel->hasFlag(DuplexOn), on) << choice;
    }
}

TEST_F(TwoSided, IsNeverOnForAPrinterWithoutTheTwoSidedMedium)
{
    useSample(u"velkaro-px-330c"_s);
    open();
    ppdMarkOption(session->ppd(), "Duplex", "DuplexNoTumble");
    panel->setFlag(DuplexOn, true);
    panel->checkDuplex();
    EXPECT_FALSE(panel->hasFlag(DuplexOn));
}

TEST_F(TwoSided, IsNeverOnForAPrinterWithoutDuplex)
{
    usePrinter(PPDSource().option("VKMediaType", {"Plain", "PlainDuplex"}).open());
    open();
    panel->setFlag(DuplexOn, true);
    panel->checkDuplex();
    EXPECT_FALSE(panel->hasFlag(DuplexOn));
}

TEST_F(TwoSided, TurnedOnTakesThePlaceOfPlainPaper)
{
    open();
    panel->recordPendingValue(u"VKResolution"_s, u"High"_s);
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=PlainDuplex"_s, u"VKResolution=PlainNormal"_s}));
    EXPECT_EQ(panel->pending(), u"PlainDuplex/PlainNormal"_s);
}

TEST_F(TwoSided, TurnedOnShowsPlainPaperWithoutItsHighQuality)
{
    show();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=PlainDuplex"_s, u"mono NO"_s}));
    EXPECT_EQ(popup(u"mediaTypePopup"_s)->selectedObject(), u"Plain"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"PlainFast PlainNormal* Best"_s);
    EXPECT_EQ(panel->pending(), u"PlainDuplex/PlainNormal"_s);
}

TEST_F(TwoSided, TurnedOnChangesNothingForAnotherMedium)
{
    show();
    pickChoice(panel->outlet(u"mediaTypePopup"_s), u"Glossy"_s);
    log();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    EXPECT_EQ(log(), QStringList());
    EXPECT_EQ(panel->pending(), u"Glossy/Photo"_s);
    // The next read-back commits the two-sided medium whatever the pop-up shows.
    panel->saveAllValues();
    EXPECT_EQ(log(), QStringList({u"VKMediaType=PlainDuplex"_s}));
    EXPECT_EQ(popup(u"mediaTypePopup"_s)->selectedObject(), u"Glossy"_s);
}

TEST_F(TwoSided, StayingOnDoesNothing)
{
    show();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    log();
    session->mark(u"Duplex"_s, u"DuplexTumble"_s);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(TwoSided, TurnedOffRefreshesThePanelAndLeavesTheMediumToTheSaving)
{
    show();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    log();
    session->mark(u"Duplex"_s, u"None"_s);
    EXPECT_EQ(panel->pending(), u"PlainDuplex/PlainNormal"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"PlainFast PlainNormal* High Best"_s);
    EXPECT_EQ(log(), QStringList({u"mono NO"_s}));
    session->mark(u"Duplex"_s, u"None"_s);
    EXPECT_EQ(log(), QStringList({u"mono NO"_s}));
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
}

TEST_F(TwoSided, TurnedOffBeforeTheViewDoesNothing)
{
    open();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    log();
    session->mark(u"Duplex"_s, u"None"_s);
    EXPECT_EQ(log(), QStringList());
    EXPECT_EQ(panel->pending(), u"PlainDuplex/PlainNormal"_s);
}

} // namespace
