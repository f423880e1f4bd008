#pragma once

#include <QtCore/QString>

#include <cstddef>
#include <utility>
#include <vector>

/// The states that something has been in, one a step, and at which of them it is.
///
/// A step of the same subject as the one before it goes on with that: what somebody types into one
/// field, the way of one slider. A null subject stands for itself.
template <typename State> class UndoHistory
{
public:
    bool isEmpty() const { return m_steps.empty(); }
    bool canUndo() const { return m_current > 0; }
    bool canRedo() const { return m_current + 1 < m_steps.size(); }

    /// The state in which it is; there is one.
    const State &current() const { return m_steps[m_current].state; }

    /// Forgets all, and begins in the state.
    void begin(State state)
    {
        m_steps.clear();
        m_steps.push_back({std::move(state), {}});
        m_current = 0;
    }

    void clear()
    {
        m_steps.clear();
        m_current = 0;
    }

    /// A step has led to the state; what was undone cannot be done again.
    void note(State state, const QString &subject = {})
    {
        m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(m_current) + 1, m_steps.end());
        if (canUndo() && !subject.isNull() && subject == m_steps.back().subject)
            m_steps.back().state = std::move(state);
        else
            m_steps.push_back({std::move(state), subject});
        m_current = m_steps.size() - 1;
    }

    /// The state in which it is has become another one by itself: no step.
    void amend(State state) { m_steps[m_current].state = std::move(state); }

    /// The next step begins anew, whatever its subject is.
    void endSubject()
    {
        if (!isEmpty())
            m_steps[m_current].subject = QString();
    }

    /// The state before the last step, or after the one that was undone; it is in that now. There
    /// is one.
    const State &undo() { return m_steps[--m_current].state; }
    const State &redo() { return m_steps[++m_current].state; }

private:
    struct Step
    {
        State state;
        QString subject;
    };

    std::vector<Step> m_steps;
    std::size_t m_current = 0;
};
