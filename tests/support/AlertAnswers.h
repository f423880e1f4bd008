#pragma once

#include "platform/toolkit/AlertObserver.h"

#include <QtWidgets/QWidget>

#include <functional>
#include <utility>
#include <vector>

/// Answers the alerts of a test in the order in which they come up, and keeps what they said. An
/// alert without an answer gets its first button.
class AlertAnswers : public AlertObserver
{
public:
    using Answer = std::function<void(const ShownAlert &)>;

    explicit AlertAnswers(std::vector<Answer> answers = {}) : m_answers(std::move(answers))
    {
        setAlertObserver(this);
    }
    ~AlertAnswers() override { setAlertObserver(nullptr); }
    AlertAnswers(const AlertAnswers &) = delete;
    AlertAnswers &operator=(const AlertAnswers &) = delete;

    void alertShown(const ShownAlert &alert) override
    {
        const std::size_t number = shown.size();
        shown.push_back(alert);
        if (number < m_answers.size())
            m_answers[number](alert);
        else
            alert.press(0);
    }

    static Answer button(int number)
    {
        return [number](const ShownAlert &alert) { alert.press(number); };
    }

    static Answer suppressing(int number)
    {
        return [number](const ShownAlert &alert) {
            alert.setSuppressed(true);
            alert.press(number);
        };
    }

    static Answer closing()
    {
        return [](const ShownAlert &alert) { alert.window->close(); };
    }

    std::vector<ShownAlert> shown;

private:
    std::vector<Answer> m_answers;
};
