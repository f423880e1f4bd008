// A job that the server would print otherwise than the dialog has shown it.
#include "tests/endtoend/DialogEndToEndFixture.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>

#include <cups/ipp.h>

using namespace Qt::StringLiterals;

namespace {

class DialogAndAQueueWithItsOwnPaper : public Dialog
{
protected:
    void SetUp() override
    {
        Dialog::SetUp();
        ASSERT_TRUE(server().addQueue(u"own"_s, samplePPD(u"velkaro-px-t900"_s)));
        ASSERT_TRUE(server().lpadmin({u"-p"_s, u"own"_s, u"-o"_s, u"media-default=A5"_s}));
        m_window = open(lineFor(server().address(), u"own"_s));
        ASSERT_EQ(m_window->state(), DialogWindow::State::Ready);
    }
    void TearDown() override { EXPECT_TRUE(server().lpadmin({u"-x"_s, u"own"_s})); }

    /// Prints, and answers the question that comes by the button of this name. The question has an
    /// event loop of its own.
    void printAndPress(const QString &button)
    {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            if (auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                look.stop();
                press(*question, button);
            }
        });
        look.start(10);
        click(*m_window, "printButton");
        waitWhile(*m_window, DialogWindow::State::Sending);
        EXPECT_FALSE(look.isActive()) << "nothing was asked";
    }

    void press(const QMessageBox &question, const QString &button)
    {
        m_id = server().jobs(u"own"_s).value(0);
        QStringList texts;
        for (const auto *label : question.findChildren<QLabel *>())
            if (!label->text().isEmpty())
                texts += label->text();
        EXPECT_EQ(texts, (QStringList{u"Print job %1 all the same?"_s.arg(m_id),
                                      u"The server set media to A5, which was not shown."_s}));
        EXPECT_EQ(server().jobAttributes(u"own"_s, m_id).value(u"job-state"_s).toInt(),
                  IPP_JSTATE_HELD);
        for (QAbstractButton *one : question.buttons())
            if (one->text().remove(u'&') == button)
                QTest::mouseClick(one, Qt::LeftButton);
    }

    std::unique_ptr<DialogWindow> m_window;
    int m_id = 0;
};

TEST_F(DialogAndAQueueWithItsOwnPaper, PrintsItWhenThatIsAgreedTo)
{
    printAndPress(u"Print"_s);
    EXPECT_FALSE(m_window->isVisible());
    EXPECT_TRUE(m_window->outcome());
    EXPECT_EQ(server().waitForJob(u"own"_s, m_id), IPP_JSTATE_COMPLETED);
}

TEST_F(DialogAndAQueueWithItsOwnPaper, CancelsItOtherwiseAndStays)
{
    printAndPress(u"Cancel Job"_s);
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(m_window->notice().sentence(), u"Job %1 was cancelled."_s.arg(m_id));
    EXPECT_EQ(server().waitForJob(u"own"_s, m_id), IPP_JSTATE_CANCELED);
}

} // namespace
