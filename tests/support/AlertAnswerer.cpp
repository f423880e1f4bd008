#include "tests/support/AlertAnswerer.h"

#include <gtest/gtest.h>

#include <QtWidgets/QAbstractButton>

#include <utility>

namespace {

void answerAlert(const ShownAlert &alert, const AlertAnswerer::Answer &answer)
{
    alert.setSuppressed(answer.suppress);
    alert.press(answer.button);
}

} // namespace

AlertAnswerer::AlertAnswerer()
{
    setAlertObserver(this);
}

AlertAnswerer::~AlertAnswerer()
{
    setAlertObserver(nullptr);
    EXPECT_TRUE(m_expected.empty()) << m_expected.size() << " announced alerts never came";
    EXPECT_TRUE(m_sheets.empty()) << m_sheets.size() << " sheets were never answered";
}

void AlertAnswerer::alertShown(const ShownAlert &alert)
{
    Answer answer{static_cast<int>(alert.buttons.size()) - 1, false};
    if (m_expected.empty()) {
        ADD_FAILURE() << "unannounced alert: " << qPrintable(alert.content.text);
    } else {
        answer = m_expected.front();
        m_expected.pop_front();
    }
    m_shown.push_back(alert);
    if (alert.kind == ShownAlert::Kind::Sheet)
        m_sheets.push_back({alert, answer});
    else
        answerAlert(alert, answer);
}

std::vector<AlertContent> AlertAnswerer::take()
{
    for (const Pending &sheet : std::exchange(m_sheets, {}))
        answerAlert(sheet.alert, sheet.answer);
    m_kinds.clear();
    std::vector<AlertContent> contents;
    for (const ShownAlert &alert : std::exchange(m_shown, {})) {
        m_kinds.push_back(alert.kind);
        contents.push_back(alert.content);
    }
    return contents;
}
