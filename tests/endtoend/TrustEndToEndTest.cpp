// A server that shows another certificate than before, in the dialog.
#include "dialog/window/DialogWindow.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/PrintServerFixture.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/QStringPrinting.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestTrust = 20000; // ms

class Certificate : public PrintServerFixture
{
protected:
    Certificate()
    {
        UserDefaults::standardUserDefaults().setFolder(QString());
        qputenv("CUPS_ENCRYPTION", "Required"); // as each thread reads it
    }
    ~Certificate() override { qunsetenv("CUPS_ENCRYPTION"); }

    /// Another server at the address from now on.
    void stand(const PrintServer &at)
    {
        m_front.reset();
        m_front = std::make_unique<ScriptedServer>(Script{{"connect", {relay(at.port())}}}, m_port);
    }

    std::unique_ptr<DialogWindow> opened()
    {
        DialogWishes wishes;
        wishes.server = m_front->address();
        wishes.queue = u"photo"_s;
        wishes.files = {pdf()};
        auto window = std::make_unique<DialogWindow>(wishes);
        window->start();
        window->show();
        EXPECT_TRUE(waitWhile(*window, DialogWindow::State::Searching));
        return window;
    }

    static bool waitWhile(const DialogWindow &window, DialogWindow::State state)
    {
        return QTest::qWaitFor([&] { return window.state() != state; }, kLongestTrust);
    }

    static void click(const DialogWindow &window, const char *name)
    {
        auto *button = window.findChild<QAbstractButton *>(QLatin1String(name));
        ASSERT_NE(button, nullptr) << name;
        ASSERT_TRUE(button->isVisible()) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }

    const int m_port = freePort();
    std::unique_ptr<ScriptedServer> m_front;
};

TEST_F(Certificate, ThatIsAnotherOneThanBeforeIsTrustedByAClick)
{
    PrintServer other;
    ASSERT_EQ(other.fault(), QString());
    ASSERT_TRUE(other.addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)));
    const auto asked = [&other] { return other.countOf("CUPS-Get-Printers"); };
    stand(server());
    EXPECT_EQ(opened()->state(), DialogWindow::State::Ready) << "the first one is kept";
    stand(other);
    const qsizetype before = asked();
    const std::unique_ptr<DialogWindow> window = opened();
    EXPECT_EQ(window->state(), DialogWindow::State::NoPrinter);
    EXPECT_TRUE(window->notice().sentence().startsWith(
        u"The print server %1 shows another certificate than before, and may be another server: "
        "nothing was sent."_s.arg(m_front->address())))
        << window->notice().sentence().toStdString();
    EXPECT_EQ(asked(), before);
    click(*window, "trustButton");
    ASSERT_TRUE(waitWhile(*window, DialogWindow::State::Searching));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready)
        << window->notice().sentence().toStdString();
    click(*window, "printButton");
    ASSERT_TRUE(waitWhile(*window, DialogWindow::State::Sending));
    EXPECT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    EXPECT_EQ(other.jobs(u"photo"_s).size(), 1);
}

} // namespace
