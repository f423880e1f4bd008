// What a printer tells of its supplies, all the way from its device to people.
#include "dialog/cups/PrinterCondition.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/SupplyBar.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/endtoend/DeviceFixture.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestShowing = 20000; // ms

// A device speaks while it prints.
constexpr auto kInkBackend = R"(#!/bin/sh
[ $# -eq 0 ] && { echo 'direct ink "Ink" "Ink"'; exit 0; }
cat ${6:+"$6"} > /dev/null
cat >&2 << END
ATTR: marker-names='"Cyan ink","Black ink","Waste ink"' marker-colors=#00FFFF,#000000,none
ATTR: marker-levels=7,-3,40 marker-low-levels=10,10,0 marker-high-levels=100,100,90
ATTR: marker-types=ink-cartridge,ink-cartridge,waste-ink
STATE: +marker-supply-low-warning
END
exit 0
)";

class Ink : public DeviceFixture
{
protected:
    static void SetUpTestSuite()
    {
        DeviceFixture::SetUpTestSuite();
        ASSERT_TRUE(server().addBackend(u"ink"_s, kInkBackend));
        const QString ppd = server().outputOf(u"ink.ppd"_s);
        writeFile(ppd, PPDSource()
                           .papers({{"A4", 595, 842}})
                           .option("ColorModel/Color", {"RGB/Color", "Gray/Black"})
                           .text());
        ASSERT_TRUE(
            server().lpadmin({u"-p"_s, u"ink"_s, u"-E"_s, u"-v"_s, u"ink:/one"_s, u"-P"_s, ppd}));
    }

    /// The device has spoken.
    void hearDevice() { ASSERT_EQ(server().waitForJob(u"ink"_s, print(u"ink"_s)), 9); }

    Result<PrinterCondition> condition()
    {
        CallGuard guard;
        return askCondition(server().address(), u"ink"_s, guard);
    }

    QString warningsOf(const QStringList &options)
    {
        const ProgramRun run = runProgram(
            QStringList{u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, u"ink"_s} +
            options + QStringList{document()});
        EXPECT_EQ(run.status, 0);
        return run.errors;
    }
};

TEST_F(Ink, IsReportedByTheServerAsTheDeviceSaysIt)
{
    hearDevice();
    const auto told = condition();
    ASSERT_TRUE(told) << told.sentence().toStdString();
    EXPECT_EQ(
        told->supplies,
        (QList<Supply>{{u"Cyan ink"_s, {0xff00ffff}, false, 7, SupplyState::Low},
                       {u"Black ink"_s, {0xff000000}, false, std::nullopt, SupplyState::SomeLeft},
                       {u"Waste ink"_s, {}, true, 40, SupplyState::Good}}));
    EXPECT_TRUE(told->loaded.isEmpty()) << "the server's list of sizes is no tray";
}

TEST_F(Ink, ThatIsLowIsToldBeforeAJobThatNeedsIt)
{
    hearDevice();
    EXPECT_EQ(warningsOf({}), u"velkaro-print: Running low in the printer: Cyan ink.\n"_s);
    EXPECT_EQ(warningsOf({u"-o"_s, u"ColorModel=Gray"_s}), QString());
    EXPECT_TRUE(warningsOf({u"--dry-run"_s})
                    .startsWith(u"velkaro-print: Running low in the printer: Cyan ink.\n"_s));
}

TEST_F(Ink, AndTheQueueAreShownInTheDialog)
{
    hearDevice();
    ASSERT_TRUE(server().command(u"cupsdisable"_s, {u"ink"_s}));
    print(u"ink"_s);
    UserDefaults::standardUserDefaults().setFolder(QString());
    DialogWishes wishes;
    wishes.server = server().address();
    wishes.queue = u"ink"_s;
    wishes.files = {document()};
    DialogWindow window(wishes);
    window.start();
    window.show();
    const auto *tabs = window.findChild<QTabWidget *>(u"parts"_s);
    const auto *state = window.findChild<QLabel *>(u"printerState"_s);
    EXPECT_EQ(window.findChild<SupplyBar *>(), nullptr) << "before anything is known";
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.findChild<SupplyBar *>() != nullptr; },
                                kLongestShowing));
    EXPECT_EQ(QString(tabs->tabText(tabs->count() - 1)).remove(u'&'), u"Supplies"_s);
    EXPECT_EQ(window.notice().sentence(), u"Running low in the printer: Cyan ink."_s);
    EXPECT_EQ(window.notice().kind(), NoticeBar::Kind::Warning);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return state->text() == u"Stopped: jobs wait · Warning: Ink or toner is low · "
                                    "Jobs in the queue: 1"_s;
        },
        kLongestShowing))
        << state->text().toStdString();
    EXPECT_TRUE(window.showPart(u"supplies"_s));
    QStringList levels;
    for (const QLabel *label : window.findChildren<QLabel *>(u"supplyLevel"_s))
        levels += label->text();
    EXPECT_EQ(levels, (QStringList{u"Low: 7%"_s, u"Some left"_s, u"40% full"_s}));
    ASSERT_TRUE(server().command(u"cupsenable"_s, {u"ink"_s}));
}

TEST_F(Ink, IsToldBesideThePrinterThatTheDialogHasChosen)
{
    hearDevice();
    qputenv("PRINTER", "ink");
    UserDefaults::standardUserDefaults().setFolder(QString());
    DialogWishes wishes;
    wishes.server = server().address();
    wishes.files = {document()};
    DialogWindow window(wishes);
    window.start();
    window.show();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return window.notice().sentence() == u"ink was chosen: LPDEST or PRINTER names it. "
                                                 "Running low in the printer: Cyan ink."_s;
        },
        kLongestShowing))
        << window.notice().sentence().toStdString();
    EXPECT_EQ(window.notice().kind(), NoticeBar::Kind::Warning);
    qunsetenv("PRINTER");
}

TEST_F(Ink, ThatNobodyTellsOfIsNotShown)
{
    DialogWishes wishes;
    wishes.server = server().address();
    wishes.queue = u"finish"_s;
    wishes.files = {document()};
    CallGuard guard;
    const PrinterCondition told = *askCondition(server().address(), u"finish"_s, guard);
    PrinterCondition nothing;
    nothing.terms = told.terms;
    nothing.changeTime = told.changeTime;
    EXPECT_EQ(told, nothing);
    DialogWindow window(wishes);
    window.start();
    window.show();
    const auto *state = window.findChild<QLabel *>(u"printerState"_s);
    const auto *tabs = window.findChild<QTabWidget *>(u"parts"_s);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return window.state() == DialogWindow::State::Ready && state->text().isEmpty(); },
        kLongestShowing));
    EXPECT_EQ(QString(tabs->tabText(tabs->count() - 1)).remove(u'&'), u"Summary"_s);
    EXPECT_FALSE(window.showPart(u"supplies"_s));
}

} // namespace
