#include "dialog/advice/SettingTrials.h"

#include "dialog/advice/TrialLine.h"
#include "dialog/work/ProcessCopy.h"

#include <algorithm>
#include <cmath>
#include <sys/resource.h>

namespace {

/// Of this process and of those copies that have ended.
double cpuSeconds()
{
    double seconds = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage used{};
        getrusage(who, &used);
        for (const timeval &time : {used.ru_utime, used.ru_stime})
            seconds += static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    }
    return seconds;
}

std::chrono::seconds wholeSeconds(double seconds)
{
    return std::chrono::seconds(static_cast<int>(std::ceil(seconds)));
}

QString keyOf(const QList<SettingChange> &made)
{
    QStringList words;
    for (const SettingChange &change : made)
        words += change.keyword + u'=' + change.to;
    return words.join(u' ');
}

bool isEnough(Look known, Look look)
{
    return known == Look::ForEffects || look == Look::ForChoice;
}

} // namespace

SettingTrials::SettingTrials(PrintJob &job, const QList<PPDMark> &wanted,
                             std::chrono::seconds mostCPU)
    : m_job(job, wanted),
      m_end(cpuSeconds() + static_cast<double>(mostCPU.count())),
      m_isDropped(wanted.size())
{}

bool SettingTrials::isHad(qsizetype wanted)
{
    Ground &ground = groundOf({});
    const std::pair onNothing(kNone, wanted);
    if (!ground.outcomes.contains(onNothing))
        run(
            ground, Look::ForChoice, [this](const Ground &base) { return tryOutsOn(base, kNone); },
            [] {});
    return ground.outcomes.value(onNothing).isHad;
}

bool SettingTrials::tryEach(qsizetype wanted, const QList<SettingChange> &made, Look look,
                            const std::function<bool(const SettingChange &)> &filter,
                            qsizetype most, const std::function<void(const Trial &)> &take)
{
    QList<qsizetype> chosen;
    const auto stepsOf = [&](const Ground &ground) {
        chosen.clear();
        for (qsizetype index = 0; index < ground.possible.changes.size(); ++index)
            if (const SettingChange &change = ground.possible.changes[index];
                change.keyword != m_job.wanted()[wanted].keyword && filter(change))
                chosen += index;
        return stepsFor(ground, chosen.first(std::min(chosen.size(), most)), look);
    };
    Ground &ground = groundOf(made);
    qsizetype taken = 0;
    const auto takeWhatIsThere = [&] {
        for (; taken < std::min(chosen.size(), most); ++taken) {
            const auto trial = trialOf(ground, chosen[taken], wanted, look);
            if (!trial)
                return;
            take(*trial);
        }
    };
    run(ground, look, stepsOf, takeWhatIsThere);
    return ground.isKnown && taken == chosen.size();
}

SettingTrials::Ground &SettingTrials::groundOf(const QList<SettingChange> &made)
{
    Ground &ground = m_grounds[keyOf(made)];
    ground.made = made;
    return ground;
}

/// What is still to be done to know of these changes.
QList<SettingTrials::Step> SettingTrials::stepsFor(const Ground &ground,
                                                   const QList<qsizetype> &changes, Look look) const
{
    QList<Step> steps;
    for (const qsizetype change : changes) {
        const auto known = ground.glances.constFind(change);
        if (known != ground.glances.cend() && isEnough(known->first, look))
            steps += tryOutsOn(ground, change);
        else
            steps += Step{change, kNone};
    }
    return steps;
}

/// What is still to be tried out on a change that was glanced at.
QList<SettingTrials::Step> SettingTrials::tryOutsOn(const Ground &ground, qsizetype change) const
{
    const QList<Prospect> &prospects =
        change == kNone ? ground.possible.prospects : ground.glances[change].second.prospects;
    QList<Step> steps;
    for (qsizetype wanted = 0; wanted < prospects.size(); ++wanted) {
        const bool isOther = change == kNone || m_job.wanted()[wanted].keyword !=
                                                    ground.possible.changes[change].keyword;
        if (isOther && prospects[wanted].mayBeHad && !m_isDropped[wanted] &&
            !ground.outcomes.contains({change, wanted}))
            steps += Step{change, wanted};
    }
    return steps;
}

/// None while it is not known.
std::optional<Trial> SettingTrials::trialOf(const Ground &ground, qsizetype change,
                                            qsizetype wanted, Look look) const
{
    const auto known = ground.glances.constFind(change);
    if (known == ground.glances.cend() || !isEnough(known->first, look))
        return std::nullopt;
    const Glance &glance = known->second;
    Trial trial{ground.possible.changes[change], false, false, {}, {}, {}};
    if (glance.prospects.isEmpty())
        return trial;
    const Prospect &prospect = glance.prospects[wanted];
    trial.isNearer = prospect.isNearer;
    trial.state = glance.state + prospect.clashes;
    if (!glance.effect.isEmpty() || prospect.clashes != ground.possible.prospects[wanted].clashes)
        trial.effect = glance.effect + prospect.clashes;
    if (!prospect.mayBeHad)
        return trial;
    const auto outcome = ground.outcomes.constFind({change, wanted});
    if (outcome == ground.outcomes.cend())
        return std::nullopt;
    trial.isHad = outcome->isHad;
    trial.beside = outcome->beside;
    return trial;
}

/// Does the steps, in as many copies as that takes. What cannot be done in time stays unknown.
void SettingTrials::run(Ground &ground, Look look, const StepsOf &stepsOf,
                        const std::function<void()> &haveMore)
{
    QList<Step> steps = ground.isKnown ? stepsOf(ground) : QList<Step>();
    haveMore();
    while (!ground.isKnown || !steps.isEmpty()) {
        const double left = m_end - cpuSeconds();
        if (left <= 0)
            return;
        ProcessCopy copy(wholeSeconds(left),
                         [&](const Tell &tell) { work(ground, look, stepsOf, steps, tell); });
        bool isAlive = false; // until the end of a step
        while (const std::optional<QByteArray> line = copy.nextLine()) {
            isAlive = true;
            if (ground.isKnown)
                keep(ground, look, steps, *line);
            else
                steps = learn(ground, *line, stepsOf);
            haveMore();
        }
        if (!isAlive && !ground.isKnown)
            ground.isKnown = true; // what was to be made does not stand
        else if (!isAlive)
            keep(ground, look, steps, {}); // the step was the copy's end
        haveMore();
    }
}

/// In a copy: does the steps up to one after which there is no way back.
void SettingTrials::work(Ground &ground, Look look, const StepsOf &stepsOf, QList<Step> steps,
                         const Tell &tell)
{
    for (const SettingChange &change : ground.made)
        if (!m_job.make(change))
            return;
    if (!ground.isKnown) {
        const QByteArray line = lineOf(m_job.possibleOnTopOf(ground.made));
        tell(line);
        steps = learn(ground, line, stepsOf);
    }
    const WayBack back = m_job.wayBack();
    while (!steps.isEmpty())
        if (!workOnChange(ground, look, steps, tell) || (!steps.isEmpty() && !back.goBack()))
            return;
}

/// Does the steps on the change of the first one. False when there is no way back to the next.
bool SettingTrials::workOnChange(Ground &ground, Look look, QList<Step> &steps, const Tell &tell)
{
    const qsizetype change = steps.constFirst().change;
    const auto tellStep = [&](const QByteArray &line) {
        tell(line);
        keep(ground, look, steps, line);
        return !steps.isEmpty() && steps.constFirst().change == change;
    };
    QList<SettingChange> made = ground.made;
    if (change != kNone)
        made += ground.possible.changes[change];
    const bool isGlance = steps.constFirst().wanted == kNone;
    if (isGlance && !tellStep(lineOf(m_job.glanceAt(made.constLast(), look))))
        return true;
    if (!isGlance && change != kNone)
        m_job.make(made.constLast()); // as it could be before
    const WayBack back = m_job.wayBack();
    while (tellStep(lineOf(m_job.tryOut(m_job.wanted()[steps.constFirst().wanted], made))))
        if (!back.goBack())
            return false;
    return true;
}

/// Takes what can be made on the ground. Gives the steps.
QList<SettingTrials::Step> SettingTrials::learn(Ground &ground, const QByteArray &line,
                                                const StepsOf &stepsOf)
{
    ground.possible = valueOfLine<PossibleTrials>(line).value_or(PossibleTrials());
    ground.isKnown = true;
    return stepsOf(ground);
}

/// Takes what the first step has come to; after a glance, what may be had is tried out next.
void SettingTrials::keep(Ground &ground, Look look, QList<Step> &steps,
                         const QByteArray &line) const
{
    const Step step = steps.takeFirst();
    if (step.wanted != kNone) {
        ground.outcomes.insert({step.change, step.wanted},
                               valueOfLine<TrialOutcome>(line).value_or(TrialOutcome()));
        return;
    }
    ground.glances.insert(step.change, {look, valueOfLine<Glance>(line).value_or(Glance())});
    steps = tryOutsOn(ground, step.change) + steps;
}
