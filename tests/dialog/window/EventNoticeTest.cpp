#include "dialog/host/HostSession.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/AlertAnswers.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kGlossyReplaced =
    "Media Type: \"Plain Paper (Two-Sided)\" would be printed in place of \"Other Glossy Paper\".";

/// What the notice says after an event.
class EventNotice : public DialogWindowFixture
{
protected:
    void showTab(int index)
    {
        part<QTabWidget>("parts")->setCurrentIndex(index);
        QCoreApplication::processEvents();
    }

    void setUpPage(const char *popup, const QString &choice)
    {
        showTab(0);
        pick(popup, choice);
        showTab(1);
    }

    /// Presses Print, answers the question that follows by its button, and gives its two texts.
    QStringList printAndAnswer(const QString &button)
    {
        QStringList texts;
        QTimer::singleShot(0, m_window.get(), [&] {
            ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget(); }));
            auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(question, nullptr);
            for (const QLabel *label : question->findChildren<QLabel *>())
                if (!label->text().isEmpty())
                    texts += label->text();
            for (QAbstractButton *one : question->buttons())
                if (one->text() == button)
                    QTest::mouseClick(one, Qt::LeftButton);
        });
        click("printButton");
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return m_window->state() != DialogWindow::State::Sending; }, kTimeout));
        return texts;
    }
};

TEST_F(EventNotice, TellsWhatAPickChangesBesideItself)
{
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    EXPECT_EQ(notice(), u"Print Quality is now Photo (was Normal); Bi-Directional Printing is now "
                        "Off (was On); Color Matching is now Natural (was Vivid)."_s);
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Information);
    pick("resolutionPopup", u"Fast"_s);
    EXPECT_EQ(notice(), QString()) << "nothing but the pick";
}

TEST_F(EventNotice, TellsNothingOfAFormOfTheSameMedium)
{
    open();
    setUpPage("DuplexPopup", u"DuplexNoTumble"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"PlainDuplex"_s);
    EXPECT_EQ(notice(), QString());
    print();
    EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
    EXPECT_TRUE(written().contains("Option: VKMediaType=PlainDuplex\n"));
}

TEST_F(EventNotice, TellsWhatIsShownAndNotPrinted)
{
    open();
    setUpPage("DuplexPopup", u"DuplexNoTumble"_s);
    pick("mediaTypePopup", u"Glossy"_s);
    EXPECT_TRUE(notice().endsWith(QLatin1String(kGlossyReplaced))) << notice().toStdString();
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Warning);
}

TEST_F(EventNotice, TellsWhatLookingAtTheSummaryChanges)
{
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    setUpPage("DuplexPopup", u"DuplexNoTumble"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
    showTab(4);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"PlainDuplex"_s);
    EXPECT_EQ(notice(),
              u"Media Type is now Plain Paper (Two-Sided) (was Other Glossy Paper); Print "
              "Quality is now Draft (was Photo)."_s);
}

TEST_F(EventNotice, IsThereFromTheBeginningWhereSomethingElseIsShown)
{
    m_line.choices = {{u"Duplex"_s, u"DuplexNoTumble"_s}, {u"PageSize"_s, u"A4.Fullbleed"_s}};
    open();
    EXPECT_EQ(notice(),
              u"The printer cannot print on both sides of this paper: A4 (Borderless)."_s);
}

TEST_F(EventNotice, TellsAPaperThatIsNotForBothSidesAsSoonAsItIsChosen)
{
    open();
    showTab(0);
    pick("DuplexPopup", u"DuplexNoTumble"_s);
    EXPECT_EQ(notice(), QString());
    part<QAbstractButton>("borderlessButton")->click();
    EXPECT_EQ(notice(),
              u"The printer cannot print on both sides of this paper: A4 (Borderless)."_s);
    part<QAbstractButton>("borderlessButton")->click();
    EXPECT_EQ(notice(), QString());
}

TEST_F(EventNotice, OffersTheTrayOfAnEnvelope)
{
    open();
    showTab(0);
    pick("paperPopup", u"EnvDL"_s);
    EXPECT_TRUE(
        notice().endsWith(u"For Envelope DL there is \"Paper Source: Multi-Purpose Tray\"."_s))
        << notice().toStdString();
    click("adviceButton");
    QCoreApplication::processEvents();
    EXPECT_EQ(marked(u"VKInputSlot"_s), u"MPTray"_s);
    EXPECT_EQ(notice(), QString());
    showTab(1);
    auto *trays = part<PopUpButton>("paperFeedPopup");
    EXPECT_EQ(trays->currentText(), u"Multi-Purpose Tray"_s);
    showTab(0);
    pick("paperPopup", u"A4"_s);
    EXPECT_EQ(m_window->findChild<QAbstractButton *>(u"adviceButton"_s), nullptr);
}

TEST_F(EventNotice, SaysAfterTheBorderlessAlertWhatBecameWhat)
{
    open();
    pick("resolutionPopup", u"PlainFast"_s);
    showTab(0);
    {
        AlertAnswers answers({AlertAnswers::button(0)});
        part<QAbstractButton>("borderlessButton")->click();
    }
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return notice() == u"Print Quality is now Normal (was Draft)."_s; }, kTimeout))
        << notice().toStdString();
}

// The box is off and cannot be chosen for this paper; the printer goes on as it is marked.
TEST_F(EventNotice, SaysNothingOfABoxThatIsSwitchedOff)
{
    open();
    showTab(0);
    part<QAbstractButton>("borderlessButton")->click();
    pick("paperPopup", u"A3"_s);
    ASSERT_EQ(marked(u"PageSize"_s), u"A3.Fullbleed"_s);
    ASSERT_FALSE(part<QAbstractButton>("biDirButton")->isEnabled());
    ASSERT_FALSE(part<QAbstractButton>("biDirButton")->isChecked());
    ASSERT_EQ(marked(u"VKBiDir"_s), u"ON"_s);
    EXPECT_EQ(notice(), u"Print Quality is now Best (was Normal)."_s);
    const auto finished = m_window->controller().finish();
    ASSERT_TRUE(finished);
    EXPECT_EQ(finished->doubts, QStringList());
}

TEST_F(EventNotice, IsAskedAboutBeforeTheJobLeaves)
{
    open();
    setUpPage("DuplexPopup", u"DuplexNoTumble"_s);
    pick("mediaTypePopup", u"Glossy"_s);
    EXPECT_EQ(printAndAnswer(u"Cancel"_s),
              (QStringList{u"Go on with this job?"_s, QLatin1String(kGlossyReplaced)}));
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_FALSE(QFile::exists(m_line.output));
    printAndAnswer(u"Go On"_s);
    EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
    EXPECT_TRUE(written().contains("Option: VKMediaType=PlainDuplex\n"));
}

} // namespace
