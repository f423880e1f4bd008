// A server that takes its time: the window never waits for it.
#include "tests/endtoend/DialogEndToEndFixture.h"
#include "tests/support/EventLoopWatch.h"

#include <QtCore/QScopeGuard>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int kHeld = 3000; // ms: far more than an event may wait, and less than a server may

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
