// The printers of a real server: listed, chosen, and what is said of them.
#include "dialog/printing/Presets.h"
#include "dialog/window/PrinterWatch.h"
#include "platform/toolkit/PlainText.h"
#include "tests/endtoend/DialogEndToEndFixture.h"
#include "tests/support/PlainTextWalk.h"
#include "tests/support/TrapFolder.h"

#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

/// The dialog without a named printer, on a server with three and no default one.
class DialogOfNoPrinter : public Dialog
{
protected:
    DialogOfNoPrinter()
    {
        EXPECT_EQ(m_server.fault(), QString());
        for (const char *name : {"closed", "first", "second"})
            EXPECT_TRUE(m_server.addQueue(QLatin1String(name), samplePPD(u"velkaro-px-t900"_s)));
        EXPECT_TRUE(m_server.command(u"cupsreject"_s, {u"closed"_s}));
    }

    std::unique_ptr<DialogWindow> openIt() { return open(lineFor(m_server.address(), QString())); }

    static QString queue(const DialogWindow &window) { return window.job().source().queue.queue; }

    PrintServer m_server;
};

TEST_F(DialogOfNoPrinter, ChoosesTheFirstThatTakesJobsAndSaysSo)
{
    const auto window = openIt();
    EXPECT_EQ(window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(queue(*window), u"first"_s);
    EXPECT_EQ(part<PopUpButton>(*window, "printerPopup")->selectedObject(), u"first"_s);
    EXPECT_EQ(window->notice().sentence(), u"first was chosen: it is the first printer that takes "
                                           "jobs, and none is the default."_s);
    EXPECT_EQ(window->notice().kind(), NoticeBar::Kind::Information);
}

TEST_F(DialogOfNoPrinter, ChoosesTheOneThatWasPrintedToLast)
{
    auto window = openIt();
    pick(*window, "printerPopup", u"second"_s);
    waitWhile(*window, DialogWindow::State::Searching);
    EXPECT_EQ(window->notice().sentence(), QString()) << "the user has chosen";
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    ASSERT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    window = openIt();
    EXPECT_EQ(queue(*window), u"second"_s);
    EXPECT_EQ(window->notice().sentence(), u"second was chosen: you printed to it last."_s);
}

TEST_F(DialogOfNoPrinter, SaysThatAServerHasNone)
{
    for (const char *name : {"closed", "first", "second"})
        EXPECT_TRUE(m_server.lpadmin({u"-x"_s, QLatin1String(name)}));
    const auto window = openIt();
    EXPECT_EQ(window->state(), DialogWindow::State::NoPrinter);
    EXPECT_EQ(window->notice().sentence(), u"The print server has no printer to print to."_s);
    ASSERT_TRUE(m_server.addQueue(u"new"_s, samplePPD(u"velkaro-px-t900"_s)));
    click(*window, "retryButton");
    waitWhile(*window, DialogWindow::State::Searching);
    EXPECT_EQ(queue(*window), u"new"_s);
}

TEST_F(DialogOfNoPrinter, FollowsThePrintersWhileItIsOpen)
{
    const auto window = openIt();
    window->findChild<PrinterWatch *>()->setPause(std::chrono::milliseconds(20));
    auto *printers = part<PopUpButton>(*window, "printerPopup");
    pick(*window, "mediaTypePopup", u"Glossy"_s);
    window->activateWindow();
    const auto *state = part<QLabel>(*window, "printerState");
    ASSERT_TRUE(m_server.command(u"cupsdisable"_s, {u"-r"_s, u"New ink comes"_s, u"first"_s}));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return state->text() == u"Stopped: jobs wait · New ink comes"_s; }, kTimeout))
        << state->text().toStdString();
    ASSERT_TRUE(m_server.lpadmin({u"-x"_s, u"first"_s}));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return window->notice().sentence() ==
                   u"The printer first is no longer on the print server. Choose another one; the "
                   "settings of this job stay."_s;
        },
        kTimeout))
        << window->notice().sentence().toStdString();
    EXPECT_EQ(printers->selectedObject(), u"first"_s);
    EXPECT_EQ(part<PopUpButton>(*window, "mediaTypePopup")->selectedObject(), u"Glossy"_s);
    EXPECT_EQ(window->state(), DialogWindow::State::Ready);
}

TEST_F(Dialog, ListsThePrintersAndTakesAnotherOne)
{
    ASSERT_TRUE(server().addQueue(u"home"_s, samplePPD(u"velkaro-mx-j710dw"_s)));
    const auto window = open(lineFor(server().address(), u"photo"_s));
    auto *printers = part<PopUpButton>(*window, "printerPopup");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return printers->indexOfRepresentedObject(u"home"_s) >= 0; }));
    EXPECT_EQ(printers->selectedObject(), u"photo"_s);
    pick(*window, "printerPopup", u"home"_s);
    waitWhile(*window, DialogWindow::State::Searching);
    EXPECT_EQ(window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(window->job().source().queue.queue, u"home"_s);
    EXPECT_TRUE(part<PopUpButton>(*window, "mediaTypePopup")->isVisible());
}

TEST_F(Dialog, ListsThePresetsOfAPrinterAsTheyAreNow)
{
    DialogWishes line = lineFor(server().address(), u"photo"_s);
    ASSERT_TRUE(savePreset(open(line)->job(), u"Holiday"_s));
    line.instance = u"Holiday"_s;
    const auto window = open(line);
    const auto *printers = part<PopUpButton>(*window, "printerPopup");
    const auto isListed = [&] {
        return printers->indexOfRepresentedObject(u"photo/Holiday"_s) >= 0 &&
               printers->indexOfRepresentedObject(u"photo"_s) >= 0;
    };
    ASSERT_TRUE(QTest::qWaitFor(isListed, kTimeout));
    QTimer::singleShot(0, window.get(), [] {
        for (auto *button : QApplication::activeModalWidget()->findChildren<QAbstractButton *>())
            if (button->text().remove(u'&') == u"Delete"_s)
                return QTest::mouseClick(button, Qt::LeftButton);
        static_cast<QDialog *>(QApplication::activeModalWidget())->reject();
    });
    part<QAction>(*window, "deletePreset")->trigger();
    EXPECT_EQ(printers->indexOfRepresentedObject(u"photo/Holiday"_s), -1) << "before the next list";
    waitWhile(*window, DialogWindow::State::Searching);
    EXPECT_EQ(printers->selectedObject(), u"photo"_s);
}

TEST_F(Dialog, ShowsWhatAServerSaysAsItStands)
{
    TrapFolder trap;
    const QString queue = u"q<b>A&amp;B"_s;
    const QString text = displayText(PlainTextWalk::foreignText(trap.fifo())).simplified();
    ASSERT_TRUE(server().addQueue(queue, samplePPD(u"velkaro-px-t900"_s)));
    ASSERT_TRUE(server().lpadmin({u"-p"_s, queue, u"-D"_s, text, u"-L"_s, text}));
    const auto window = open(lineFor(server().address(), queue));
    const auto *state = part<QLabel>(*window, "printerState");
    ASSERT_TRUE(QTest::qWaitFor([&] { return state->text() == text; }, kTimeout));
    ASSERT_TRUE(server().command(u"cupsreject"_s, {queue}));
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_TRUE(window->notice().sentence().contains(queue))
        << window->notice().sentence().toStdString();
    PlainTextWalk walk;
    walk.look();
    for (const char *place : {"SearchablePopUp printerPopup", "CaptionLabel printerState",
                              "NoticeLabel noticeLabel", "NoticeBar noticeBar"})
        EXPECT_TRUE(walk.seen().contains(QLatin1String(place))) << place;
    EXPECT_FALSE(trap.wasOpened());
    EXPECT_TRUE(server().lpadmin({u"-x"_s, queue}));
}

} // namespace
