#include "dialog/host/HostSession.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/pde/PDEPanelControls.h"
#include "platform/pde/PDEPanelInspection.h"
#include "platform/ppd/PPDText.h"
#include "tests/support/Files.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A session of the spying plug-in's two panels, "first" and "second".
class HostSessionTest : public testing::Test
{
protected:
    HostSessionTest()
    {
        m_options.ppdPath = m_folder.filePath(u"the.ppd"_s);
        m_options.bundlePath = QLatin1String(FIXTURE_FOLDER) + u"/Spy.bundle"_s;
        writeFile(m_options.ppdPath, smallPrinter().text());
    }

    HostSession &start()
    {
        m_session = *HostSession::open(m_options);
        m_session->start();
        return *m_session;
    }

    QStringList calls(const QString &panel) const
    {
        const auto *inspection = m_session->panelNamed(panel)->inspection;
        return inspection->inspectedOutputBin().value(u"calls"_s).toStringList();
    }

    const HostPanel &panel(const QString &name) const { return *m_session->panelNamed(name); }

    QTemporaryDir m_folder;
    SessionOptions m_options;
    std::unique_ptr<HostSession> m_session;
};

} // namespace

TEST_F(HostSessionTest, CreatesThePanelsInOrderAndHasEachRestoreItsValues)
{
    const HostSession &session = start();
    ASSERT_EQ(session.panels().size(), 2U);
    EXPECT_EQ(session.panels()[0].name, u"first"_s);
    EXPECT_EQ(session.panels()[1].name, u"second"_s);
    EXPECT_EQ(calls(u"first"_s), QStringList{u"restore"_s});
    EXPECT_EQ(calls(u"second"_s), QStringList{u"restore"_s});
}

TEST_F(HostSessionTest, CanLeaveTheRestoringOut)
{
    m_options.restore = false;
    start();
    EXPECT_EQ(calls(u"first"_s), QStringList());
}

TEST_F(HostSessionTest, AnUnknownDialogTypeHasNoPanels)
{
    m_options.dialogType = u"bdb091f4-e57f-11d3-b5cc-0050e4603277"_s;
    EXPECT_TRUE(start().panels().empty());
}

TEST_F(HostSessionTest, MarksTheChoicesOfTheOptionsOverTheDefaults)
{
    m_options.marks = {{u"Finish"_s, u"Shiny"_s}, {u"Weight"_s, u"Feather"_s}, {u"X"_s, u"Y"_s}};
    const HostSession &session = start();
    const QMap<QString, QString> expected{{u"PageSize"_s, u"A4"_s},
                                          {u"Duplex"_s, u"None"_s},
                                          {u"Weight"_s, u"Light"_s},
                                          {u"Finish"_s, u"Shiny"_s}};
    EXPECT_EQ(session.reportedMarks(), expected);
}

TEST_F(HostSessionTest, ThePaperIsTheMarkedOneUnlessItIsGiven)
{
    m_options.marks = {{u"PageSize"_s, u"A5"_s}};
    EXPECT_EQ(start().pageFormat().paper->name, u"A5"_s);
    m_options.paper = PMPaper{u"Mine"_s, QString(), 100, 200};
    const PMPaper given = *start().pageFormat().paper;
    EXPECT_EQ(given.name, u"Mine"_s);
    EXPECT_TRUE(given.ppdName.isNull());
    EXPECT_EQ(given.height, 200);
    EXPECT_EQ(markedChoice(m_session->ppd(), u"PageSize"_s), u"A5"_s);
}

TEST_F(HostSessionTest, AChoiceMadeElsewhereIsMarkedAndReportedToEveryPanel)
{
    m_options.marks = {{u"Weight"_s, u"Heavy"_s}};
    m_options.restore = false;
    EXPECT_TRUE(start().markElsewhere(u"Finish"_s, u"Shiny"_s)); // whatever it conflicts with
    EXPECT_EQ(markedChoice(m_session->ppd(), u"Finish"_s), u"Shiny"_s);
    EXPECT_EQ(calls(u"first"_s), QStringList{u"Finish=Shiny"_s});
    EXPECT_EQ(calls(u"second"_s), QStringList{u"Finish=Shiny"_s});
}

TEST_F(HostSessionTest, ADuplexChoicePostsItsNotificationAfterTheReports)
{
    m_options.restore = false;
    EXPECT_TRUE(start().markElsewhere(u"Duplex"_s, u"DuplexNoTumble"_s));
    const QStringList expected{u"Duplex=DuplexNoTumble"_s,
                               u"PMPrintDuplexChangedNotification of this dialog"_s};
    EXPECT_EQ(calls(u"first"_s), expected);
    EXPECT_EQ(calls(u"second"_s), expected);
}

TEST_F(HostSessionTest, AChoiceInOtherLettersIsMarkedAndReportedAsItIsSpelt)
{
    m_options.restore = false;
    EXPECT_TRUE(start().markElsewhere(u"FINISH"_s, u"shiny"_s));
    EXPECT_EQ(markedChoice(m_session->ppd(), u"Finish"_s), u"Shiny"_s);
    EXPECT_TRUE(m_session->markElsewhere(u"duplex"_s, u"DUPLEXNOTUMBLE"_s));
    const QStringList expected{u"Finish=Shiny"_s, u"Duplex=DuplexNoTumble"_s,
                               u"PMPrintDuplexChangedNotification of this dialog"_s};
    EXPECT_EQ(calls(u"first"_s), expected);
}

TEST_F(HostSessionTest, AKeywordInOtherLettersIsReportedAsThePanelsKnowIt)
{
    writeFile(m_options.ppdPath, PPDSource()
                                     .option("duplex/Two-Sided", {"None", "DuplexNoTumble"})
                                     .option("finish", {"Matt", "Shiny"})
                                     .text());
    m_options.restore = false;
    EXPECT_TRUE(start().markElsewhere(u"duplex"_s, u"DuplexNoTumble"_s));
    EXPECT_EQ(calls(u"first"_s),
              (QStringList{u"Duplex=DuplexNoTumble"_s,
                           u"PMPrintDuplexChangedNotification of this dialog"_s}));
    const QMap<QString, QString> expected{{u"Duplex"_s, u"DuplexNoTumble"_s},
                                          {u"Finish"_s, u"Matt"_s}};
    EXPECT_EQ(m_session->reportedMarks(), expected);
}

TEST_F(HostSessionTest, AChoiceThatThePPDLacksChangesNothing)
{
    m_options.restore = false;
    EXPECT_FALSE(start().markElsewhere(u"Finish"_s, u"Shin"_s));
    EXPECT_FALSE(m_session->markElsewhere(u"Coat"_s, u"Shiny"_s));
    EXPECT_EQ(markedChoice(m_session->ppd(), u"Finish"_s), u"Matt"_s);
    EXPECT_EQ(calls(u"first"_s), QStringList());
}

TEST_F(HostSessionTest, ANewPaperIsInPlaceWhenItsNotificationIsPosted)
{
    m_options.restore = false;
    start().setPaper({u"A5"_s, u"A5"_s, 420, 595}, u"A3"_s);
    EXPECT_EQ(m_session->pageFormat().paper->name, u"A5"_s);
    EXPECT_EQ(markedChoice(m_session->ppd(), u"PageSize"_s), u"A5"_s);
    EXPECT_EQ(m_session->ticket().values().value(u"com.apple.print.PageToPaperMappingMediaName"_s),
              u"A3"_s);
    EXPECT_EQ(calls(u"second"_s),
              QStringList{u"PMPrintDestinationPaperDidChangeNotification of this dialog"_s});
}

TEST_F(HostSessionTest, APaperOfTheUsersOwnLeavesTheMarkAndTheMappingAlone)
{
    start().setPaper({u"A5"_s, u"A5"_s, 420, 595}, u"A3"_s);
    m_session->setPaper({u"Mine"_s, QString(), 100, 200});
    EXPECT_EQ(markedChoice(m_session->ppd(), u"PageSize"_s), u"A5"_s);
    EXPECT_EQ(m_session->ticket().values().size(), 1);
    m_session->setPaper({u"Mine"_s, QString(), 100, 200}, QString());
    EXPECT_TRUE(m_session->ticket().values().isEmpty());
}

TEST_F(HostSessionTest, TheTicketKeepsTheKindsOfItsValues)
{
    m_options.ticket = {{u"text"_s, u"7"_s}, {u"number"_s, 7}, {u"flag"_s, true}};
    start().writeTicket(u"number"_s, 7.5);
    m_session->writeTicket(u"flag"_s, QVariant());
    const QVariantMap expected{{u"text"_s, u"7"_s}, {u"number"_s, 7.5}};
    EXPECT_EQ(m_session->ticket().values(), expected);
}

TEST_F(HostSessionTest, ShowingLoadsTheViewAndTellsThePanel)
{
    m_options.restore = false;
    QWidget *view = start().show(panel(u"first"_s));
    EXPECT_EQ(view, panel(u"first"_s).controls->loadedView());
    EXPECT_TRUE(m_session->hide(panel(u"first"_s)));
    EXPECT_EQ(calls(u"first"_s), (QStringList{u"willShow"_s, u"shouldHide"_s}));
}

TEST_F(HostSessionTest, APanelWithoutAViewIsNotToldThatItIsShown)
{
    m_options.restore = false;
    EXPECT_EQ(start().show(panel(u"second"_s)), nullptr);
    EXPECT_EQ(calls(u"second"_s), QStringList());
}

TEST_F(HostSessionTest, AResizedWindowPostsForLoadedViewsAlone)
{
    m_options.restore = false;
    start().windowDidResize();
    EXPECT_EQ(calls(u"first"_s), QStringList());
    m_session->show(panel(u"first"_s));
    m_session->windowDidResize();
    EXPECT_EQ(calls(u"first"_s).mid(1), QStringList{u"NSViewDidUpdateTrackingAreasNotification"_s});
}

TEST_F(HostSessionTest, EveryPanelIsAskedBeforePrinting)
{
    const PrintAnswer answer = start().askShouldPrint();
    EXPECT_TRUE(answer.proceed);
    EXPECT_EQ(answer.asked, (QStringList{u"first"_s, u"second"_s}));
}

TEST_F(HostSessionTest, TheFirstVetoEndsTheAsking)
{
    m_options.marks = {{u"Weight"_s, u"Heavy"_s}};
    const PrintAnswer answer = start().askShouldPrint();
    EXPECT_FALSE(answer.proceed);
    EXPECT_EQ(answer.asked, QStringList{u"first"_s});
    EXPECT_FALSE(calls(u"second"_s).contains(u"shouldPrint"_s));
}

TEST_F(HostSessionTest, ClosingReleasesThePanelsAndKeepsTheJobReadable)
{
    start().writeTicket(u"key"_s, 1);
    m_session->close();
    EXPECT_FALSE(m_session->isRunning());
    EXPECT_TRUE(m_session->panels().empty());
    EXPECT_EQ(m_session->ticket().values().size(), 1);
    EXPECT_EQ(m_session->reportedMarks().value(u"Finish"_s), u"Matt"_s);
}

TEST_F(HostSessionTest, WithoutAPlugInThereAreNoPanels)
{
    m_options.bundlePath = u"/nowhere"_s;
    const HostSession &session = start();
    ASSERT_TRUE(session.plugInFault());
    EXPECT_EQ(session.plugInFault()->reason, PlugInFaultReason::BundleMissing);
    EXPECT_TRUE(session.panels().empty());
    EXPECT_EQ(session.reportedMarks().keys(), (QStringList{u"Duplex"_s, u"PageSize"_s}));
}

TEST_F(HostSessionTest, APPDThatCannotBeOpenedGivesNoSession)
{
    m_options.ppdPath = u"/nowhere.ppd"_s;
    const auto opened = HostSession::open(m_options);
    EXPECT_EQ(opened.faultKind(), FaultKind::PPD);
    EXPECT_EQ(opened.sentence(), u"The PPD file /nowhere.ppd does not exist."_s);
}

TEST_F(HostSessionTest, StartsWithTheAlertMemoryThatItIsGiven)
{
    UserDefaults::standardUserDefaults().setFolder(QString());
    m_options.alertMemory = QVariantMap{{u"Best Alert"_s, false}};
    EXPECT_EQ(start().alertMemory(), *m_options.alertMemory);
    m_options.alertMemory = QVariantMap();
    EXPECT_EQ(start().alertMemory(), QVariantMap());
}

TEST_F(HostSessionTest, FindsWhatAPanelTellsOfItselfInTheVersionThatItKnows)
{
    start();
    PDEPanel &told = *panel(u"first"_s).panel;
    EXPECT_EQ(panel(u"first"_s).controls, dynamic_cast<PDEPanelControls *>(&told));
    EXPECT_EQ(panel(u"first"_s).inspection, dynamic_cast<PDEPanelInspection *>(&told));
    EXPECT_EQ(told.extension("com.velkaro.print.PDEPanelControls/2"_L1), nullptr);

    m_session.reset();
    m_options.bundlePath = QLatin1String(FIXTURE_FOLDER) + u"/Plain.bundle"_s;
    const HostPanel &plain = start().panels().front();
    EXPECT_EQ(plain.name, u"com.velkaro.test.plain"_s);
    EXPECT_EQ(plain.controls, nullptr);
    EXPECT_EQ(plain.inspection, nullptr);
}

TEST_F(HostSessionTest, KnowsTheViewOfAPanelThatTellsNothingOfIt)
{
    m_options.bundlePath = QLatin1String(FIXTURE_FOLDER) + u"/Plain.bundle"_s;
    HostSession &session = start();
    const HostPanel &plain = session.panels().front();
    EXPECT_EQ(session.loadedView(plain), nullptr);
    QWidget *view = session.show(plain);
    EXPECT_NE(view, nullptr);
    EXPECT_EQ(session.loadedView(plain), view);
}
