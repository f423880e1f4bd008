#include "dialog/printing/ScriptedAnswers.h"

#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

#include <utility>

namespace {

/// Headline and explanation on one line.
QString sentenceOf(const AlertContent &content)
{
    const QString headline = displayText(content.text).simplified();
    const QString explanation = displayText(content.informative).simplified();
    if (headline.isEmpty() || explanation.isEmpty())
        return headline + explanation;
    const bool isOpen = headline.back().isLetterOrNumber();
    return headline + (isOpen ? QStringLiteral(". ") : QStringLiteral(" ")) + explanation;
}

} // namespace

ScriptedAnswers::ScriptedAnswers(bool yes) : m_yes(yes), m_former(AlertObserver::alertObserver())
{
    AlertObserver::setAlertObserver(this);
}

ScriptedAnswers::~ScriptedAnswers()
{
    AlertObserver::setAlertObserver(m_former);
}

void ScriptedAnswers::alertShown(const ShownAlert &alert)
{
    m_sentences += sentenceOf(alert.content);
    if (alert.kind == ShownAlert::Kind::Sheet)
        m_sheets.push_back(alert);
    else
        answer(alert);
}

void ScriptedAnswers::answer(const ShownAlert &alert) const
{
    alert.press(m_yes ? 0 : static_cast<int>(alert.buttons.size()) - 1);
}

void ScriptedAnswers::answerSheets()
{
    while (!m_sheets.empty())
        for (const ShownAlert &sheet : std::exchange(m_sheets, {}))
            answer(sheet);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QStringList ScriptedAnswers::takeSentences()
{
    return std::exchange(m_sentences, {});
}
