// The PPD of the open queue is exchanged on the server while the dialog shows it.
#include "dialog/window/PrinterWatch.h"
#include "tests/endtoend/DialogEndToEndFixture.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kExchanged =
    "The queue own was set up anew on the print server: it has another PPD, or other defaults."_L1;

class DialogOfAQueueThatIsExchanged : public Dialog
{
protected:
    void SetUp() override
    {
        Dialog::SetUp();
        ASSERT_TRUE(server().addQueue(u"own"_s, samplePPD(u"velkaro-px-t900"_s)));
        m_before = server().jobs(u"own"_s);
        m_window = open(lineFor(server().address(), u"own"_s));
        ASSERT_EQ(m_window->state(), DialogWindow::State::Ready);
    }
    void TearDown() override { EXPECT_TRUE(server().lpadmin({u"-x"_s, u"own"_s})); }

    /// Gives the queue the sample's PPD without the lines that have the word.
    void exchangeForOneWithout(const QByteArray &word)
    {
        QFile sample(samplePPD(u"velkaro-px-t900"_s));
        QFile other(inFolder(u"other.ppd"_s));
        ASSERT_TRUE(sample.open(QIODevice::ReadOnly) && other.open(QIODevice::WriteOnly));
        while (!sample.atEnd())
            if (const QByteArray line = sample.readLine(); !line.contains(word))
                other.write(line);
        other.close();
        ASSERT_TRUE(server().addQueue(u"own"_s, other.fileName()));
    }

    void setDefault(const QString &option)
    {
        ASSERT_TRUE(server().lpadmin({u"-p"_s, u"own"_s, u"-o"_s, option}));
    }

    /// In which a server tells a change from what was before it.
    static void waitForTheNextSecond()
    {
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QDateTime::currentSecsSinceEpoch() > now; }));
    }

    void print()
    {
        click(*m_window, "printButton");
        waitWhile(*m_window, DialogWindow::State::Sending);
        waitWhile(*m_window, DialogWindow::State::Searching);
    }

    /// The notice; a look at the printer may have come before Print, which says so as well.
    QString told() const
    {
        return m_window->notice().sentence().remove(u"Nothing was printed on own: "_s);
    }

    QList<int> newJobs()
    {
        QList<int> jobs = server().jobs(u"own"_s);
        jobs.removeIf([this](int job) { return m_before.contains(job); });
        return jobs;
    }

    QMap<QString, QString> onlyJob()
    {
        return newJobs().size() == 1 ? server().jobAttributes(u"own"_s, newJobs()[0])
                                     : QMap<QString, QString>();
    }

    std::unique_ptr<DialogWindow> m_window;

private:
    QList<int> m_before;
};

TEST_F(DialogOfAQueueThatIsExchanged, PrintsNothingBeforeTheNewSettingsWereShown)
{
    pick(*m_window, "mediaTypePopup", u"Glossy"_s);
    setDefault(u"VKReverse=ON"_s);
    print();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_TRUE(newJobs().isEmpty());
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Warning);
    EXPECT_EQ(told(),
              kExchanged +
                  u" Rotate by 180 Degrees is now On (was Off). Look at the settings before you "
                  "print."_s);
    EXPECT_EQ(part<PopUpButton>(*m_window, "mediaTypePopup")->selectedObject(), u"Glossy"_s);
    print();
    EXPECT_TRUE(m_window->outcome()) << m_window->notice().sentence().toStdString();
    EXPECT_EQ(onlyJob().value(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(onlyJob().value(u"VKReverse"_s), u"ON"_s);
}

TEST_F(DialogOfAQueueThatIsExchanged, SaysWhatTheNewPrinterDoesNotHave)
{
    pick(*m_window, "mediaTypePopup", u"Glossy"_s);
    exchangeForOneWithout("VKMediaType Glossy/");
    print();
    EXPECT_TRUE(newJobs().isEmpty());
    EXPECT_EQ(told(),
              kExchanged +
                  u" Media Type is now Plain Paper (was Other Glossy Paper); Print Quality is now "
                  "Normal (was Photo). Look at the settings before you print."_s);
}

TEST_F(DialogOfAQueueThatIsExchanged, TellsOfItAndShowsTheNewSettingsWhenAsked)
{
    pick(*m_window, "mediaTypePopup", u"Glossy"_s);
    auto *watch = m_window->findChild<PrinterWatch *>();
    watch->setPause(std::chrono::milliseconds(20));
    m_window->activateWindow();
    waitForTheNextSecond();
    setDefault(u"VKReverse=ON"_s);
    const QString former = kExchanged + u" What is shown are the former settings."_s;
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->notice().sentence() == former; }, kTimeout))
        << m_window->notice().sentence().toStdString();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready) << "nothing moves by itself";
    click(*m_window, "reloadButton");
    waitWhile(*m_window, DialogWindow::State::Searching);
    EXPECT_EQ(told(), kExchanged +
                          u" Rotate by 180 Degrees is now On (was Off). Look at the settings "
                          "before you print."_s);
    EXPECT_EQ(part<PopUpButton>(*m_window, "mediaTypePopup")->selectedObject(), u"Glossy"_s);
    print();
    EXPECT_EQ(onlyJob().value(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(onlyJob().value(u"VKReverse"_s), u"ON"_s);
}

TEST_F(DialogOfAQueueThatIsExchanged, PrintsWithoutAWordWhereOnlyItsPlaceIsAnotherOne)
{
    ASSERT_TRUE(server().lpadmin({u"-p"_s, u"own"_s, u"-L"_s, u"Second floor"_s}));
    print();
    EXPECT_TRUE(m_window->outcome()) << m_window->notice().sentence().toStdString();
    EXPECT_EQ(newJobs().size(), 1);
}

TEST_F(DialogOfAQueueThatIsExchanged, SaysThatItHasNoPPDAnyMore)
{
    ASSERT_TRUE(server().lpadmin({u"-p"_s, u"own"_s, u"-m"_s, u"raw"_s}));
    print();
    EXPECT_TRUE(newJobs().isEmpty());
    EXPECT_EQ(m_window->job().session(), nullptr);
    EXPECT_EQ(
        told(),
        kExchanged +
            u" The queue own has no PPD. It prints with the settings of this dialog alone."_s);
}

} // namespace
