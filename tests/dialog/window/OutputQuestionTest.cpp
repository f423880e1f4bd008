#include "tests/dialog/window/DialogWindowFixture.h"

#include <QtCore/QTimer>
#include <QtWidgets/QMessageBox>

using namespace Qt::StringLiterals;

namespace {

/// The dialog with --output, where a file of that name exists.
class OutputQuestion : public DialogWindowFixture
{
protected:
    OutputQuestion() { writeFile(m_line.output, "precious"); }

    /// Presses Print, and the button in the question that follows; what the question says.
    QString printAndAnswer(QMessageBox::ButtonRole role)
    {
        QString text;
        QTimer::singleShot(0, m_window.get(), [&] {
            ASSERT_TRUE(QTest::qWaitFor([&] {
                return m_window->findChild<QMessageBox *>(u"replaceQuestion"_s) != nullptr;
            }));
            auto *question = m_window->findChild<QMessageBox *>(u"replaceQuestion"_s);
            EXPECT_EQ(question->textFormat(), Qt::PlainText);
            text = question->text();
            for (QAbstractButton *button : question->buttons())
                if (question->buttonRole(button) == role)
                    QTest::mouseClick(button, Qt::LeftButton);
        });
        click("printButton");
        return text;
    }

    bool isDone()
    {
        return QTest::qWaitFor([&] { return m_window->exitStatus() == ExitStatus::Done; });
    }
};

TEST_F(OutputQuestion, KeepsTheFileAndTheDialogWhenTheAnswerIsNo)
{
    open();
    EXPECT_EQ(printAndAnswer(QMessageBox::RejectRole),
              u"%1 exists already. Replace it?"_s.arg(m_line.output));
    EXPECT_EQ(readFile(m_line.output), "precious");
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
}

TEST_F(OutputQuestion, ReplacesTheFileWhenTheAnswerIsYes)
{
    open();
    EXPECT_NE(printAndAnswer(QMessageBox::AcceptRole), QString());
    ASSERT_TRUE(isDone()) << notice().toStdString();
    EXPECT_TRUE(written().startsWith("Velkaro-Print-Job: 1\n"));
}

TEST_F(OutputQuestion, IsNotAskedWithForce)
{
    m_line.force = true;
    open();
    click("printButton");
    ASSERT_TRUE(isDone()) << notice().toStdString();
    EXPECT_TRUE(written().startsWith("Velkaro-Print-Job: 1\n"));
}

TEST_F(OutputQuestion, IsNotAskedForADocumentOfTheJob)
{
    m_line.output = m_line.files[0];
    m_line.force = true;
    open();
    click("printButton");
    EXPECT_TRUE(QTest::qWaitFor([&] { return notice().startsWith(u"Nothing is written over "_s); }))
        << notice().toStdString();
    EXPECT_EQ(readFile(m_line.files[0]), "%!PS\n");
    EXPECT_TRUE(m_window->isVisible());
}

} // namespace
