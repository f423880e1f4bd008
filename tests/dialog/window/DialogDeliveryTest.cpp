#include "dialog/work/BackgroundCall.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/EventLoopWatch.h"

#include <QtCore/QThread>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressBar>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using State = DialogWindow::State;

/// The dialog whose job goes into a pipe that the test holds: writing waits for as long as nobody
/// reads.
class Delivery : public DialogWindowFixture
{
protected:
    Delivery()
    {
        writeFile(m_line.files[0], QByteArray(4'000'000, 'x')); // more than a pipe holds
        EXPECT_EQ(mkfifo(qPrintable(m_line.output), 0600), 0);
        m_reader = FileDescriptor(::open(qPrintable(m_line.output), O_RDONLY | O_NONBLOCK));
    }

    void beginWriting()
    {
        open();
        click("printButton");
        ASSERT_EQ(m_window->state(), State::Sending);
        const auto *progress = part<QProgressBar>("progressStrip");
        ASSERT_TRUE(QTest::qWaitFor([&] { return progress->value() > 0; }));
    }

    bool waitWhileSending()
    {
        return QTest::qWaitFor([this] { return m_window->state() != State::Sending; }, 20000);
    }

    /// Reads what was written so far.
    qint64 drain()
    {
        QByteArray buffer(65536, Qt::Uninitialized);
        qint64 all = 0;
        ssize_t got = 0;
        while ((got = read(m_reader.get(), buffer.data(), 65536)) > 0)
            all += got;
        return all;
    }

    FileDescriptor m_reader;
};

TEST_F(Delivery, IntoAFileShowsHowFarItIsAndTheWindowGoesOn)
{
    const EventLoopWatch watch;
    beginWriting();
    EXPECT_EQ(notice(), u"Writing the job to %1…"_s.arg(m_line.output));
    EXPECT_TRUE(part<QProgressBar>("progressStrip")->isVisible());
    EXPECT_TRUE(part<QAbstractButton>("cancelButton")->isEnabled());
    QTest::qWait(2 * static_cast<int>(EventLoopWatch::kLimit.count()));
    EXPECT_EQ(m_window->state(), State::Sending);
    qint64 got = 0;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            got += drain();
            return m_window->state() != State::Sending;
        },
        20000));
    got += drain();
    EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
    EXPECT_FALSE(m_window->isVisible());
    EXPECT_GT(got, 4'000'000);
}

TEST_F(Delivery, IntoAFileIsCancelledAndCanBeTriedAgain)
{
    const EventLoopWatch watch;
    beginWriting();
    click("cancelButton");
    ASSERT_TRUE(waitWhileSending());
    EXPECT_EQ(m_window->state(), State::Ready);
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(notice(), u"The job was not written."_s);
    EXPECT_FALSE(part<QProgressBar>("progressStrip")->isVisible());
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
    EXPECT_EQ(m_window->outcome().faultKind(), FaultKind::Cancelled);
}

TEST_F(Delivery, ThatIsCancelledKeepsTheFormerFile)
{
    ASSERT_TRUE(QFile::remove(m_line.output));
    writeFile(m_line.output, "precious");
    m_line.force = true;
    QFile large(m_line.files[0]);
    ASSERT_TRUE(large.resize(8LL * 1024 * 1024 * 1024)); // a hole: it takes a while to write
    beginWriting();
    m_window->reject();
    ASSERT_TRUE(waitWhileSending());
    EXPECT_EQ(notice(), u"The job was not written."_s);
    EXPECT_EQ(readFile(m_line.output), "precious");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 2) << "job and document alone";
}

// --- A signal ------------------------------------------------------------------------------------

TEST_F(Delivery, EndsWithTheDialogWhenASignalComes)
{
    beginWriting();
    m_window->end();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isVisible(); }));
    EXPECT_EQ(m_window->outcome().faultKind(), FaultKind::Cancelled);
}

TEST_F(Delivery, IsNotMadeWhenASignalDismissesAQuestion)
{
    m_line.paper = u"120x120mm"_s; // a disc: there is a question before printing
    open();
    bool wasAsked = false;
    QEventLoop loop; // as the program's own
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &loop, [&] {
        const bool isAsked = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (isAsked && !std::exchange(wasAsked, true))
            m_window->end();
        if (!m_window->isVisible())
            loop.quit();
    });
    watch.start(10);
    QTimer::singleShot(0, &loop, [&] { click("printButton"); });
    QTimer::singleShot(20000, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_TRUE(wasAsked);
    EXPECT_EQ(m_window->outcome().faultKind(), FaultKind::Cancelled);
    EXPECT_EQ(drain(), 0);
}

TEST_F(Delivery, IsNoneWhenASignalComesBeforePrint)
{
    open();
    m_window->end();
    EXPECT_FALSE(m_window->isVisible());
    EXPECT_EQ(m_window->outcome().faultKind(), FaultKind::Cancelled);
}

// --- Documents that are pipes --------------------------------------------------------------------

class PipedDocument : public DialogWindowFixture
{
protected:
    PipedDocument()
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        m_reading = FileDescriptor(ends[0]);
        m_writing = FileDescriptor(ends[1]);
        m_line.files = {u"/dev/fd/%1"_s.arg(m_reading.get())};
    }

    bool mayPrint() { return part<QAbstractButton>("printButton")->isEnabled(); }

    FileDescriptor m_reading;
    FileDescriptor m_writing;
};

TEST_F(PipedDocument, IsWaitedForWhileTheSettingsCanBeMade)
{
    const EventLoopWatch watch;
    open();
    EXPECT_EQ(notice(), u"Reading the document to its end…"_s);
    EXPECT_EQ(part<QLabel>("documentsLabel")->text(), m_line.files[0]);
    EXPECT_FALSE(mayPrint());
    ASSERT_EQ(write(m_writing.get(), "%!PS\n", 5), 5);
    QTest::qWait(2 * static_cast<int>(EventLoopWatch::kLimit.count()));
    pick("mediaTypePopup", u"Glossy"_s);
    EXPECT_FALSE(mayPrint());
    m_writing = FileDescriptor();
    ASSERT_TRUE(QTest::qWaitFor([this] { return mayPrint(); }));
    EXPECT_EQ(notice(), QString());
    print();
    EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
    EXPECT_TRUE(written().endsWith("%!PS\n"));
    EXPECT_TRUE(written().contains("Option: VKMediaType=Glossy\n"));
}

TEST_F(PipedDocument, ThatCannotBePrintedIsSaid)
{
    open();
    m_writing = FileDescriptor();
    const QString empty = u"The document %1 is empty."_s.arg(m_line.files[0]);
    EXPECT_TRUE(QTest::qWaitFor([&] { return notice() == empty; })) << notice().toStdString();
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Error);
    EXPECT_FALSE(mayPrint());
    EXPECT_EQ(part<QLabel>("documentsLabel")->text(), u"No document"_s);
}

TEST_F(PipedDocument, ThatNeverEndsKeepsNoDialogOpen)
{
    const EventLoopWatch watch;
    open();
    click("cancelButton");
    EXPECT_FALSE(m_window->isVisible());
    m_window.reset();
    EXPECT_TRUE(waitForBackgroundThreads(std::chrono::seconds(20)));
}

} // namespace
