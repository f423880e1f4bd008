#include "dialog/replay/Recorder.h"

#include "dialog/host/CustomParameters.h"
#include "dialog/host/HostSession.h"
#include "platform/toolkit/KeyWindow.h"

#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMessageBox>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double kNoWindow = -1;

QJsonValue heightValue(double height)
{
    return height < 0 ? QJsonValue() : QJsonValue(height);
}

bool isTicked(const ShownAlert &alert)
{
    return alert.suppressionBox && alert.suppressionBox->isChecked();
}

// A window of the panel's own; one that nobody pressed a button of was closed.
void followButtons(const ShownAlert &alert, const std::shared_ptr<RecordedAnswer> &answer)
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

Recorder::Recorder() : m_former(AlertObserver::alertObserver())
{
    AlertObserver::setAlertObserver(this);
}

Recorder::~Recorder()
{
    AlertObserver::setAlertObserver(m_former);
}

Result<> Recorder::open(const QString &path, const OutputTerms &terms)
{
    m_state = m_script.open(path, terms);
    return m_state;
}

Result<> Recorder::finish()
{
    if (m_state)
        m_state = m_script.finish();
    for (const auto &copy : m_copies)
        if (m_state)
            m_state = copy->commit();
    return m_state;
}

void Recorder::alertShown(const ShownAlert &alert)
{
    auto answer = std::make_shared<RecordedAnswer>();
    // The last button answers Escape and closing.
    answer->button = std::max(0, static_cast<int>(alert.buttons.size()) - 1);
    answer->suppression = alert.content.suppression;
    // Alerts that block are answered before their event is noted.
    answer->given = alert.kind != ShownAlert::Kind::Sheet;
    m_script.addAnswer(answer);
    if (const auto *box = qobject_cast<QMessageBox *>(alert.window))
        connect(box, &QMessageBox::finished, this, [this, alert, answer, box] {
            if (box->clickedButton())
                answer->button = static_cast<int>(alert.buttons.indexOf(box->clickedButton()));
            answer->suppressed = isTicked(alert);
            answer->given = true;
            m_script.writeAnswered();
        });
    else
        followButtons(alert, answer);
    if (m_former)
        m_former->alertShown(alert);
}

void Recorder::note(const char *kind, const OrderedMembers &members)
{
    OrderedMembers event{{u"do"_s, QLatin1String(kind)}};
    event << members;
    m_script.note(event);
}

void Recorder::didShow(const HostPanel &panel)
{
    note("show", {{u"panel"_s, panel.name}});
    if (panel.controls && !m_followed.contains(panel.name))
        followControls(panel);
    m_followed.insert(panel.name);
}

void Recorder::didPerform(PanelOperation operation, const HostPanel &panel)
{
    // The scripts' words, in the order of PanelOperation.
    static constexpr const char *kinds[] = {"hide", "restore", "save", "summary", "help"};
    note(kinds[static_cast<std::size_t>(operation)], {{u"panel"_s, panel.name}});
}

void Recorder::didMark(const QString &keyword, const QString &choice)
{
    note("mark", {{u"keyword"_s, keyword},
                  {u"choice"_s, withoutSecrets(m_session->ppd(), keyword, choice)}});
}

void Recorder::didSetPaper(const PMPaper &paper, const std::optional<QString> &mapped)
{
    OrderedMembers members{{u"name"_s, paper.name},
                           {u"ppdName"_s, textOrNull(paper.ppdName)},
                           {u"width"_s, paper.width},
                           {u"height"_s, paper.height}};
    if (mapped)
        members << std::pair(u"mapped"_s, textOrNull(*mapped));
    note("paper", members);
}

void Recorder::didWriteTicket(const QString &key, const QVariant &value)
{
    note("ticket", {{u"key"_s, key}, {u"value"_s, jsonValue(value)}});
}

void Recorder::didAskShouldPrint()
{
    note("print");
}

void Recorder::didResizeWindow()
{
    m_windowChanged = true;
    deferSurroundings();
}

// Events are noted when they end. A window that changes in the midst of one, as when a section
// unfolds, is therefore noted from the event loop: after the event that changed it.
void Recorder::deferSurroundings()
{
    if (std::exchange(m_deferred, true))
        return;
    QTimer::singleShot(0, this, [this] { noteSurroundings(); });
}

void Recorder::noteSurroundings()
{
    m_deferred = false;
    const double height = keyWindowHeight().value_or(kNoWindow);
    if (std::exchange(m_windowChanged, false) || height != m_notedHeight)
        note("window", {{u"height"_s, heightValue(height)}});
    m_notedHeight = height;
    if (std::exchange(m_watchFired, false))
        note("watch");
}

void Recorder::willClose()
{
    if (m_deferred)
        noteSurroundings();
    note("close");
    m_script.writeAll();
    m_session = nullptr;
    m_followed.clear();
}
