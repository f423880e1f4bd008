#include "platform/toolkit/Alert.h"

#include "platform/toolkit/KeyWindow.h"
#include "tests/support/AlertAnswers.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QScrollArea>

#include <algorithm>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

AlertContent question()
{
    AlertContent content;
    content.text = u"Is the disc in the tray?"_s;
    content.informative = u"Insert it now."_s;
    content.buttons = {u"OK"_s, u"Cancel"_s};
    content.suppression = true;
    content.suppressionTitle = u"Do not ask again"_s;
    return content;
}

struct AnswerCase
{
    const char *behaviour;
    AlertAnswers::Answer answer;
    int button;
    bool suppressed;
};

const AnswerCase kAnswerCases[] = {
    {"FirstButton", AlertAnswers::button(0), 0, false},
    {"SecondButton", AlertAnswers::button(1), 1, false},
    {"FirstButtonAndBox", AlertAnswers::button(0, true), 0, true},
    {"SecondButtonAndBox", AlertAnswers::button(1, true), 1, true},
    {"ReturnIsTheFirst", AlertAnswers::key(Qt::Key_Return), 0, false},
    {"EscapeIsTheLast", AlertAnswers::key(Qt::Key_Escape), 1, false},
    {"ClosingIsTheLast", AlertAnswers::closing(), 1, false},
};

class Answered : public testing::TestWithParam<AnswerCase>
{};

TEST_P(Answered, ModalAlert)
{
    const AlertAnswers answers({GetParam().answer});
    const AlertResult result = runAlert(question());
    EXPECT_EQ(result.button, GetParam().button);
    EXPECT_EQ(result.suppressed, GetParam().suppressed);
    ASSERT_EQ(answers.shown().size(), 1U);
    EXPECT_TRUE(answers.shown()[0].window.isNull()) << "the alert has gone";
}

TEST_P(Answered, Sheet)
{
    QObject context;
    std::optional<AlertResult> result;
    AlertAnswers answers({GetParam().answer});
    beginAlertSheet(question(), &context, [&](const AlertResult &given) { result = given; });
    EXPECT_FALSE(result.has_value()) << "the answer arrives later";
    const auto shown = answers.take();
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->button, GetParam().button);
    EXPECT_EQ(result->suppressed, GetParam().suppressed);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_TRUE(shown[0].window.isNull()) << "the sheet has gone";
}

INSTANTIATE_TEST_SUITE_P(Cases, Answered, testing::ValuesIn(kAnswerCases), CaseName());

TEST(AlertTest, AnotherButtonThanTheFirstMayAnswerReturn)
{
    AlertContent content = question();
    content.defaultButton = 1;
    const AlertAnswers answers({AlertAnswers::key(Qt::Key_Return)});
    EXPECT_EQ(runAlert(content).button, 1);
}

TEST(AlertTest, BlocksTheApplicationWhileItIsModal)
{
    bool modal = false;
    const AlertAnswers answers({[&](const ShownAlert &alert) {
        modal = QApplication::activeModalWidget() == alert.window;
        alert.press(0);
    }});
    runAlert(question());
    EXPECT_TRUE(modal);
}

TEST(AlertTest, BlocksTheKeyWindowAloneAsASheet)
{
    QWidget window;
    window.show();
    setKeyWindow(&window);
    QObject context;
    AlertAnswers answers({AlertAnswers::button(0)});
    beginAlertSheet(question(), &context, [](const AlertResult &) {});
    const QWidget *sheet = answers.shown().at(0).window;
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
    EXPECT_EQ(sheet->parentWidget(), &window);
    answers.take();
    setKeyWindow(nullptr);
}

/// Reads the alert's size, and what of its buttons and texts a person can come to.
struct Reach
{
    QSize size;
    int buttonsInSight = 0;
    int textsInArea = 0;
    bool isScrolled = false;

    void look(const ShownAlert &alert)
    {
        // A scroll area lays itself out in some turns of the event loop.
        isScrolled =
            QTest::qWaitFor([&] { return (textsInArea = textsIn(*alert.window)) > 0; }, 200);
        size = alert.window->size();
        for (const auto &button : alert.buttons)
            buttonsInSight += button->visibleRegion() == button->rect() &&
                                      button->width() >= button->minimumSizeHint().width()
                                  ? 1
                                  : 0;
    }

    /// Those that are scrolled up and down alone, with all of their lines.
    static int textsIn(const QWidget &box)
    {
        const auto *area = box.findChild<QScrollArea *>();
        if (!area)
            return 0;
        return static_cast<int>(
            std::ranges::count_if(area->widget()->findChildren<QLabel *>(), [&](const auto *label) {
                return label->width() <= area->viewport()->width() &&
                       label->height() >= label->heightForWidth(label->width());
            }));
    }
};

Reach reachOf(const AlertContent &content, int points)
{
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPointSize(points);
    QApplication::setFont(font);
    Reach reach;
    const AlertAnswers answers({[&](const ShownAlert &alert) {
        reach.look(alert);
        alert.press(0);
    }});
    runAlert(content);
    QApplication::setFont(before);
    return reach;
}

TEST(AlertTest, ScrollsTextsThatAreHigherThanTheScreen)
{
    AlertContent content = question();
    content.informative = u"The printer cannot print on both sides of this paper. "_s.repeated(20);
    const Reach reach = reachOf(content, 24);
    const QSize screen = QApplication::primaryScreen()->availableSize();
    EXPECT_EQ(reach.size.boundedTo(screen), reach.size);
    EXPECT_EQ(reach.buttonsInSight, 2);
    EXPECT_EQ(reach.textsInArea, 2);
}

TEST(AlertTest, PutsButtonsThatAreTooWideOneAboveTheOther)
{
    AlertContent content = question();
    content.buttons = {u"Go On with Everything as It Is Now"_s,
                       u"Change the Paper in the Printer"_s, u"Cancel All of It"_s};
    const Reach reach = reachOf(content, 24);
    const QSize screen = QApplication::primaryScreen()->availableSize();
    EXPECT_EQ(reach.size.boundedTo(screen), reach.size);
    EXPECT_EQ(reach.buttonsInSight, 3);
    EXPECT_EQ(reach.textsInArea, 2);
}

TEST(AlertTest, ScrollsNothingThatHasRoom)
{
    const Reach reach = reachOf(question(), 9);
    EXPECT_EQ(reach.buttonsInSight, 2);
    EXPECT_FALSE(reach.isScrolled);
}

struct StyleCase
{
    const char *behaviour;
    AlertStyle style;
    QMessageBox::Icon icon;
};

class Style : public testing::TestWithParam<StyleCase>
{};

const StyleCase kStyleCases[] = {
    {"None", AlertStyle::None, QMessageBox::NoIcon},
    {"Informational", AlertStyle::Informational, QMessageBox::Information},
    {"Warning", AlertStyle::Warning, QMessageBox::Warning},
    {"Critical", AlertStyle::Critical, QMessageBox::Critical},
};

TEST_P(Style, HasItsIcon)
{
    QMessageBox::Icon icon = QMessageBox::Question;
    const AlertAnswers answers({[&](const ShownAlert &alert) {
        icon = qobject_cast<QMessageBox *>(alert.window.data())->icon();
        alert.press(0);
    }});
    AlertContent content = question();
    content.style = GetParam().style;
    runAlert(content);
    EXPECT_EQ(icon, GetParam().icon);
}

INSTANTIATE_TEST_SUITE_P(Cases, Style, testing::ValuesIn(kStyleCases), CaseName());

TEST(AlertTest, ShowsMarkupAndAmpersandsAsTheyAre)
{
    AlertContent content;
    content.text = u"<b>Bold</b> <img src=\"file:///etc/passwd\">"_s;
    content.informative = u"<a href=\"http://localhost/\">Click</a> & more"_s;
    content.buttons = {u"Black & White"_s, u"<i>Cancel</i>"_s};
    content.suppression = true;
    content.suppressionTitle = u"This & that"_s;
    QStringList texts;
    QStringList buttons;
    QList<Qt::TextFormat> formats;
    QString box;
    const AlertAnswers answers({[&](const ShownAlert &alert) {
        for (const QLabel *label : alert.window->findChildren<QLabel *>()) {
            if (!label->text().isEmpty()) {
                texts << label->text();
                formats << label->textFormat();
            }
        }
        for (const auto &button : alert.buttons)
            buttons << button->text();
        box = alert.suppressionBox->text();
        alert.press(0);
    }});
    runAlert(content);
    EXPECT_TRUE(texts.contains(content.text));
    EXPECT_TRUE(texts.contains(content.informative));
    EXPECT_EQ(formats, QList<Qt::TextFormat>(formats.size(), Qt::PlainText));
    EXPECT_EQ(buttons, (QStringList{u"Black && White"_s, u"<i>Cancel</i>"_s}));
    EXPECT_EQ(box, u"This && that"_s);
}

TEST(AlertTest, TellsTheObserverWhatItSays)
{
    const AlertAnswers answers({AlertAnswers::button(0)});
    runAlert(question());
    const ShownAlert &shown = answers.shown().at(0);
    EXPECT_EQ(shown.kind, ShownAlert::Kind::Modal);
    EXPECT_EQ(shown.content.text, question().text);
    EXPECT_EQ(shown.content.informative, question().informative);
    EXPECT_EQ(shown.content.buttons, question().buttons);
    EXPECT_EQ(shown.buttons.size(), 2);
}

TEST(AlertTest, HasNoBoxUnlessItIsAskedFor)
{
    const AlertAnswers answers({AlertAnswers::button(0, true)});
    AlertContent content = question();
    content.suppression = false;
    EXPECT_FALSE(runAlert(content).suppressed);
    EXPECT_TRUE(answers.shown()[0].suppressionBox.isNull());
}

TEST(AlertTest, TellsTwoButtonsOfOneTitleApart)
{
    const AlertAnswers answers({AlertAnswers::button(1)});
    AlertContent content = question();
    content.buttons = {u"OK"_s, u"OK"_s};
    EXPECT_EQ(runAlert(content).button, 1);
}

TEST(AlertTest, AnswersItsOnlyButtonHoweverItIsDismissed)
{
    AlertContent content = question();
    content.buttons = {u"OK"_s};
    const AlertAnswers answers({AlertAnswers::key(Qt::Key_Escape), AlertAnswers::closing()});
    EXPECT_EQ(runAlert(content).button, 0);
    EXPECT_EQ(runAlert(content).button, 0);
}

TEST(AlertTest, IgnoresAPressOfAButtonThatIsNotThere)
{
    const AlertAnswers answers({[](const ShownAlert &alert) {
        alert.press(7);
        alert.press(-1);
        alert.press(1);
        alert.press(0);
    }});
    EXPECT_EQ(runAlert(question()).button, 1);
}

TEST(AlertTest, IsDismissedWhenTheKeyWindowIsDestroyedMeanwhile)
{
    auto window = std::make_unique<QWidget>();
    window->show();
    setKeyWindow(window.get());
    const AlertAnswers answers({[&](const ShownAlert &) { window.reset(); }});
    EXPECT_EQ(runAlert(question()).button, 1);
}

TEST(AlertTest, DoesNotCallBackWhoHasGoneMeanwhile)
{
    auto context = std::make_unique<QObject>();
    bool called = false;
    AlertAnswers answers({AlertAnswers::button(0)});
    beginAlertSheet(question(), context.get(), [&](const AlertResult &) { called = true; });
    context.reset();
    const auto shown = answers.take();
    EXPECT_FALSE(called);
    EXPECT_FALSE(shown.at(0).window->isVisible());
}

TEST(AlertTest, CanRaiseAnotherFromItsAnswer)
{
    AlertAnswers answers({[](const ShownAlert &outer) {
                              EXPECT_EQ(runAlert(question()).button, 1);
                              outer.press(0);
                          },
                          AlertAnswers::button(1)});
    EXPECT_EQ(runAlert(question()).button, 0);
    EXPECT_EQ(answers.shown().size(), 2U);
}

/// Answers alerts that nobody is to see.
class UnseenAnswers : public AlertAnswers
{
public:
    using AlertAnswers::AlertAnswers;
    bool keepsAlertsUnseen() const override { return true; }
};

TEST_P(Answered, AlertThatIsKeptFromTheScreen)
{
    const QByteArray behaviour = GetParam().behaviour;
    if (!behaviour.contains("Button")) // nobody can press a key in what is not there
        return;
    UnseenAnswers answers({[](const ShownAlert &alert) {
        EXPECT_TRUE(alert.isUnseen);
        EXPECT_FALSE(alert.window->isVisible());
        GetParam().answer(alert);
    }});
    const AlertResult result = runAlert(question());
    EXPECT_EQ(result.button, GetParam().button);
    EXPECT_EQ(result.suppressed, GetParam().suppressed);
}

TEST(AlertTest, AnUnseenSheetWaitsForItsAnswer)
{
    QObject context;
    UnseenAnswers answers({AlertAnswers::button(1)});
    int button = -1;
    beginAlertSheet(question(), &context, [&](const AlertResult &end) { button = end.button; });
    EXPECT_EQ(button, -1);
    EXPECT_FALSE(answers.shown().at(0).window->isVisible());
    answers.take();
    EXPECT_EQ(button, 1);
}

/// Counts the alerts, and answers none.
class CountingWitness : public AlertObserver
{
public:
    CountingWitness() { addWitness(this); }
    ~CountingWitness() override { removeWitness(this); }
    CountingWitness(const CountingWitness &) = delete;
    CountingWitness &operator=(const CountingWitness &) = delete;
    void alertShown(const ShownAlert &) override { ++count; }

    int count = 0;
};

TEST(AlertTest, IsToldToEveryWitnessBesideWhoAnswers)
{
    const CountingWitness older;
    const AlertAnswers answers({AlertAnswers::button(0)});
    const CountingWitness younger;
    runAlert(question());
    EXPECT_EQ(older.count, 1);
    EXPECT_EQ(younger.count, 1);
}

TEST(AlertTest, IsToldToNobodyWhereItIsNotObserved)
{
    const CountingWitness witness;
    const AlertAnswers nobody;
    {
        const UnobservedAlerts own;
        QTimer::singleShot(0, qApp, [] {
            ASSERT_NE(QApplication::activeModalWidget(), nullptr);
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        });
        EXPECT_EQ(runAlert(question()).button, 1);
    }
    EXPECT_EQ(witness.count, 0);
    EXPECT_EQ(AlertObserver::alertObserver(), &nobody);
}

} // namespace
