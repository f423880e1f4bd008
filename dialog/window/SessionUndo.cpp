#include "dialog/window/SessionUndo.h"

#include "dialog/advice/SettingsImage.h"
#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/printing/SettingState.h"
#include "dialog/replay/AlertAnswerer.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ViewLoader.h"

#include <utility>

namespace {

constexpr int kManyEvents = 150; // that are done once more within one frame
constexpr int kStillness = 50;   // ms in which nobody does anything: time to look closely

QList<double> valuesOfSliders(const HostSession &session)
{
    QList<double> values;
    for (const FractionSlider *slider : partsOfViews<FractionSlider>(session))
        values += slider->doubleValue();
    return values;
}

/// Null where panels do not let anybody look into them.
QByteArray imageOf(const PrintJob &job)
{
    const SettingsImage image(job);
    return image.isWhole() ? image.text() : QByteArray();
}

} // namespace

SessionUndo::SessionUndo(PrintController &controller, QObject *parent)
    : QObject(parent),
      m_controller(controller),
      m_journal([this](const ReplayAction &action) { follow(action); })
{
    controller.addSessionHook([this](HostSession &session) {
        m_journal.attach(session);
        return Result<>();
    });
    m_pause.setSingleShot(true);
    m_pause.setInterval(kStillness);
    connect(&m_pause, &QTimer::timeout, this, &SessionUndo::takeImage);
}

void SessionUndo::follow(const ReplayAction &action)
{
    const auto *slide = std::get_if<ReplaySlide>(&action);
    if (slide)
        followDrag(slide->keyword);
    if (slide || std::holds_alternative<ReplayPick>(action) ||
        std::holds_alternative<ReplayRevert>(action))
        Q_EMIT acted();
}

/// As long as somebody holds the slider, its way is one step.
void SessionUndo::followDrag(const QString &keyword)
{
    for (FractionSlider *slider : partsOfViews<FractionSlider>(*m_controller.job().session()))
        if (slider->isSliderDown() && boundKeyOf(slider) == keyword) {
            m_subject = keyword;
            connect(
                slider, &QSlider::sliderReleased, this,
                [this] {
                    noteUser(QString(), settingState(m_controller.job()));
                    m_history.endSubject();
                },
                static_cast<Qt::ConnectionType>(Qt::AutoConnection | Qt::SingleShotConnection));
        }
}

SessionUndo::Moment SessionUndo::now(const SettingState &state) const
{
    const PrintJob &job = m_controller.job();
    Moment moment{m_controller.origin(),
                  m_journal.place(),
                  job.settled(),
                  settingValues(job, state),
                  state.shown,
                  {},
                  origins(),
                  {}};
    if (const HostSession *session = job.session())
        moment.sliders = valuesOfSliders(*session);
    return moment;
}

/// The state in which all is, since nobody has gone on for a while.
void SessionUndo::takeImage()
{
    const PrintJob &job = m_controller.job();
    if (m_history.isEmpty() || !job.session() || m_history.current().place != m_journal.place())
        return;
    Moment moment = m_history.current();
    moment.image = imageOf(job);
    m_history.amend(std::move(moment));
}

/// Has the image of what was noted last made as soon as it is in nobody's way.
void SessionUndo::awaitPause()
{
    if (eventsUpTo(m_journal.place()) > kManyEvents)
        m_pause.start();
}

/// Whether no setting of them differs. Which choices are the user's own is no setting, nor is what
/// they started from.
bool SessionUndo::areAlike(const Moment &left, const Moment &right)
{
    SettledState settled = left.settled;
    settled.chosen = right.settled.chosen;
    return settled == right.settled && left.values == right.values && left.shown == right.shown &&
           left.sliders == right.sliders;
}

bool SessionUndo::isSamePrinter(const Moment &left, const Moment &right)
{
    return left.printer && right.printer &&
           left.printer->source.server == right.printer->source.server &&
           left.printer->source.queue.queue == right.printer->source.queue.queue &&
           isSameText(*left.printer->ppd, *right.printer->ppd);
}

void SessionUndo::begin(const QList<RequestedChoice> &asked)
{
    const PrintJob &job = m_controller.job();
    Moment moment = now(settingState(job));
    QHash<QString, SettingOrigin> named =
        startingOrigins(job, moment.printer ? moment.printer->starting : QList<JobOption>());
    for (const RequestedChoice &choice : asked)
        named.insert(choice.keyword, {SettingOrigin::Kind::CommandLine, {}, {}});
    moment.origins.begin(defaultValues(job), moment.values, named);
    if (m_history.isEmpty() || !isSamePrinter(m_history.current(), moment))
        m_history.begin(std::move(moment));
    else if (areAlike(m_history.current(), moment))
        m_history.amend(std::move(moment));
    else
        m_history.note(std::move(moment));
}

void SessionUndo::noteUser(const QString &name, const SettingState &state)
{
    const QString subject = std::exchange(m_subject, QString());
    if (m_history.isEmpty())
        return;
    Moment moment = now(state);
    moment.origins.takePick(name, m_history.current().values, moment.values);
    if (areAlike(m_history.current(), moment))
        m_history.amend(std::move(moment));
    else
        m_history.note(std::move(moment), subject);
    awaitPause();
    if (canUndo())
        m_controller.prepareToReopen();
}

void SessionUndo::noteOwn(const SettingState &state)
{
    if (m_history.isEmpty())
        return;
    Moment moment = now(state);
    moment.origins.takeRules(m_history.current().values, moment.values);
    if (moment.place == m_history.current().place && areAlike(m_history.current(), moment))
        moment.image = m_history.current().image;
    m_history.amend(std::move(moment));
    awaitPause();
}

bool SessionUndo::takeAlerted()
{
    const JournalPlace former = std::exchange(m_asked, m_journal.place());
    const JournalEntry *entry = m_asked.get();
    while (entry && entry != former.get() && entry->answers.empty())
        entry = entry->before.get();
    return entry && entry != former.get();
}

Result<> SessionUndo::undo()
{
    Result<> gone = goTo(m_history.undo());
    if (!gone)
        m_history.redo();
    return gone;
}

Result<> SessionUndo::redo()
{
    Result<> gone = goTo(m_history.redo());
    if (!gone)
        m_history.undo();
    return gone;
}

Result<> SessionUndo::goTo(const Moment &moment)
{
    PrintJob &job = m_controller.job();
    const JournalPlace from = m_journal.place();
    const TransientDefaults memoryOfThen;
    if (moment.printer &&
        (moment.printer != m_controller.origin() || !isAfter(from, moment.place))) {
        Result<> opened = reopenAt(moment);
        if (!opened)
            return opened;
    } else if (job.session()) {
        bring(*job.session(), from, moment.place);
    }
    if (job.session()) {
        m_journal.setPlace(moment.place);
        m_asked = moment.place;
    }
    job.setSettled(moment.settled);
    m_controller.prepareToReopen(); // the next one
    return {};
}

/// Has a new session at the moment's place: by few events where that comes to the same, else by all
/// of them.
Result<> SessionUndo::reopenAt(const Moment &moment)
{
    PrintJob &job = m_controller.job();
    const AlertAnswerer unseen(AlertAnswerer::Alerts::Unseen);
    for (const bool isShort : {true, false}) {
        if (isShort && moment.image.isNull())
            continue;
        if (Result<> opened = m_controller.reopen(moment.printer); !opened || !job.session())
            return opened;
        if (!isShort)
            bring(*job.session(), {}, moment.place);
        else if (bringShortly(*job.session(), moment.place); imageOf(job) == moment.image)
            break;
    }
    return {};
}
