#include "dialog/replay/SessionFollower.h"

#include "dialog/host/HostSession.h"
#include "platform/toolkit/KeyWindow.h"

#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMessageBox>

#include <algorithm>
#include <utility>

namespace {

constexpr double kNoWindow = -1;

bool isTicked(const ShownAlert &alert)
{
    return alert.suppressionBox && alert.suppressionBox->isChecked();
}

// A window of the panel's own; one that nobody pressed a button of was closed.
void followButtons(const ShownAlert &alert, const std::shared_ptr<FollowedAnswer> &answer)
{
    for (int index = 0; index < alert.buttons.size(); ++index) {
        QObject::connect(alert.buttons[index], &QAbstractButton::clicked, alert.window,
                         [answer, alert, index] {
                             answer->button = index;
                             answer->suppressed = isTicked(alert);
                         });
    }
}

} // namespace

SessionFollower::SessionFollower()
{
    AlertObserver::addWitness(this);
}

SessionFollower::~SessionFollower()
{
    AlertObserver::removeWitness(this);
}

void SessionFollower::follow(HostSession &session)
{
    m_session = &session;
    m_notedHeight = keyWindowHeight().value_or(kNoWindow);
    session.addObserver(this);
}

void SessionFollower::alertShown(const ShownAlert &alert)
{
    auto answer = std::make_shared<FollowedAnswer>();
    // The last button answers Escape and closing.
    answer->button = std::max(0, static_cast<int>(alert.buttons.size()) - 1);
    answer->suppression = alert.content.suppression;
    // Alerts that block are answered before their event is noted.
    answer->given = alert.kind != ShownAlert::Kind::Sheet;
    m_answers.push_back(answer);
    if (const auto *box = qobject_cast<QMessageBox *>(alert.window))
        connect(box, &QMessageBox::finished, this, [this, alert, answer, box] {
            if (box->clickedButton())
                answer->button = static_cast<int>(alert.buttons.indexOf(box->clickedButton()));
            answer->suppressed = isTicked(alert);
            answer->given = true;
            sheetAnswered();
        });
    else
        followButtons(alert, answer);
}

void SessionFollower::noteAction(const ReplayAction &action)
{
    note(action, std::exchange(m_answers, {}));
}

void SessionFollower::didShow(const HostPanel &panel)
{
    noteAction(ReplayShow{panel.name});
    if (panel.controls && !m_followed.contains(panel.name))
        followControls(panel);
    m_followed.insert(panel.name);
}

void SessionFollower::didPerform(PanelOperation operation, const HostPanel &panel)
{
    noteAction(ReplayPanelCall{operation, panel.name});
}

void SessionFollower::didMark(const QString &keyword, const QString &choice)
{
    noteAction(ReplayMark{keyword, choice});
}

void SessionFollower::didSetPaper(const PMPaper &paper, const std::optional<QString> &mapped)
{
    noteAction(ReplayPaper{paper, mapped});
}

void SessionFollower::didWriteTicket(const QString &key, const QVariant &value)
{
    noteAction(ReplayTicket{key, value});
}

void SessionFollower::didAskShouldPrint()
{
    noteAction(ReplayPrint{});
}

void SessionFollower::didResizeWindow()
{
    m_windowChanged = true;
    deferSurroundings();
}

// Events are noted when they end. A window that changes in the midst of one, as when a section
// unfolds, is therefore noted from the event loop: after the event that changed it.
void SessionFollower::deferSurroundings()
{
    if (std::exchange(m_deferred, true))
        return;
    QTimer::singleShot(0, this, [this] { noteSurroundings(); });
}

void SessionFollower::noteSurroundings()
{
    if (!std::exchange(m_deferred, false))
        return;
    const std::optional<double> height = keyWindowHeight();
    const double known = height.value_or(kNoWindow);
    if (std::exchange(m_windowChanged, false) || known != m_notedHeight)
        noteAction(ReplayWindow{height});
    m_notedHeight = known;
    if (std::exchange(m_watchFired, false))
        noteAction(ReplayWatch{});
}

void SessionFollower::willClose()
{
    noteSurroundings();
    noteAction(ReplayClose{});
    m_session = nullptr;
    m_followed.clear();
}
