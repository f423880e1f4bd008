#include "dialog/window/DialogWindow.h"
#include "dialog/window/PrinterWatch.h"
#include "dialog/window/SearchList.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/endtoend/PrintServerFixture.h"
#include "tests/endtoend/ShownTitle.h"
#include "tests/servers/IppBytes.h"
#include "tests/servers/ScriptedServer.h"
#include "tests/support/EventLoopWatch.h"
#include "tests/support/LpoptionsFolder.h"
#include "tests/support/PlainTextWalk.h"
#include "tests/support/TrapFolder.h"

#include <QtCore/QAbstractProxyModel>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtNetwork/QTcpServer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

#include <cups/ipp.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeout = 20000; // ms
constexpr int kHeld = 3000;     // ms: far more than an event may wait, and less than a server may

/// The real dialog on a queue of a real server, used with the mouse and the keyboard.
class Dialog : public PrintServerFixture
{
protected:
    Dialog() { UserDefaults::standardUserDefaults().setFolder(QString()); }

    DialogWishes lineFor(const QString &address, const QString &queue)
    {
        DialogWishes line;
        line.server = address;
        line.queue = queue;
        line.plugIn = builtBundle();
        line.files = {pdf()};
        return line;
    }

    /// The dialog on the screen, when its printer has been found or not.
    std::unique_ptr<DialogWindow> open(const DialogWishes &line)
    {
        auto window = std::make_unique<DialogWindow>(line);
        window->start();
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        waitWhile(*window, DialogWindow::State::Searching);
        return window;
    }

    static void waitWhile(const DialogWindow &window, DialogWindow::State state)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.state() != state; }, kTimeout));
    }

    template <typename Widget> static Widget *part(const QWidget &window, const char *name)
    {
        auto *found = window.findChild<Widget *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    static void click(const QWidget &window, const char *button)
    {
        QTest::mouseClick(part<QAbstractButton>(window, button), Qt::LeftButton);
    }

    /// Opens the pop-up's list with a click and takes the item with Return.
    static void pick(const QWidget &window, const char *name, const QString &choice)
    {
        auto *popup = part<PopUpButton>(window, name);
        ASSERT_TRUE(popup->isVisible()) << name;
        const int index = popup->indexOfRepresentedObject(choice);
        ASSERT_GE(index, 0) << choice.toStdString();
        QTest::mouseClick(popup, Qt::LeftButton);
        if (const auto *search = popup->findChild<SearchList *>())
            pickFound(*search, index);
        else
            pickListed(popup->view(), index);
        ASSERT_EQ(popup->selectedObject(), choice);
    }

private:
    static void pickListed(QAbstractItemView *list, int row)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return list->isVisible(); }));
        list->setCurrentIndex(list->model()->index(row, 0));
        QTest::keyClick(list, Qt::Key_Return);
    }

    /// A list that is searched by typing leaves the keys to the words.
    static void pickFound(const SearchList &search, int row)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return search.isVisible(); }));
        auto *list = part<QAbstractItemView>(search, "searchRows");
        const auto *found = qobject_cast<const QAbstractProxyModel *>(list->model());
        list->setCurrentIndex(found->mapFromSource(found->sourceModel()->index(row, 0)));
        QTest::keyClick(part<QLineEdit>(search, "searchField"), Qt::Key_Return);
    }

    const LpoptionsFolder m_lpoptions; // no test starts from what another one printed with
};

TEST_F(Dialog, APickThatIsPrintedArrivesInTheJobAndInThePrinter)
{
    const auto window = open(lineFor(server().address(), u"photo"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready)
        << window->notice().sentence().toStdString();
    pick(*window, "mediaTypePopup", u"Glossy"_s);
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    EXPECT_FALSE(window->isVisible());
    ASSERT_EQ(newJobs().size(), 1);
    const QMap<QString, QString> job = server().jobAttributes(u"photo"_s, newJobs()[0]);
    EXPECT_EQ(job.value(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(job.value(u"VKResolution"_s), u"Photo"_s);
    EXPECT_EQ(job.value(u"com.velkaro.print.PrintSettings.T2T_Brightness"_s), u"0"_s);
    EXPECT_EQ(job.value(u"com.velkaro.print.PrintSettings.advancedItem"_s), u"false"_s);
    EXPECT_EQ(server().waitForJob(u"photo"_s, newJobs()[0]), IPP_JSTATE_COMPLETED);
    EXPECT_TRUE(printed().contains("%% VKMediaType=Glossy"));
}

TEST_F(Dialog, ASavedJobIsSentAsItWasSavedToTheQueueThatItWasMadeFor)
{
    const QTemporaryDir folder;
    DialogWishes line = lineFor(server().address(), u"photo"_s);
    line.output = folder.filePath(u"the.velkaro-job"_s);
    line.choices = {{u"VKMediaType"_s, u"Glossy"_s}, {u"copies"_s, u"2"_s}};
    auto window = open(line);
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    ASSERT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    ASSERT_EQ(newJobs().size(), 0);

    DialogWishes later;
    later.server = line.server;
    later.plugIn = line.plugIn;
    later.files = {line.output};
    window = open(later);
    EXPECT_EQ(window->job().source().queue.queue, u"photo"_s);
    EXPECT_EQ(window->notice().sentence(),
              u"This job is printed with the settings that it was saved with."_s);
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    ASSERT_EQ(newJobs().size(), 1);
    const QMap<QString, QString> job = server().jobAttributes(u"photo"_s, newJobs()[0]);
    EXPECT_EQ(job.value(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(job.value(u"copies"_s), u"2"_s);
    EXPECT_EQ(server().waitForJob(u"photo"_s, newJobs()[0]), IPP_JSTATE_COMPLETED);
}

TEST_F(Dialog, APaperThatIsPickedReachesThePanelsAndTheJob)
{
    const auto window = open(lineFor(server().address(), u"photo"_s));
    part<QTabWidget>(*window, "parts")->setCurrentIndex(0);
    pick(*window, "paperPopup", u"A3.LongGrain"_s);
    pick(*window, "DuplexPopup", u"DuplexTumble"_s);
    click(*window, "landscapeButton");
    QTest::keyClick(window.get(), Qt::Key_Return); // Print is the default button
    waitWhile(*window, DialogWindow::State::Sending);
    ASSERT_EQ(newJobs().size(), 1) << window->notice().sentence().toStdString();
    const QMap<QString, QString> job = server().jobAttributes(u"photo"_s, newJobs()[0]);
    EXPECT_EQ(job.value(u"PageSize"_s), u"A3.LongGrain"_s);
    EXPECT_EQ(job.value(u"Duplex"_s), u"DuplexTumble"_s);
    EXPECT_EQ(job.value(u"VKMediaType"_s), u"PlainDuplex"_s);
    EXPECT_EQ(job.value(u"orientation-requested"_s), u"4"_s);
}

TEST_F(Dialog, AVetoedJobIsNotInTheQueueAndTheDialogStaysOpen)
{
    DialogWishes line = lineFor(server().address(), u"photo"_s);
    line.paper = u"120x120mm"_s;
    const auto window = open(line);
    QTimer::singleShot(0, window.get(), [&] {
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
        auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(alert, nullptr);
        QTest::keyClick(alert, Qt::Key_Escape);
    });
    click(*window, "printButton");
    EXPECT_EQ(window->state(), DialogWindow::State::Ready);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(newJobs(), QList<int>());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->outcome().faultKind(), FaultKind::Cancelled);
}

TEST_F(Dialog, AQueueWithoutAPPDIsSaidAndPrintsWithTheDialogsOwnSettings)
{
    ASSERT_TRUE(server().addQueue(u"plain"_s, QString()));
    const auto window = open(lineFor(server().address(), u"plain"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(window->notice().sentence(),
              u"The queue plain has no PPD. It prints with the settings "
              "of this dialog alone."_s);
    QTest::keyClick(part<QWidget>(*window, "copiesField"), Qt::Key_Up);
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    ASSERT_EQ(server().jobs(u"plain"_s).size(), 1);
    EXPECT_EQ(server().jobAttributes(u"plain"_s, server().jobs(u"plain"_s)[0]).value(u"copies"_s),
              u"2"_s);
}

TEST_F(Dialog, AQueueWithoutAPPDTakesWhatWasWishedOfTheDialogsOwnSettings)
{
    ASSERT_TRUE(server().addQueue(u"plain"_s, QString()));
    DialogWishes line = lineFor(server().address(), u"plain"_s);
    line.choices = {{u"copies"_s, u"3"_s}, {u"Finish"_s, u"Shiny"_s}};
    const auto window = open(line);
    ASSERT_EQ(window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(window->job().settings().copies, 3);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return window->notice().sentence() == u"Finish cannot be set: the queue has no PPD."_s;
    })) << window->notice().sentence().toStdString();
}

TEST_F(Dialog, AServerThatIsDownAtTheStartIsSaid)
{
    const QString address = u"127.0.0.1:%1"_s.arg(freePort());
    const auto window = open(lineFor(address, u"photo"_s));
    EXPECT_EQ(window->state(), DialogWindow::State::NoPrinter);
    EXPECT_EQ(window->notice().sentence(),
              u"The print server %1 cannot be reached."_s.arg(address));
    EXPECT_FALSE(part<QAbstractButton>(*window, "printButton")->isEnabled());
}

TEST_F(Dialog, AServerThatGoesDownLosesNothingOfTheJob)
{
    PrintServer other;
    ASSERT_EQ(other.fault(), QString());
    ASSERT_TRUE(other.addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)));
    const auto window = open(lineFor(other.address(), u"photo"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready);
    pick(*window, "mediaTypePopup", u"Glossy"_s);
    other.stop();
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_EQ(window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(window->notice().sentence(),
              u"The print server %1 cannot be reached."_s.arg(other.address()));
    EXPECT_EQ(part<PopUpButton>(*window, "mediaTypePopup")->selectedObject(), u"Glossy"_s);
    EXPECT_EQ(window->outcome().faultKind(), FaultKind::Cancelled);
}

TEST_F(Dialog, AJobThatMayHavePrintedIsSentAgainOnPurposeOnly)
{
    const ScriptedServer forgetful(
        {{"Send-Document", {readBody(), closeConnection()}, 1},
         {"Get-Job-Attributes", answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_FOUND).ended()), 1}});
    const auto window = open(lineFor(forgetful.address(), u"photo"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready)
        << window->notice().sentence().toStdString();
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_EQ(window->notice().sentence(),
              u"The print server %1 did not say whether it took the job: it may have been printed "
              "as job 7."_s.arg(forgetful.address()));
    EXPECT_EQ(window->outcome().faultKind(), FaultKind::Unsettled);
    auto *print = part<QPushButton>(*window, "printButton");
    EXPECT_EQ(shownTitle(print->text()), u"Print Again"_s);
    QTest::keyClick(window.get(), Qt::Key_Return);
    EXPECT_EQ(window->state(), DialogWindow::State::Ready) << "Return does not print again";
    EXPECT_EQ(forgetful.requests().count(u"Create-Job"_s), 1);
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    EXPECT_EQ(forgetful.requests().count(u"Create-Job"_s), 2);
}

TEST_F(Dialog, APrinterListThatFailsIsSaidAndThePrinterStays)
{
    const ScriptedServer faulty(
        {{"CUPS-Get-Printers",
          answerWith(httpAnswer("500 Internal Server Error", "text/plain", "no"))}});
    const auto window = open(lineFor(faulty.address(), u"photo"_s));
    EXPECT_EQ(window->state(), DialogWindow::State::Ready);
    const auto *state = part<QLabel>(*window, "printerState");
    EXPECT_TRUE(QTest::qWaitFor([&] { return state->text() != u"Searching for printers…"_s; }));
    EXPECT_EQ(state->text(), u"The other printers cannot be listed"_s);
    EXPECT_EQ(part<PopUpButton>(*window, "printerPopup")->selectedObject(), u"photo"_s);
}

TEST_F(Dialog, StaysUsableWhileAServerIsSilent)
{
    QTcpServer silent; // the system accepts connections, nobody answers
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
    const EventLoopWatch watch;
    const QString address = u"127.0.0.1:%1"_s.arg(silent.serverPort());
    DialogWindow window(lineFor(address, u"photo"_s));
    window.start();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(window.state(), DialogWindow::State::Searching);
    EXPECT_EQ(window.notice().sentence(), u"Asking photo about its settings…"_s);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Dialog, AServerThatComesBackIsFoundByRetrying)
{
    const int port = freePort();
    const QString address = u"127.0.0.1:%1"_s.arg(port);
    const auto window = open(lineFor(address, u"photo"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::NoPrinter);
    EXPECT_EQ(window->notice().sentence(),
              u"The print server %1 cannot be reached."_s.arg(address));
    const ScriptedServer back({}, port);
    ASSERT_EQ(back.address(), address);
    click(*window, "retryButton");
    waitWhile(*window, DialogWindow::State::Searching);
    EXPECT_EQ(window->state(), DialogWindow::State::Ready)
        << window->notice().sentence().toStdString();
    EXPECT_EQ(window->findChild<QAbstractButton *>(u"retryButton"_s), nullptr);
}

TEST_F(Dialog, AJobThatTheServerRefusedIsSentAgainByRetrying)
{
    const ScriptedServer busy(
        {{"Create-Job", answerIpp(IppBytes(IPP_STATUS_ERROR_BUSY).ended()), 1}});
    const auto window = open(lineFor(busy.address(), u"photo"_s));
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    ASSERT_EQ(window->state(), DialogWindow::State::Ready);
    EXPECT_TRUE(window->notice().sentence().contains(busy.address()));
    click(*window, "retryButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    EXPECT_EQ(busy.requests().count(u"Create-Job"_s), 2);
}

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

/// The server holds every answer for seconds, in which the window has to go on by itself.
class DialogOnAServerThatHoldsItsAnswers : public Dialog
{
protected:
    /// Lets the window work on in vain, then gives the answers.
    void wait()
    {
        QTest::qWait(kHeld);
        server().giveAnswers();
    }

    const EventLoopWatch m_watch;

private:
    const QScopeGuard<void (*)()> m_answers{[] { server().giveAnswers(); }};
};

TEST_F(DialogOnAServerThatHoldsItsAnswers, LooksForThePrinterWithoutWaiting)
{
    server().holdAnswers();
    DialogWindow window(lineFor(server().address(), u"photo"_s));
    window.start();
    window.show();
    wait();
    EXPECT_EQ(window.state(), DialogWindow::State::Searching);
    waitWhile(window, DialogWindow::State::Searching);
    EXPECT_EQ(window.state(), DialogWindow::State::Ready);
}

TEST_F(DialogOnAServerThatHoldsItsAnswers, ListsThePrintersWithoutWaiting)
{
    DialogWishes line = lineFor(server().address(), u"photo"_s);
    line.ppd = samplePPD(u"velkaro-px-t900"_s);
    server().holdAnswers();
    const auto window = open(line);
    ASSERT_EQ(window->state(), DialogWindow::State::Ready);
    const auto *state = part<QLabel>(*window, "printerState");
    wait();
    EXPECT_EQ(state->text(), u"Searching for printers…"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return state->text().isEmpty(); }, kTimeout));
}

TEST_F(DialogOnAServerThatHoldsItsAnswers, SendsTheJobWithoutWaiting)
{
    const auto window = open(lineFor(server().address(), u"photo"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready);
    server().holdAnswers();
    click(*window, "printButton");
    wait();
    EXPECT_EQ(window->state(), DialogWindow::State::Sending);
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    EXPECT_EQ(newJobs().size(), 1);
}

TEST_F(DialogOnAServerThatHoldsItsAnswers, IsClosedWithoutWaiting)
{
    server().holdAnswers();
    DialogWindow window(lineFor(server().address(), u"photo"_s));
    window.start();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

} // namespace
