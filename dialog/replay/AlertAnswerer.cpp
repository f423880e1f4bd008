#include "dialog/replay/AlertAnswerer.h"

#include "dialog/replay/JsonText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString kindName(ShownAlert::Kind kind)
{
    switch (kind) {
    case ShownAlert::Kind::Modal:
        return u"modal"_s;
    case ShownAlert::Kind::Sheet:
        return u"sheet"_s;
    case ShownAlert::Kind::Window:
        break;
    }
    return u"window"_s;
}

// Null for a window of the panel's own, which has no style.
QString styleName(AlertStyle style)
{
    switch (style) {
    case AlertStyle::Warning:
        return u"warning"_s;
    case AlertStyle::Critical:
        return u"critical"_s;
    case AlertStyle::Informational:
        return u"informational"_s;
    case AlertStyle::None:
        break;
    }
    return {};
}

} // namespace

AlertAnswerer::AlertAnswerer(Alerts alerts)
    : m_alerts(alerts), m_former(AlertObserver::alertObserver())
{
    AlertObserver::setAlertObserver(this);
}

AlertAnswerer::~AlertAnswerer()
{
    AlertObserver::setAlertObserver(m_former);
}

void AlertAnswerer::setAnswers(const QList<ReplayAnswer> &answers)
{
    m_answers = answers;
}

void AlertAnswerer::alertShown(const ShownAlert &alert)
{
    Raised raised;
    raised.alert = alert;
    if (!m_answers.isEmpty())
        raised.wanted = m_answers.takeFirst();
    m_raised.push_back(raised);
    if (alert.kind != ShownAlert::Kind::Sheet)
        answer(m_raised.size() - 1);
}

void AlertAnswerer::answerSheets()
{
    // An answer may raise another alert: the list can grow on the way.
    for (std::size_t index = 0; index < m_raised.size(); ++index) {
        if (!m_raised[index].answered)
            answer(index);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void AlertAnswerer::answer(std::size_t index)
{
    Raised &raised = m_raised[index];
    const ShownAlert alert = raised.alert;
    if (alert.content.suppression && raised.wanted.suppress)
        alert.setSuppressed(*raised.wanted.suppress);
    raised.suppressed =
        alert.content.suppression && alert.suppressionBox && alert.suppressionBox->isChecked();
    raised.answer = buttonFor(raised);
    raised.answered = true;
    if (alert.buttons.value(raised.answer))
        alert.press(raised.answer);
    else if (alert.window)
        alert.window->close();
}

int AlertAnswerer::buttonFor(const Raised &raised)
{
    const int wanted = raised.wanted.button.value_or(0);
    return wanted < raised.alert.buttons.size() ? wanted : 0;
}

QJsonObject AlertAnswerer::report(const Raised &raised)
{
    const AlertContent &content = raised.alert.content;
    return {
        {u"kind"_s, kindName(raised.alert.kind)},
        {u"style"_s, textOrNull(styleName(content.style))},
        {u"title"_s, textOrNull(content.title)},
        {u"text"_s, content.text},
        {u"informative"_s, content.informative},
        {u"buttons"_s, QJsonArray::fromStringList(content.buttons)},
        {u"suppression"_s, content.suppression},
        {u"answer"_s, raised.answer},
        {u"suppressed"_s, raised.suppressed},
    };
}

QJsonArray AlertAnswerer::takeReports()
{
    QJsonArray reports;
    for (const Raised &raised : std::exchange(m_raised, {}))
        reports << report(raised);
    return reports;
}
