#include "tests/dialog/window/DialogWindowFixture.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The dialog with --output, where a file of that name exists.
class OutputQuestion : public DialogWindowFixture
{
protected:
    OutputQuestion() { writeFile(m_line.output, "precious"); }

    /// Presses Print, and answers the question that follows; what the question says.
    QString printAndAnswer(const std::function<void(QMessageBox &)> &answer)
    {
        QString text;
        QTimer::singleShot(0, m_window.get(), [&] {
            ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget(); }));
            auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(question, nullptr);
            EXPECT_EQ(question->textFormat(), Qt::PlainText);
            text = question->text();
            answer(*question);
        });
        click("printButton");
        return text;
    }

    static void replace(QMessageBox &box)
    {
        for (QAbstractButton *button : box.buttons())
            if (button->text() == u"Replace"_s)
                QTest::mouseClick(button, Qt::LeftButton);
    }

    bool isDone()
    {
        return QTest::qWaitFor([&] { return m_window->outcome().isGood(); });
    }
};

TEST_F(OutputQuestion, KeepsTheFileAndTheDialogUnlessTheAnswerIsYes)
{
    open();
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        EXPECT_EQ(printAndAnswer([key](QMessageBox &box) { QTest::keyClick(&box, key); }),
                  u"%1 exists already. Replace it?"_s.arg(m_line.output));
        EXPECT_EQ(readFile(m_line.output), "precious");
        EXPECT_TRUE(m_window->isVisible());
        EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    }
}

TEST_F(OutputQuestion, ReplacesTheFileWhenTheAnswerIsYes)
{
    open();
    EXPECT_NE(printAndAnswer(replace), QString());
    ASSERT_TRUE(isDone()) << notice().toStdString();
    EXPECT_TRUE(written().startsWith("Velkaro-Print-Job: 1\n"));
}

TEST_F(OutputQuestion, IsNoPartOfARecording)
{
    openRecorded();
    EXPECT_NE(printAndAnswer(replace), QString());
    ASSERT_TRUE(isDone()) << notice().toStdString();
    ASSERT_TRUE(finishRecording());
    EXPECT_FALSE(readFile(m_line.record).contains("answers"));
}

TEST_F(OutputQuestion, IsAskedWhereTheUserChoosesTheName)
{
    const QString existing = std::exchange(m_line.output, QString());
    open();
    QString asked;
    QTimer::singleShot(0, m_window.get(), [&] {
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget(); }));
        auto *files = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(files, nullptr);
        QTimer::singleShot(0, m_window.get(), [&, files] {
            ASSERT_TRUE(
                QTest::qWaitFor([files] { return QApplication::activeModalWidget() != files; }));
            auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(question, nullptr);
            EXPECT_EQ(question->textFormat(), Qt::PlainText);
            asked = question->text();
            QTest::keyClick(question, Qt::Key_Escape);
        });
        auto *name = files->findChild<QLineEdit *>(u"fileNameEdit"_s);
        name->setText(existing);
        QTest::keyClick(name, Qt::Key_Return);
    });
    click("saveButton");
    EXPECT_TRUE(asked.contains(u"out.job"_s)) << asked.toStdString();
    EXPECT_EQ(readFile(existing), "precious");
    EXPECT_TRUE(m_window->isVisible());
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
