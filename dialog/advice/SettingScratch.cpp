#include "dialog/advice/SettingScratch.h"

#include "dialog/advice/PossibleChanges.h"
#include "dialog/advice/TrialLine.h"
#include "dialog/host/HostSession.h"
#include "dialog/job/Conflicts.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/work/ProcessCopy.h"
#include "platform/ppd/PPDText.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kLongestTrial{2};    // of CPU time
constexpr std::chrono::seconds kLongestGround{600}; // with all that is tried on it
constexpr QByteArrayView kAllTried = "all";

QString currentChoice(const PrintJob &job, const QString &keyword)
{
    if (keyword == "PageSize"_L1)
        return job.paper().value_or(PMPaper()).name;
    return markedValue(job.ppd(), keyword);
}

/// What does not go together, and what is printed otherwise than it is shown: names that tell one
/// such trouble from another.
QSet<QString> troublesOf(const PrintJob &job)
{
    QSet<QString> troubles;
    if (ppdConflicts(job.ppd()) > 0)
        for (ppd_option_t *option = ppdFirstOption(job.ppd()); option;
             option = ppdNextOption(job.ppd()))
            if (option->conflicted)
                troubles += ppdName(option->keyword);
    for (const SettingChange &unlike : unlikeShown(settingState(job), job.session()->choiceForms()))
        troubles += u"shown "_s + unlike.keyword;
    if (isOnOneSidedPaper(job))
        troubles += u"sides"_s;
    return troubles;
}

bool isOfSlider(const HostSession &session, const QString &keyword)
{
    return !placeInPanels(session, keyword) && !sliderOf(session, keyword).isNull();
}

} // namespace

SettingScratch::SettingScratch(PrintJob &job, const PPDMark &wanted, int mostTrials)
    : m_job(job),
      m_wanted(wanted),
      m_left(mostTrials),
      m_answers(true),
      m_constrained(constrainedKeywords(job.ppd()))
{
    prepareControls(*m_job.session());
    m_answers.answerSheets();
    m_isSlider = isOfSlider(*m_job.session(), m_wanted.keyword);
    m_image = std::make_unique<SettingsImage>(m_job, m_wanted);
    m_base = settingState(m_job);
    m_troubles = troublesOf(m_job);
}

bool SettingScratch::isHad()
{
    ProcessCopy copy(kLongestTrial, [this](const ProcessCopy::Tell &tell) {
        tell(isHadAfterSave() ? "yes" : "no");
    });
    return copy.nextLine() == "yes";
}

bool SettingScratch::tryEach(const QList<SettingChange> &made, Look look,
                             const std::function<bool(const SettingChange &)> &filter,
                             const std::function<void(const Trial &)> &take)
{
    m_look = look;
    bool isWhole = false;
    const auto takeLine = [&](const QByteArray &line) {
        isWhole = line == kAllTried;
        if (isWhole)
            return;
        --m_left;
        if (const std::optional<Trial> trial = trialOfLine(line))
            take(*trial);
    };
    if (made.isEmpty()) {
        tryEachHere(made, filter, takeLine);
        return isWhole;
    }
    ProcessCopy ground(kLongestGround, [&](const ProcessCopy::Tell &tell) {
        const bool areMade = std::ranges::all_of(made, [this](const SettingChange &change) {
            return make({change.keyword, change.to});
        });
        if (areMade)
            tryEachHere(made, filter, tell);
    });
    while (const std::optional<QByteArray> line = ground.nextLine())
        takeLine(*line);
    return isWhole;
}

/// Tries on what has been made in this process.
void SettingScratch::tryEachHere(const QList<SettingChange> &made,
                                 const std::function<bool(const SettingChange &)> &filter,
                                 const Tell &tell)
{
    QList<SettingChange> changes;
    const QList<PPDMark> possible = possibleChanges(m_job);
    for (const PPDMark &next : possible) {
        const SettingChange change{next.keyword, currentChoice(m_job, next.keyword), next.choice};
        const bool isOther =
            next.keyword != m_wanted.keyword &&
            std::ranges::find(made, next.keyword, &SettingChange::keyword) == made.end();
        if (isOther && filter(change))
            changes += change;
    }
    const bool isWhole = changes.size() <= m_left;
    changes.resize(std::min<qsizetype>(changes.size(), m_left));
    for (qsizetype next = 0; next < changes.size();)
        next = tryFrom(next, made, changes, tell);
    if (isWhole)
        tell(kAllTried.toByteArray());
}

/// Tries the changes from the first one on, up to one that cannot be taken back. Gives where to go
/// on.
qsizetype SettingScratch::tryFrom(qsizetype first, const QList<SettingChange> &made,
                                  const QList<SettingChange> &changes, const Tell &tell)
{
    ProcessCopy glances(kLongestGround, [&](const ProcessCopy::Tell &tellGlance) {
        glanceFrom(first, changes, tellGlance);
    });
    qsizetype next = first;
    while (const std::optional<QByteArray> line = glances.nextLine()) {
        ++next;
        const std::optional<Trial> glance = trialOfLine(*line);
        if (!glance || !glance->isHad) {
            tell(*line);
            continue;
        }
        ProcessCopy copy(kLongestTrial, [&](const ProcessCopy::Tell &tellTrial) {
            tellTrial(lineOfTrial(tryOut(made, *glance)));
        });
        tell(copy.nextLine().value_or(QByteArray()));
    }
    if (next > first)
        return next;
    tell(QByteArray()); // the first one was the copy's end
    return first + 1;
}

/// Glances at the changes from the first one on, up to one that cannot be taken back.
void SettingScratch::glanceFrom(qsizetype first, const QList<SettingChange> &changes,
                                const Tell &tell)
{
    const QByteArray before = m_image->text();
    QString keyword;
    QByteArray effectOfNone;
    for (qsizetype index = first; index < changes.size(); ++index) {
        const SettingChange &change = changes[index];
        if (m_look == Look::ForEffects && std::exchange(keyword, change.keyword) != change.keyword)
            effectOfNone = m_image->text(keyword);
        tell(lineOfTrial(glanceAt(change, effectOfNone)));
        if (!takeBack(change, before))
            return;
    }
}

/// What the change comes to by itself. Whether the choice is had is not found out, but whether it
/// may be.
Trial SettingScratch::glanceAt(const SettingChange &change, const QByteArray &effectOfNone)
{
    Trial trial{change, false, false, {}, {}, {}};
    if (!make({change.keyword, change.to}))
        return trial;
    if (m_look == Look::ForEffects) {
        trial.state = m_image->text();
        const bool isConstrained = m_constrained.contains(change.keyword.toLower());
        const QByteArray effect = isConstrained ? trial.state : m_image->text(change.keyword);
        if (effect != effectOfNone)
            trial.effect = effect;
    }
    trial.isNearer = canBePicked(m_job, m_wanted);
    trial.isHad = trial.isNearer || isThereInAForm();
    return trial;
}

/// Whether everything is as it was again.
bool SettingScratch::takeBack(const SettingChange &change, const QByteArray &before)
{
    if (!m_image->isWhole() || change.from.isNull())
        return false;
    make({change.keyword, change.from});
    return m_image->text() == before;
}

/// Whether the choice is had with the change that was glanced at.
Trial SettingScratch::tryOut(const QList<SettingChange> &made, Trial trial)
{
    const QList<SettingChange> changes = made + QList{trial.change};
    trial.isHad =
        make({trial.change.keyword, trial.change.to}) && isHadAfterSave() && isSound(changes);
    if (trial.isHad)
        trial.beside = changedBeside(changes);
    return trial;
}

/// Makes the setting as a person would. Whether it is there now.
bool SettingScratch::make(const PPDMark &choice)
{
    makeSetting(m_job, {choice.keyword, choice.choice});
    m_answers.answerSheets();
    return hasSetting(m_job, {choice.keyword, choice.choice});
}

/// Whether the wanted choice is marked when it has been picked, where it can be, and the panels
/// have saved their values.
bool SettingScratch::isHadAfterSave()
{
    if (canBePicked(m_job, m_wanted))
        make(m_wanted);
    else if (!isThereInAForm())
        return false;
    savePreparedPanels(*m_job.session());
    m_answers.answerSheets();
    return isThere();
}

/// Whether the wanted choice is the marked one, or what its slider sends.
bool SettingScratch::isThere() const
{
    return m_isSlider ? hasSetting(m_job, {m_wanted.keyword, m_wanted.choice})
                      : currentChoice(m_job, m_wanted.keyword) == m_wanted.choice;
}

/// The panels may mark another form of it when they save their values.
bool SettingScratch::isThereInAForm() const
{
    return isThere() ||
           m_job.session()->choiceForms().areSame(m_wanted.keyword, m_wanted.choice,
                                                  currentChoice(m_job, m_wanted.keyword));
}

/// Whether all changes stand, and nothing is wrong that was right.
bool SettingScratch::isSound(const QList<SettingChange> &changes) const
{
    const bool stand = std::ranges::all_of(changes, [this](const SettingChange &change) {
        return hasSetting(m_job, {change.keyword, change.to});
    });
    return stand && m_troubles.contains(troublesOf(m_job));
}

QList<SettingChange> SettingScratch::changedBeside(const QList<SettingChange> &changes) const
{
    QList<SettingChange> beside =
        changesBetween(m_base.marks, settingState(m_job).marks, m_job.session()->choiceForms());
    beside.removeIf([&](const SettingChange &one) {
        return one.keyword == m_wanted.keyword ||
               std::ranges::find(changes, one.keyword, &SettingChange::keyword) != changes.end();
    });
    return beside;
}
