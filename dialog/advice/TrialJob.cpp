#include "dialog/advice/TrialJob.h"

#include "dialog/advice/PossibleChanges.h"
#include "dialog/host/HostSession.h"
#include "dialog/job/Conflicts.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingRequests.h"
#include "platform/ppd/PPDText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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

/// Has the controls filled before anything is told of them.
PrintJob &prepared(PrintJob &job, ScriptedAnswers &answers)
{
    prepareControls(*job.session());
    answers.answerSheets();
    return job;
}

} // namespace

TrialJob::TrialJob(PrintJob &job, const QList<PPDMark> &wanted)
    : m_job(job),
      m_wanted(wanted),
      m_answers(true),
      m_constrained(constrainedKeywords(job.ppd())),
      m_image(prepared(job, m_answers)),
      m_base(settingState(job)),
      m_troubles(troublesOf(job))
{}

bool TrialJob::make(const PPDMark &choice)
{
    makeSetting(m_job, {choice.keyword, choice.choice});
    m_answers.answerSheets();
    return hasSetting(m_job, {choice.keyword, choice.choice});
}

WayBack TrialJob::wayBack()
{
    m_ground.clear();
    return WayBack(m_job, m_image, [this](const PPDMark &former) { make(former); });
}

PossibleTrials TrialJob::possibleOnTopOf(const QList<SettingChange> &made) const
{
    QList<SettingChange> changes;
    const QList<PPDMark> possible = possibleChanges(m_job);
    for (const PPDMark &next : possible)
        if (std::ranges::find(made, next.keyword, &SettingChange::keyword) == made.end())
            changes += SettingChange{next.keyword, currentChoice(m_job, next.keyword), next.choice};
    return {changes, prospects()};
}

QList<Prospect> TrialJob::prospects() const
{
    QList<Prospect> all;
    for (const PPDMark &wanted : m_wanted) {
        const bool isNearer = canBePicked(m_job, wanted);
        Prospect prospect{isNearer, isNearer || isThereInAForm(wanted), {}};
        if (m_constrained.contains(wanted.keyword.toLower()))
            prospect.clashes =
                '|' + clashesWith(m_job.ppd(), wanted.keyword, wanted.choice).join(u'|').toUtf8();
        all += prospect;
    }
    return all;
}

Glance TrialJob::glanceAt(const SettingChange &change, Look look)
{
    const bool isConstrained = m_constrained.contains(change.keyword.toLower());
    const bool isForEffects = look == Look::ForEffects;
    const QByteArray before =
        isForEffects && !isConstrained ? groundWithout(change.keyword) : QByteArray();
    if (!make(change))
        return {};
    Glance glance{{}, {}, prospects()};
    if (isForEffects) {
        glance.state = m_image.text();
        const QByteArray effect = isConstrained ? glance.state : m_image.text(change.keyword);
        if (effect != before)
            glance.effect = effect;
    }
    return glance;
}

QByteArray TrialJob::groundWithout(const QString &keyword)
{
    QByteArray &text = m_ground[keyword];
    if (text.isNull())
        text = m_image.text(keyword);
    return text;
}

TrialOutcome TrialJob::tryOut(const PPDMark &wanted, const QList<SettingChange> &made)
{
    if (!isHadAfterSave(wanted) || !(made.isEmpty() || isSound(made)))
        return {}; // what the choice brings alone is no remedy's fault
    return {true, changedBeside(made, wanted)};
}

/// Whether the wanted choice is marked when it has been picked, where it can be, and the panels
/// have saved their values.
bool TrialJob::isHadAfterSave(const PPDMark &wanted)
{
    if (canBePicked(m_job, wanted))
        make(wanted);
    else if (!isThereInAForm(wanted))
        return false;
    savePreparedPanels(*m_job.session());
    m_answers.answerSheets();
    return isThere(wanted);
}

/// Whether the wanted choice is the marked one, or what its slider sends.
bool TrialJob::isThere(const PPDMark &wanted) const
{
    return isOfSlider(*m_job.session(), wanted.keyword)
               ? hasSetting(m_job, {wanted.keyword, wanted.choice})
               : currentChoice(m_job, wanted.keyword) == wanted.choice;
}

/// The panels may mark another form of it when they save their values.
bool TrialJob::isThereInAForm(const PPDMark &wanted) const
{
    return isThere(wanted) ||
           m_job.session()->choiceForms().areSame(wanted.keyword, wanted.choice,
                                                  currentChoice(m_job, wanted.keyword));
}

/// Whether all changes stand, and nothing is wrong that was right.
bool TrialJob::isSound(const QList<SettingChange> &changes) const
{
    const bool stand = std::ranges::all_of(changes, [this](const SettingChange &change) {
        return hasSetting(m_job, {change.keyword, change.to});
    });
    return stand && m_troubles.contains(troublesOf(m_job));
}

QList<SettingChange> TrialJob::changedBeside(const QList<SettingChange> &changes,
                                             const PPDMark &wanted) const
{
    QList<SettingChange> beside =
        changesBetween(m_base.marks, settingState(m_job).marks, m_job.session()->choiceForms());
    beside.removeIf([&](const SettingChange &one) {
        return one.keyword == wanted.keyword ||
               std::ranges::find(changes, one.keyword, &SettingChange::keyword) != changes.end();
    });
    return beside;
}
