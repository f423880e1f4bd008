// Whatever is picked at random in the dialog, undoing all of it and doing it again goes through the
// same states.
#include "dialog/host/controls/PanelParts.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/dialog/window/UndoFixture.h"
#include "tests/support/AlertAnswers.h"
#include "tests/support/CaseName.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>

#include <algorithm>
#include <functional>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPause = 60; // ms, after which the window knows that nobody goes on

struct Walk
{
    const char *printer;
    unsigned seed;
    unsigned picks = 20;
    int pause = 0; // ms after most of them
};

/// Answers whatever alert comes up with its first button.
class AnyAlert : public AlertObserver
{
public:
    AnyAlert() : m_former(alertObserver()) { setAlertObserver(this); }
    ~AnyAlert() override { setAlertObserver(m_former); }
    AnyAlert(const AnyAlert &) = delete;
    AnyAlert &operator=(const AnyAlert &) = delete;

    void alertShown(const ShownAlert &alert) override
    {
        ++shown;
        alert.setSuppressed(shown % 3 == 0);
        if (alert.kind == ShownAlert::Kind::Sheet)
            QMetaObject::invokeMethod(
                alert.window, [alert] { alert.press(0); }, Qt::QueuedConnection);
        else
            alert.press(0);
    }

    int shown = 0;

private:
    AlertObserver *m_former;
};

class UndoWalk : public UndoFixture, public testing::WithParamInterface<Walk>
{
protected:
    UndoWalk() : m_random(GetParam().seed)
    {
        m_line.ppd = samplePPD(QLatin1String(GetParam().printer));
    }

    std::size_t any(std::size_t count)
    {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
    }

    /// All that a person could do now in the tab in front.
    std::vector<std::function<void()>> possible()
    {
        std::vector<std::function<void()>> acts;
        const QWidget *page = part<QTabWidget>("parts")->currentWidget();
        for (QWidget *widget : page->findChildren<QWidget *>()) {
            if (!widget->isVisible() || !widget->isEnabled())
                continue;
            if (auto *popup = qobject_cast<PopUpButton *>(widget)) {
                for (int index = 0; index < popup->count(); ++index)
                    if (popup->isItemEnabled(index))
                        acts.push_back([popup, index] { popup->pick(index); });
            } else if (auto *slider = qobject_cast<FractionSlider *>(widget)) {
                const double value = static_cast<double>(any(41)) - 20;
                acts.push_back([slider, value] { slider->moveByUser(value); });
            } else if (auto *button = qobject_cast<QAbstractButton *>(widget);
                       button &&
                       (qobject_cast<QCheckBox *>(widget) || qobject_cast<QRadioButton *>(widget) ||
                        widget->objectName() == "effectRevertButton"_L1)) {
                acts.push_back([button] { button->click(); });
            }
        }
        return acts;
    }

    /// Does something in one of the tabs, and comes back to the one of the layout. What looking at
    /// the tab changes belongs to the state before.
    void act(std::vector<std::string> &states)
    {
        static const QStringList tabs{u"setup"_s, u"print"_s, u"color"_s,
                                      u"print"_s, u"color"_s, u"layout"_s};
        const QString tab = tabs[static_cast<qsizetype>(any(6))];
        showTab(tab);
        showTab(u"layout"_s);
        states.push_back(state());
        showTab(tab);
        const auto acts = possible();
        if (!acts.empty())
            acts[any(acts.size())]();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents(); // a sheet was answered
        showTab(u"layout"_s);
        if (GetParam().pause > 0 && any(3) != 0)
            QTest::qWait(GetParam().pause);
        states.push_back(state());
    }

    std::mt19937 m_random;
};

TEST_P(UndoWalk, GoesThroughTheSameStatesBackAndForth)
{
    AnyAlert alerts;
    open();
    for (const QString &tab : {u"print"_s, u"color"_s, u"layout"_s})
        showTab(tab);
    std::vector<std::string> states{state()};
    for (unsigned pick = 0; pick < GetParam().picks; ++pick)
        act(states);
    const int shown = alerts.shown;
    // A pick that has settled nothing is no step.
    std::vector<std::size_t> steps{states.size() - 1};
    for (std::string before = state(); undo(), state() != before; before = state()) {
        const auto end = states.begin() + static_cast<std::ptrdiff_t>(steps.back());
        const auto found = std::find(std::make_reverse_iterator(end), states.rend(), state());
        if (found == states.rend()) {
            ASSERT_EQ(state(), states[steps.back() - 1]) << "back from " << steps.back();
        }
        steps.push_back(static_cast<std::size_t>(states.rend() - found) - 1);
    }
    EXPECT_EQ(state(), states.front());
    EXPECT_GT(steps.size(), GetParam().picks / 3);
    for (auto step = steps.rbegin() + 1; step != steps.rend(); ++step) {
        redo();
        ASSERT_EQ(state(), states[*step]) << "on to " << *step;
    }
    EXPECT_EQ(alerts.shown, shown);
}

INSTANTIATE_TEST_SUITE_P(Seeds, UndoWalk,
                         testing::Values(Walk{"velkaro-px-t900", 1}, Walk{"velkaro-px-t900", 2},
                                         Walk{"velkaro-px-330c", 3}, Walk{"velkaro-px-330c", 4},
                                         Walk{"velkaro-mx-j710dw", 5},
                                         Walk{"velkaro-mx-j710dw", 6}));

// So many events that few of them are done once more, where there was time to look at the states.
INSTANTIATE_TEST_SUITE_P(LongSeeds, UndoWalk,
                         testing::Values(Walk{"velkaro-px-t900", 7, 36, kPause},
                                         Walk{"velkaro-px-330c", 8, 36, kPause}));

} // namespace
