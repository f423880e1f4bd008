#include "platform/toolkit/ModalSession.h"

#include "platform/toolkit/ImageView.h"
#include "tests/support/AlertAnswers.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// An alert window as a view resource has it: two texts, OK and Cancel.
class AlertWindow : public QDialog
{
public:
    AlertWindow()
    {
        setWindowTitle(u"Load the envelopes"_s);
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel(u"Load them."_s));
        layout->addWidget(new QLabel(u"Take care."_s));
        auto *ok = new QPushButton(u"OK"_s);
        auto *cancel = new QPushButton(u"Cancel && Go"_s);
        for (QPushButton *button : {ok, cancel})
            layout->addWidget(button);
        connect(ok, &QPushButton::clicked, this, [] { stopModalWithCode(kModalOK); });
        connect(cancel, &QPushButton::clicked, this, [] { stopModalWithCode(kModalCancel); });
    }
};

struct EndCase
{
    const char *behaviour;
    AlertAnswers::Answer answer;
    int code;
    bool staysOnScreen;
};

class SessionEnd : public testing::TestWithParam<EndCase>
{};

const EndCase kEndCases[] = {
    {"OK", AlertAnswers::button(0), kModalOK, true},
    {"Cancel", AlertAnswers::button(1), kModalCancel, true},
    {"Return", AlertAnswers::key(Qt::Key_Return), kModalOK, true},
    {"Escape", AlertAnswers::key(Qt::Key_Escape), kModalCancel, true},
    {"EscapeInAButton",
     [](const ShownAlert &alert) { QTest::keyClick(alert.buttons[0], Qt::Key_Escape); },
     kModalCancel, true},
    {"Close", AlertAnswers::closing(), kModalCancel, false},
    {"OKAndThenCancelIsTheLast",
     [](const ShownAlert &alert) {
         alert.press(0);
         alert.press(1);
     },
     kModalCancel, true},
    {"TheApplicationQuits", [](const ShownAlert &) { QCoreApplication::exit(1); }, kModalCancel,
     true},
};

TEST_P(SessionEnd, GivesItsCode)
{
    AlertWindow window;
    const AlertAnswers answers({GetParam().answer});
    EXPECT_EQ(runModalForWindow(&window), GetParam().code);
    EXPECT_EQ(window.isVisible(), GetParam().staysOnScreen);
}

INSTANTIATE_TEST_SUITE_P(Cases, SessionEnd, testing::ValuesIn(kEndCases), CaseName());

TEST(ModalSessionTest, BlocksTheApplication)
{
    AlertWindow window;
    bool modal = false;
    const AlertAnswers answers({[&](const ShownAlert &alert) {
        modal = QApplication::activeModalWidget() == alert.window;
        alert.press(0);
    }});
    runModalForWindow(&window);
    EXPECT_TRUE(modal);
}

TEST(ModalSessionTest, TellsTheObserverWhatTheWindowSays)
{
    AlertWindow window;
    const AlertAnswers answers({AlertAnswers::button(0)});
    runModalForWindow(&window);
    const ShownAlert &shown = answers.shown().at(0);
    EXPECT_EQ(shown.kind, ShownAlert::Kind::Window);
    EXPECT_EQ(shown.content.style, AlertStyle::None);
    EXPECT_EQ(shown.content.title, u"Load the envelopes"_s);
    EXPECT_EQ(shown.content.text, u"Load them."_s);
    EXPECT_EQ(shown.content.informative, u"Take care."_s);
    EXPECT_EQ(shown.content.buttons, (QStringList{u"OK"_s, u"Cancel & Go"_s}));
    EXPECT_FALSE(shown.content.suppression);
}

TEST(ModalSessionTest, OffersTheSuppressionBoxOfTheWindow)
{
    AlertWindow window;
    auto *box = new QCheckBox(u"Do not ask again"_s);
    window.layout()->addWidget(box);
    const AlertAnswers answers({AlertAnswers::button(0, true)});
    EXPECT_EQ(runModalForWindow(&window), kModalOK);
    EXPECT_TRUE(answers.shown()[0].content.suppression);
    EXPECT_TRUE(box->isChecked());
}

TEST(ModalSessionTest, EndsTheInnermostOfTwo)
{
    AlertWindow outer;
    AlertWindow inner;
    int innerCode = -1;
    bool outerWentOn = false;
    const AlertAnswers answers({[&](const ShownAlert &alert) {
                                    innerCode = runModalForWindow(&inner);
                                    outerWentOn = outer.isVisible();
                                    alert.press(1);
                                },
                                AlertAnswers::button(0)});
    EXPECT_EQ(runModalForWindow(&outer), kModalCancel);
    EXPECT_EQ(innerCode, kModalOK);
    EXPECT_TRUE(outerWentOn);
}

TEST(ModalSessionTest, CanBeRunAgainWithTheSameWindow)
{
    AlertWindow window;
    const AlertAnswers answers(
        {AlertAnswers::closing(), AlertAnswers::button(0), AlertAnswers::button(1)});
    EXPECT_EQ(runModalForWindow(&window), kModalCancel);
    EXPECT_EQ(runModalForWindow(&window), kModalOK);
    window.hide();
    EXPECT_EQ(runModalForWindow(&window), kModalCancel);
}

TEST(ModalSessionTest, EndsWhenItsWindowIsDestroyed)
{
    auto window = std::make_unique<AlertWindow>();
    const AlertAnswers answers({[&](const ShownAlert &) { window.reset(); }});
    EXPECT_EQ(runModalForWindow(window.get()), kModalCancel);
}

TEST(ModalSessionTest, IsCancelWithoutAWindow)
{
    EXPECT_EQ(runModalForWindow(nullptr), kModalCancel);
}

TEST(ModalSessionTest, HasNothingToStopWhenNoneRuns)
{
    stopModalWithCode(kModalOK);
    AlertWindow window;
    const AlertAnswers answers({AlertAnswers::button(1)});
    EXPECT_EQ(runModalForWindow(&window), kModalCancel);
}

TEST(ModalSessionTest, LetsPicturesGiveWayOnAScreenThatIsTooSmall)
{
    AlertWindow window;
    const QSize screen = window.screen()->availableSize();
    auto *picture = new ImageView(&window);
    picture->setFixedSize(278, 243);
    auto *column = static_cast<QVBoxLayout *>(window.layout());
    column->insertWidget(0, picture);
    auto *text = new QWidget(&window);
    text->setFixedSize(200, screen.height() - 243);
    column->insertWidget(1, text);
    ASSERT_GT(window.sizeHint().height(), screen.height());
    const AlertAnswers answers({[&](const ShownAlert &alert) {
        EXPECT_LE(window.height(), screen.height());
        const QRect button(alert.buttons[1]->mapTo(&window, QPoint()), alert.buttons[1]->size());
        EXPECT_TRUE(window.rect().contains(button));
        EXPECT_LT(picture->height(), 243);
        EXPECT_NEAR(double(picture->width()) / picture->height(), 278.0 / 243, 0.05);
        alert.press(0);
    }});
    EXPECT_EQ(runModalForWindow(&window), kModalOK);
}

TEST(ModalSessionTest, EndsByItsButtonWhereItIsKeptFromTheScreen)
{
    class Unseen : public AlertAnswers
    {
    public:
        using AlertAnswers::AlertAnswers;
        bool keepsAlertsUnseen() const override { return true; }
    };
    AlertWindow window;
    const Unseen answers({[&](const ShownAlert &alert) {
        EXPECT_FALSE(window.isVisible());
        alert.press(0);
    }});
    EXPECT_EQ(runModalForWindow(&window), kModalOK);
    EXPECT_FALSE(window.isVisible());
}

} // namespace
