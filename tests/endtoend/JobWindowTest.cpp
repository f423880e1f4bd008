#include "dialog/window/JobWindow.h"

#include "dialog/window/DialogWindow.h"
#include "platform/toolkit/PlainText.h"
#include "tests/endtoend/BrowserStandIn.h"
#include "tests/endtoend/DeviceFixture.h"
#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/JobAnswers.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

#include <cups/ipp.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestChange = 30000; // ms

class FollowingWindow : public DeviceFixture
{
protected:
    void open(const QString &queue)
    {
        m_id = print(queue);
        m_window = std::make_unique<JobWindow>(server().address(), JobName{queue, m_id, 1});
        m_window->show();
    }

    bool comesTo(const QString &sentence)
    {
        return QTest::qWaitFor([&] { return m_window->sentence() == sentence.arg(m_id); },
                               kLongestChange);
    }

    /// The names of the buttons that can be seen, in their order.
    QStringList buttons() const
    {
        QStringList names;
        for (const auto *button : m_window->findChildren<QPushButton *>())
            if (button->isVisible())
                names += button->objectName();
        return names;
    }

    void click(const QString &name)
    {
        auto *button = m_window->findChild<QPushButton *>(name);
        ASSERT_TRUE(button && button->isVisible()) << name.toStdString();
        QTest::mouseClick(button, Qt::LeftButton);
    }

    int m_id = 0;
    std::unique_ptr<JobWindow> m_window;
};

struct Standing
{
    const char *behaviour;
    const char *queue;
    const char *sentence; ///< %1: the job's number
    QStringList buttons;
};

class FollowingWindowOf : public FollowingWindow, public testing::WithParamInterface<Standing>
{};

TEST_P(FollowingWindowOf, TellsWhereTheJobStandsAndOffersWhatCanBeDone)
{
    open(QLatin1String(GetParam().queue));
    EXPECT_TRUE(comesTo(QLatin1String(GetParam().sentence))) << m_window->sentence().toStdString();
    EXPECT_EQ(m_window->accessibleName(), m_window->sentence());
    EXPECT_EQ(buttons(), GetParam().buttons);
    if (GetParam().buttons.contains(u"cancelJobButton"_s)) {
        click(u"cancelJobButton"_s);
        EXPECT_TRUE(
            comesTo(u"Job %1 on "_s + QLatin1String(GetParam().queue) + u" was cancelled."_s));
        EXPECT_EQ(buttons(),
                  (QStringList{u"restartButton"_s, u"openQueueButton"_s, u"closeButton"_s}));
    }
}

// CUPS' own server tells of no job that it has ended so.
TEST_F(FollowingWindow, TellsOfAJobThatHasEndedWithErrors)
{
    const ScriptedServer other(
        {{"Get-Job-Attributes",
          jobInState(IPP_JSTATE_COMPLETED, "job-completed-with-errors", "A page is missing")}});
    m_id = kGoodJob;
    m_window = std::make_unique<JobWindow>(other.address(), JobName{u"photo"_s, m_id, 1});
    m_window->show();
    EXPECT_TRUE(comesTo(u"Job %1 on photo has ended with errors: A page is missing."_s))
        << m_window->sentence().toStdString();
    EXPECT_EQ(buttons(), (QStringList{u"restartButton"_s, u"openQueueButton"_s, u"closeButton"_s}));
    EXPECT_TRUE(m_window->isAtEnd());
}

INSTANTIATE_TEST_SUITE_P(
    Table, FollowingWindowOf,
    testing::Values(
        Standing{"Printed",
                 "finish",
                 "Job %1 on finish is printed.",
                 {u"restartButton"_s, u"openQueueButton"_s, u"closeButton"_s}},
        Standing{"InTrouble",
                 "empty",
                 "Job %1 on empty: the printer needs somebody: The multi-purpose tray is empty.",
                 {u"cancelJobButton"_s, u"openQueueButton"_s, u"closeButton"_s}},
        Standing{
            "Held",
            "hold",
            "Job %1 on hold is held until somebody releases it.",
            {u"releaseButton"_s, u"cancelJobButton"_s, u"openQueueButton"_s, u"closeButton"_s}},
        Standing{"Stopped",
                 "stop",
                 "Job %1 on stop is waiting: the printer is stopped: The carriage is blocked.",
                 {u"holdButton"_s, u"cancelJobButton"_s, u"openQueueButton"_s, u"closeButton"_s}},
        Standing{"Cancelled",
                 "cancel",
                 "Job %1 on cancel was cancelled.",
                 {u"restartButton"_s, u"openQueueButton"_s, u"closeButton"_s}}),
    CaseName());

TEST_F(FollowingWindow, LetsTheJobGoOnWhenItIsClosed)
{
    open(u"empty"_s);
    ASSERT_TRUE(comesTo(
        u"Job %1 on empty: the printer needs somebody: The multi-purpose tray is empty."_s));
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    EXPECT_FALSE(m_window->isVisible());
    m_window.reset();
    continueDevices();
    EXPECT_EQ(server().waitForJob(u"empty"_s, m_id), IPP_JSTATE_COMPLETED);
}

TEST_F(FollowingWindow, OpensThePageOfTheQueue)
{
    const BrowserStandIn browser;
    open(u"finish"_s);
    click(u"openQueueButton"_s);
    EXPECT_EQ(browser.pages(),
              QList<QUrl>{QUrl(u"http://%1/printers/finish"_s.arg(server().address()))});
}

TEST_F(FollowingWindow, FillsItsBarWhenTheJobIsPrinted)
{
    open(u"finish"_s);
    ASSERT_TRUE(comesTo(u"Job %1 on finish is printed."_s));
    const auto *bar = m_window->findChild<QProgressBar *>();
    EXPECT_EQ(bar->value(), bar->maximum());
    EXPECT_GT(bar->maximum(), 0);
    EXPECT_FALSE(bar->isEnabled());
}

TEST_F(FollowingWindow, HasRoomForTheButtonsThatComeLater)
{
    open(u"password"_s);
    const auto *enter = m_window->findChild<QPushButton *>(u"authenticateButton"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return enter->isVisible(); }, kLongestChange));
    const auto *bar = m_window->findChild<QProgressBar *>();
    const auto *sentence = m_window->findChild<QLabel *>(u"jobSentence"_s);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return bar->visibleRegion().boundingRect() == bar->rect() &&
                   sentence->visibleRegion().boundingRect() == sentence->rect();
        },
        kLongestChange));
    for (const auto *button : m_window->findChildren<QPushButton *>())
        EXPECT_TRUE(!button->isVisible() ||
                    button->visibleRegion().boundingRect() == button->rect())
            << button->objectName().toStdString();
}

TEST_F(FollowingWindow, IsForTheJobThatADialogHasLeft)
{
    DialogWishes wishes;
    wishes.server = server().address();
    wishes.queue = u"finish"_s;
    wishes.files = QStringList{document()};
    DialogWindow dialog(wishes);
    QList<JobName> left;
    QObject::connect(&dialog, &DialogWindow::jobSent, &dialog,
                     [&](const QString &address, const JobName &job) {
                         EXPECT_EQ(address, server().address());
                         left += job;
                     });
    dialog.start();
    dialog.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return dialog.state() == DialogWindow::State::Ready; },
                                kLongestChange));
    QTest::mouseClick(dialog.findChild<QPushButton *>(u"printButton"_s), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }, kLongestChange));
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(left[0].queue, u"finish"_s);
    EXPECT_EQ(server().waitForJob(u"finish"_s, left[0].id), IPP_JSTATE_COMPLETED);
}

TEST_F(FollowingWindow, IsNotForADialogThatWasClosed)
{
    DialogWishes wishes;
    wishes.server = server().address();
    wishes.queue = u"finish"_s;
    wishes.files = QStringList{document()};
    DialogWindow dialog(wishes);
    QObject::connect(&dialog, &DialogWindow::jobSent, &dialog, [] { ADD_FAILURE(); });
    dialog.start();
    dialog.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return dialog.state() == DialogWindow::State::Ready; },
                                kLongestChange));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

} // namespace
