#include "dialog/host/HostCallback.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "tests/printsettings/PrintPanel.h"

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

} // namespace
