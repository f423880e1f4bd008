// Queues that no plug-in is for, on a real server: a driverless printer with everything that it can
// do, a class, and a queue of another server.
#include "dialog/window/DialogWindow.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/ShownTitle.h"
#include "tests/printserver/DriverlessPrinter.h"
#include "tests/printserver/PrintServer.h"
#include "tests/support/LpoptionsFolder.h"
#include "tests/support/QStringPrinting.h"

#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeout = 60000; // ms

class OtherQueues : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(m_server.fault(), QString());
        ASSERT_EQ(m_printer.fault(), QString());
        m_line.server = m_server.address();
        m_line.files = {m_folder.filePath(u"page.pdf"_s)};
        QPdfWriter writer(m_line.files[0]);
        QPainter painter(&writer);
        painter.drawRect(100, 100, 500, 500);
        painter.end();
    }

    /// A queue on the driverless printer, as a system sets it up. Its PPD comes after a while.
    void addDriverlessQueue()
    {
        ASSERT_TRUE(m_server.lpadmin({u"-p"_s, u"driverless"_s, u"-E"_s, u"-v"_s, m_printer.uri(),
                                      u"-m"_s, u"everywhere"_s}));
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return QFile::exists(m_server.folder() + u"/ppd/driverless.ppd"_s); },
            kTimeout));
    }

    void open(const QString &queue)
    {
        m_line.queue = queue;
        m_window = std::make_unique<DialogWindow>(m_line);
        m_window->start();
        m_window->show();
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return m_window->state() != DialogWindow::State::Searching; }, kTimeout));
        ASSERT_EQ(m_window->state(), DialogWindow::State::Ready)
            << m_window->notice().sentence().toStdString();
    }

    template <typename Widget> Widget *part(const QString &name)
    {
        auto *found = m_window->findChild<Widget *>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }

    void pick(const QString &name, const QString &choice)
    {
        auto *popup = part<PopUpButton>(name);
        ASSERT_NE(popup, nullptr);
        const int index = popup->indexOfRepresentedObject(choice);
        ASSERT_GE(index, 0) << choice.toStdString();
        popup->pick(index);
        QCoreApplication::processEvents();
        EXPECT_EQ(m_window->notice().sentence(), QString());
    }

    void print()
    {
        QTest::mouseClick(part<QAbstractButton>(u"printButton"_s), Qt::LeftButton);
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return m_window->state() != DialogWindow::State::Sending; }, kTimeout));
        EXPECT_TRUE(m_window->outcome()) << m_window->notice().sentence().toStdString();
    }

    QStringList tabs()
    {
        QStringList titles;
        const auto *bar = part<QTabWidget>(u"parts"_s);
        for (int index = 0; index < bar->count(); ++index)
            titles += shownTitle(bar->tabText(index));
        return titles;
    }

    QStringList summary()
    {
        EXPECT_TRUE(m_window->showPart(u"summary"_s));
        QStringList texts;
        for (const auto *label : part<QWidget>(u"summaryPane"_s)->findChildren<QLabel *>())
            texts += label->text();
        return texts;
    }

    const LpoptionsFolder m_lpoptions;
    QTemporaryDir m_folder;
    PrintServer m_server;
    DriverlessPrinter m_printer;
    DialogWishes m_line;
    std::unique_ptr<DialogWindow> m_window;
};

TEST_F(OtherQueues, ADriverlessPrinterPrintsWithAllThatItCanDo)
{
    addDriverlessQueue();
    open(u"driverless"_s);
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Printer Features"_s, u"Layout & Job"_s,
                                   u"Summary"_s}));
    const QStringList untouched = summary();
    for (const QString &title :
         {u"Media Type"_s, u"Print Quality"_s, u"Color Mode"_s, u"Output Bin"_s})
        EXPECT_TRUE(untouched.contains(title)) << untouched.join(u'|').toStdString();
    ASSERT_TRUE(m_window->showPart(u"setup"_s));
    pick(u"paperPopup"_s, u"A5"_s);
    pick(u"DuplexPopup"_s, u"DuplexNoTumble"_s);
    ASSERT_TRUE(m_window->showPart(u"features"_s));
    pick(u"InputSlotFeature"_s, u"Alternate"_s);
    pick(u"MediaTypeFeature"_s, u"PhotographicGlossy"_s);
    pick(u"cupsPrintQualityFeature"_s, u"High"_s);
    pick(u"ColorModelFeature"_s, u"Gray"_s);
    pick(u"OutputBinFeature"_s, u"FaceUp"_s);
    pick(u"StapleLocationFeature"_s, u"SinglePortrait"_s);
    print();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_printer.lastJob().isEmpty(); }, kTimeout));
    const QMap<QString, QString> job = m_printer.lastJob();
    const QString medium = job.value(u"IPP_MEDIA_COL"_s);
    EXPECT_TRUE(medium.contains(u"media-source=alternate"_s)) << medium.toStdString();
    EXPECT_TRUE(medium.contains(u"media-type=photographic-glossy"_s)) << medium.toStdString();
    EXPECT_TRUE(medium.contains(u"x-dimension=14800 y-dimension=21000"_s)) << medium.toStdString();
    EXPECT_EQ(job.value(u"IPP_PRINT_QUALITY"_s), u"high"_s);
    EXPECT_EQ(job.value(u"IPP_PRINT_COLOR_MODE"_s), u"monochrome"_s);
    EXPECT_EQ(job.value(u"IPP_SIDES"_s), u"two-sided-long-edge"_s);
    EXPECT_EQ(job.value(u"IPP_OUTPUT_BIN"_s), u"face-up"_s);
    EXPECT_EQ(job.value(u"IPP_FINISHINGS"_s), u"staple-top-left"_s);
}

TEST_F(OtherQueues, AClassOpensAndPrints)
{
    ASSERT_TRUE(m_server.addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)));
    ASSERT_TRUE(m_server.lpadmin({u"-p"_s, u"photo"_s, u"-c"_s, u"everyone"_s}));
    ASSERT_TRUE(m_server.command(u"cupsaccept"_s, {u"everyone"_s}));
    ASSERT_TRUE(m_server.command(u"cupsenable"_s, {u"everyone"_s}));
    open(u"everyone"_s);
    print();
    EXPECT_EQ(m_server.jobs(u"everyone"_s).size(), 1);
}

TEST_F(OtherQueues, AQueueOfAnotherServerOpensAndPrints)
{
    PrintServer other;
    ASSERT_EQ(other.fault(), QString());
    ASSERT_TRUE(other.addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)));
    ASSERT_TRUE(m_server.lpadmin({u"-p"_s, u"remote"_s, u"-E"_s, u"-v"_s,
                                  u"ipp://%1/printers/photo"_s.arg(other.address()), u"-m"_s,
                                  u"everywhere"_s}));
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return QFile::exists(m_server.folder() + u"/ppd/remote.ppd"_s); }, kTimeout));
    open(u"remote"_s);
    EXPECT_TRUE(tabs().contains(u"Printer Features"_s));
    print();
    EXPECT_EQ(m_server.jobs(u"remote"_s).size(), 1);
}

} // namespace
