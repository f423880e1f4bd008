#pragma once

#include "platform/toolkit/AlertObserver.h"

#include <QtCore/QStringList>

#include <vector>

/// Answers the panels' alerts where nobody sits at the screen: with the first button (yes) or the
/// last one (no), by pressing it. While it lives it is the process's alert observer.
class ScriptedAnswers : public AlertObserver
{
public:
    explicit ScriptedAnswers(bool yes);
    ~ScriptedAnswers() override;
    ScriptedAnswers(const ScriptedAnswers &) = delete;
    ScriptedAnswers &operator=(const ScriptedAnswers &) = delete;

    /// Answers the sheets that have come up; the work that raised them must be over.
    void answerSheets();

    /// What the alerts since the last call said, one line each.
    QStringList takeSentences();

    void alertShown(const ShownAlert &alert) override;

private:
    void answer(const ShownAlert &alert) const;

    bool m_yes;
    QStringList m_sentences;
    std::vector<ShownAlert> m_sheets;
    AlertObserver *m_former;
};
