// What is printed in the dialog arrives at a real server.
#include "tests/endtoend/DialogEndToEndFixture.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/endtoend/ShownTitle.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTabWidget>

#include <cups/ipp.h>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace
