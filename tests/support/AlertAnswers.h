#pragma once

#include "platform/toolkit/AlertObserver.h"

#include <deque>
#include <functional>
#include <vector>

/// Answers the alerts of a test by their real buttons, and keeps what they said.
///
///   AlertAnswers answers({AlertAnswers::button(1)});
///   EXPECT_FALSE(panel->shouldPrint());
///   EXPECT_EQ(answers.shown().at(0).content.text, u"Duplex Alert"_s);
///
/// An alert that the test has not announced fails it (and is cancelled), and so does an announced
/// one that never came. Of two objects the younger one answers.
class AlertAnswers : public AlertObserver
{
public:
    using Answer = std::function<void(const ShownAlert &)>;

    /// Announces as many alerts as there are answers, in this order.
    explicit AlertAnswers(std::initializer_list<Answer> announced = {});
    ~AlertAnswers() override;
    AlertAnswers(const AlertAnswers &) = delete;
    AlertAnswers &operator=(const AlertAnswers &) = delete;

    /// Announces one more, which its first button answers where nothing else is said.
    void expect() { expect(button(0)); }
    void expect(Answer answer) { m_announced.push_back(std::move(answer)); }

    /// A button by its number, with the suppression box ticked or not.
    static Answer button(int number, bool suppress = false);
    /// The window's own close button, and a key that is pressed in the window.
    static Answer closing();
    static Answer key(Qt::Key pressed);

    /// The alerts since the last take(), answered or, as a sheet is at first, still open.
    const std::vector<ShownAlert> &shown() const { return m_shown; }

    /// Answers the open sheets, since their answer comes after the work that raised them, and gives
    /// the alerts since the last call.
    std::vector<ShownAlert> take();

    void alertShown(const ShownAlert &alert) override;

private:
    Answer nextAnswer(const ShownAlert &alert);

    AlertObserver *m_former;
    std::deque<Answer> m_announced;
    std::vector<std::function<void()>> m_sheets;
    std::vector<ShownAlert> m_shown;
};
