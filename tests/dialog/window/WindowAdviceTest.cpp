// Why a choice is not to be had, asked in the dialog, and the ways to it.
#include "platform/foundation/UserDefaults.h"
#include "tests/dialog/window/UndoFixture.h"
#include "tests/support/AlertAnswers.h"
#include "tests/support/ClashingPPD.h"

#include <QtGui/QContextMenuEvent>
#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocumentFragment>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolTip>

using namespace Qt::StringLiterals;

namespace {

class WindowAdvice : public UndoFixture
{
protected:
    /// The questions of the menu that is open; asks the one of the text.
    QStringList questions(const QString &asked = {})
    {
        auto *menu = m_window->findChild<QMenu *>(u"questionMenu"_s);
        if (!menu)
            return {};
        QStringList texts;
        QAction *chosen = nullptr;
        for (QAction *action : menu->actions()) {
            texts += action->text();
            if (action->text() == asked)
                chosen = action;
        }
        menu->close();
        if (chosen)
            chosen->trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return texts;
    }

    void openMenu(QWidget *at)
    {
        const QPoint middle = at->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, middle, at->mapToGlobal(middle));
        QCoreApplication::sendEvent(at, &event);
    }

    QStringList offers()
    {
        QStringList titles;
        for (const auto *button : part<QWidget>("noticeBar")->findChildren<QAbstractButton *>())
            if (button->isVisible())
                titles += plainTitle(button->text());
        return titles;
    }

    bool waitForOffer(const char *name)
    {
        return QTest::qWaitFor(
            [&] { return m_window->findChild<QWidget *>(QLatin1String(name)) != nullptr; },
            kTimeout);
    }
};

/// What another run of the program has left in the user's files.
class RememberedAlerts
{
public:
    explicit RememberedAlerts(const QByteArray &lines)
    {
        UserDefaults::standardUserDefaults().setFolder(m_folder.path());
        writeFile(m_folder.filePath(u"com.velkaro.print.pde.ini"_s), "[General]\n" + lines);
    }
    ~RememberedAlerts() { UserDefaults::standardUserDefaults() = m_former; }

private:
    const UserDefaults m_former = UserDefaults::standardUserDefaults();
    QTemporaryDir m_folder;
};

TEST_F(WindowAdvice, TellsWhyAfterAnAlertWasAnsweredInAnotherRun)
{
    const RememberedAlerts alerts("Best%20Alert=false\nHighest%20Alert=true\nOdd=maybe\n");
    open();
    EXPECT_EQ(
        m_window->job().session()->alertMemory(),
        (QVariantMap{{u"Best Alert"_s, false}, {u"Highest Alert"_s, true}, {u"Odd"_s, true}}));
    openMenu(part<QWidget>("resolutionPopup"));
    questions(u"Why is there no \"Photo\"?"_s);
    ASSERT_TRUE(waitForOffer("getItButton")) << notice().toStdString();
    EXPECT_TRUE(notice().startsWith(u"Photo is not there for Plain Paper. It is there for"_s))
        << notice().toStdString();
}

TEST_F(WindowAdvice, IsRecordedSoThatItIsReplayedAfterAnAlertWasAnsweredInAnotherRun)
{
    const RememberedAlerts alerts("Best%20Alert=false\n");
    openRecorded();
    ASSERT_TRUE(finishRecording());
    EXPECT_TRUE(readFile(m_line.record).contains(R"("alerts":{"Best Alert":false})"))
        << readFile(m_line.record).toStdString();
}

TEST_F(WindowAdvice, TellsWhyAChoiceIsNotThereAndGetsItInOneStep)
{
    open();
    const std::string before = state();
    openMenu(part<QWidget>("resolutionPopup"));
    const QString question = u"Why is there no \"Photo\"?"_s;
    EXPECT_TRUE(questions(question).contains(question));
    ASSERT_TRUE(waitForOffer("getItButton"));
    EXPECT_TRUE(notice().startsWith(u"Photo is not there for Plain Paper. It is there for"_s))
        << notice().toStdString();
    EXPECT_EQ(state(), before);
    click("getItButton");
    QCoreApplication::processEvents();
    EXPECT_EQ(marked(u"VKResolution"_s), u"Photo"_s);
    EXPECT_EQ(part<PopUpButton>("resolutionPopup")->selectedObject(), u"Photo"_s);
    EXPECT_NE(marked(u"VKMediaType"_s), u"Plain"_s);
    EXPECT_TRUE(offers().contains(u"Undo"_s));
    undo();
    EXPECT_EQ(state(), before);
}

TEST_F(WindowAdvice, AnswersThoughTheWindowIsResizedMeanwhile)
{
    open();
    openMenu(part<QWidget>("resolutionPopup"));
    const QString question = u"Why is there no \"Photo\"?"_s;
    EXPECT_TRUE(questions(question).contains(question));
    m_window->resize(m_window->width(), m_window->height() + 40);
    EXPECT_TRUE(waitForOffer("getItButton"));
}

TEST_F(WindowAdvice, CanBeAskedOfAControlThatIsSwitchedOff)
{
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    auto *box = part<QWidget>("biDirButton");
    ASSERT_FALSE(box->isEnabled());
    openMenu(box);
    EXPECT_EQ(questions(),
              (QStringList{u"Bi-Directional Printing: Off – Because you chose Media "
                           "Type: Other Glossy Paper"_s,
                           QString(), u"Why is there no \"Bi-Directional Printing: On\"?"_s}));
}

TEST_F(WindowAdvice, IsAskedByTheKeyboardToo)
{
    open();
    part<QWidget>("resolutionPopup")->setFocus();
    QTest::keyClick(part<QWidget>("resolutionPopup"), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(questions().contains(u"Why is there no \"Photo\"?"_s));
    part<QWidget>("helpButton")->setFocus();
    QTest::keyClick(m_window.get(), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(questions().contains(u"Why is there no \"Photo\"?"_s));
}

TEST_F(WindowAdvice, NamesWhatIsNotThereInATip)
{
    open();
    const auto tipOver = [this](const char *name) {
        auto *widget = part<QWidget>(name);
        const QPoint middle = widget->rect().center();
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, middle, widget->mapToGlobal(middle));
        QCoreApplication::sendEvent(widget, &event);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    };
    const QString tip = tipOver("resolutionPopup");
    EXPECT_TRUE(tip.startsWith(u"Not to be had now: "_s)) << tip.toStdString();
    EXPECT_TRUE(tip.contains(u"Photo"_s)) << tip.toStdString();
    EXPECT_TRUE(tip.endsWith(u"Shift+F1 or the context menu tells why."_s)) << tip.toStdString();
}

TEST_F(WindowAdvice, SaysWhereEverythingCanBeChosen)
{
    open();
    openMenu(part<QWidget>("monoColorPopup"));
    EXPECT_EQ(questions().last(), u"Everything here can be chosen."_s);
}

TEST_F(WindowAdvice, TellsWhereAValueComesFrom)
{
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    openMenu(part<QWidget>("resolutionPopup"));
    const QString line =
        u"Print Quality: Photo – Because you chose Media Type: Other Glossy Paper"_s;
    EXPECT_EQ(questions(line).first(), line);
    EXPECT_EQ(notice(), line);
    openMenu(part<QWidget>("mediaTypePopup"));
    EXPECT_EQ(questions().first(), u"Media Type: Other Glossy Paper – Your choice"_s);
}

TEST_F(WindowAdvice, OpensALongListOfWays)
{
    open();
    openMenu(part<QWidget>("resolutionPopup"));
    questions(u"Why is there no \"Photo\"?"_s);
    ASSERT_TRUE(waitForOffer("allWaysButton"));
    ASSERT_TRUE(notice().contains(u"It is there for Inkjet Paper, Velkaro Photo Paper, Glossy and "
                                  "4 more."_s))
        << notice().toStdString();
    auto *menu = part<QPushButton>("allWaysButton")->menu();
    QStringList ways;
    for (const QAction *action : menu->actions())
        ways += action->text();
    EXPECT_EQ(ways,
              (QStringList{u"Inkjet Paper"_s, u"Velkaro Photo Paper, Glossy"_s,
                           u"Velkaro Photo Paper, Glossy Roll"_s, u"Velkaro QM41 Matte Paper"_s,
                           u"Other Glossy Paper"_s, u"Postcard, Picture Side"_s}));
    const std::string before = state();
    menu->actions().constLast()->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(marked(u"VKResolution"_s), u"Photo"_s);
    undo();
    EXPECT_EQ(state(), before);
}

/// The line under the list, as far as it is there.
QString lineUnder(const PopUpButton &popup)
{
    const auto *line = popup.view()->window()->findChild<QLabel *>(u"listAdvice"_s);
    return line && line->isVisible() ? line->text() : QString();
}

TEST_F(WindowAdvice, SaysUnderAnOpenListWhatIsNotThere)
{
    open();
    const std::string before = state();
    auto *popup = part<PopUpButton>("resolutionPopup");
    popup->showPopup();
    EXPECT_TRUE(lineUnder(*popup).startsWith(u"Not to be had now: "_s))
        << lineUnder(*popup).toStdString();
    const auto isAnswered = [&] { return lineUnder(*popup).contains(u"It is there for "_s); };
    ASSERT_TRUE(QTest::qWaitFor(isAnswered, kTimeout)) << lineUnder(*popup).toStdString();
    EXPECT_EQ(popup->view()->accessibleDescription(), lineUnder(*popup));
    popup->hidePopup();
    EXPECT_EQ(lineUnder(*popup), QString());
    EXPECT_EQ(popup->view()->accessibleDescription(), QString());
    EXPECT_EQ(state(), before);
}

TEST_F(WindowAdvice, IsGivenUpWhenTheWindowGoesWithAnOpenList)
{
    open();
    auto *popup = part<PopUpButton>("resolutionPopup");
    popup->showPopup();
    ASSERT_TRUE(lineUnder(*popup).startsWith(u"Not to be had now: "_s));
    m_window.reset();
}

TEST_F(WindowAdvice, SaysUnderAnOpenListWhyTheItemUnderThePointerIsSwitchedOff)
{
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    auto *popup = part<PopUpButton>("paperFeedPopup");
    const int tray = popup->indexOfRepresentedObject(u"Tray2"_s);
    ASSERT_GE(tray, 0);
    ASSERT_FALSE(popup->isItemEnabled(tray));
    popup->showPopup();
    QAbstractItemView *rows = popup->view();
    QTest::mouseMove(rows->viewport(), rows->visualRect(rows->model()->index(tray, 0)).center());
    const QString answer = popup->itemText(tray) + u" is not there for Other Glossy Paper."_s;
    EXPECT_TRUE(QTest::qWaitFor([&] { return lineUnder(*popup).startsWith(answer); }, kTimeout))
        << lineUnder(*popup).toStdString();
    popup->hidePopup();
}

TEST_F(WindowAdvice, OffersTheWaysToARefusedChoice)
{
    const ClashingPPD ppd;
    m_line.ppd = ppd.path();
    open();
    showTab(u"setup"_s);
    pick("DuplexPopup", u"DuplexTumble"_s);
    showTab(u"print"_s);
    pick("mediaTypePopup", u"Transparencies"_s);
    const QString refusal = notice();
    ASSERT_EQ(marked(u"VKMediaType"_s), u"PlainDuplex"_s);
    ASSERT_TRUE(waitForOffer("remedyButton"));
    EXPECT_EQ(notice(), refusal);
    EXPECT_EQ(offers().first().simplified(),
              u"Turn off Two-Sided Printing and use Transparencies"_s);
    EXPECT_EQ(part<QPushButton>("remedyButton")->accessibleName(),
              u"Turn off Two-Sided Printing and use Transparencies"_s);
    EXPECT_EQ(offers().last(), u"Leave It"_s);
    const std::string before = state();
    click("remedyButton");
    QCoreApplication::processEvents();
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Transparencies"_s);
    EXPECT_EQ(marked(u"Duplex"_s), u"None"_s);
    undo();
    EXPECT_EQ(state(), before);
}

TEST_F(WindowAdvice, OffersTheWayBackToWhatAnAlertTookAway)
{
    open();
    pick("resolutionPopup", u"PlainFast"_s);
    showTab(u"setup"_s);
    {
        AlertAnswers answers({AlertAnswers::button(0)});
        part<QAbstractButton>("borderlessButton")->click();
    }
    ASSERT_TRUE(waitForOffer("remedyButton"));
    EXPECT_EQ(notice(), u"Print Quality is now Normal (was Draft)."_s);
    EXPECT_EQ(offers().first().simplified(), u"Use A4 and use Draft"_s);
    EXPECT_EQ(offers().last(), u"Undo"_s);
    click("remedyButton");
    QCoreApplication::processEvents();
    EXPECT_EQ(marked(u"VKResolution"_s), u"PlainFast"_s);
    EXPECT_EQ(marked(u"PageSize"_s), u"A4"_s);
}

TEST_F(WindowAdvice, LeavesARefusedChoiceWhereItIs)
{
    const ClashingPPD ppd;
    m_line.ppd = ppd.path();
    open();
    pick("mediaTypePopup", u"Transparencies"_s);
    showTab(u"setup"_s);
    pick("DuplexPopup", u"DuplexTumble"_s);
    ASSERT_TRUE(waitForOffer("leaveButton"));
    const std::string before = state();
    click("leaveButton");
    QCoreApplication::processEvents();
    EXPECT_EQ(state(), before);
    EXPECT_EQ(offers(), QStringList());
}

} // namespace
