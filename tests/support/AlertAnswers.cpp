#include "tests/support/AlertAnswers.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>

#include <gtest/gtest.h>

#include <utility>

AlertAnswers::AlertAnswers(std::initializer_list<Answer> announced)
    : m_former(alertObserver()), m_announced(announced)
{
    setAlertObserver(this);
}

AlertAnswers::~AlertAnswers()
{
    setAlertObserver(m_former);
    // A sheet goes after its answer, in an event loop that few tests have.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(m_announced.empty()) << m_announced.size() << " announced alerts never came";
    EXPECT_TRUE(m_sheets.empty()) << m_sheets.size() << " sheets were never answered";
}

AlertAnswers::Answer AlertAnswers::button(int number, bool suppress)
{
    return [number, suppress](const ShownAlert &alert) {
        EXPECT_LT(number, alert.buttons.size()) << "no such button";
        alert.setSuppressed(suppress);
        alert.press(number);
    };
}

AlertAnswers::Answer AlertAnswers::closing()
{
    return [](const ShownAlert &alert) { alert.window->close(); };
}

AlertAnswers::Answer AlertAnswers::key(Qt::Key pressed)
{
    return [pressed](const ShownAlert &alert) { QTest::keyClick(alert.window, pressed); };
}

std::vector<ShownAlert> AlertAnswers::take()
{
    for (const auto &answer : std::exchange(m_sheets, {}))
        answer();
    return std::exchange(m_shown, {});
}

void AlertAnswers::alertShown(const ShownAlert &alert)
{
    const Answer answer = nextAnswer(alert);
    m_shown.push_back(alert);
    if (alert.kind == ShownAlert::Kind::Sheet)
        m_sheets.push_back([answer, alert] { answer(alert); });
    else
        answer(alert);
}

AlertAnswers::Answer AlertAnswers::nextAnswer(const ShownAlert &alert)
{
    if (m_announced.empty()) {
        ADD_FAILURE() << "unannounced alert: " << qPrintable(alert.content.text);
        return button(static_cast<int>(alert.buttons.size()) - 1);
    }
    Answer answer = std::move(m_announced.front());
    m_announced.pop_front();
    return answer;
}
