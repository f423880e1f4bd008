#pragma once

#include "platform/toolkit/AlertObserver.h"

#include <deque>
#include <vector>

/// Answers alerts by pressing their real buttons. An alert that no test has announced fails the
/// test (and is cancelled); so does an announced one that never came.
class AlertAnswerer : public AlertObserver
{
public:
    struct Answer
    {
        int button = 0;
        bool suppress = false;
    };

    AlertAnswerer();
    ~AlertAnswerer() override;
    AlertAnswerer(const AlertAnswerer &) = delete;
    AlertAnswerer &operator=(const AlertAnswerer &) = delete;

    void expect(Answer answer) { m_expected.push_back(answer); }

    /// The alerts that came since the last call. Sheets are answered now: their answer comes after
    /// the work that raised them.
    std::vector<AlertContent> take();

    void alertShown(const ShownAlert &alert) override;

    /// The kinds of the alerts that take() gave last.
    const std::vector<ShownAlert::Kind> &kinds() const { return m_kinds; }

private:
    struct Pending
    {
        ShownAlert alert;
        Answer answer;
    };

    std::deque<Answer> m_expected;
    std::vector<Pending> m_sheets;
    std::vector<ShownAlert> m_shown;
    std::vector<ShownAlert::Kind> m_kinds;
};
