#pragma once

#include "dialog/advice/TrialJob.h"

#include <QtCore/QHash>

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <utility>

/// Tries settings out on copies of this process, for all that wish for one of several choices of
/// the same job as it is now: what was found out for one of them is not tried again for another.
/// The job itself is changed by nothing but the preparation: its panels' controls are filled.
///
/// A copy takes its time, so one makes change after change for as long as each can be taken back
/// to exactly what was before.
class SettingTrials
{
public:
    /// Gives up when the copies have taken so much CPU time in all.
    SettingTrials(PrintJob &job, const QList<PPDMark> &wanted, std::chrono::seconds mostCPU);

    /// Whether the wanted choice of that index is to be had without any change.
    bool isHad(qsizetype wanted);

    /// Nobody wishes for the choice any more.
    void drop(qsizetype wanted) { m_isDropped[wanted] = true; }

    /// As Scratch::tryEach(), for one of the wanted choices, with no more than so many trials.
    bool tryEach(qsizetype wanted, const QList<SettingChange> &made, Look look,
                 const std::function<bool(const SettingChange &)> &filter, qsizetype most,
                 const std::function<void(const Trial &)> &take);

private:
    static constexpr qsizetype kNone = -1;

    /// What a copy does at a time: it glances at a change, or tries a wanted choice out on it.
    struct Step
    {
        qsizetype change = kNone; ///< kNone: on nothing
        qsizetype wanted = kNone; ///< kNone: a glance
    };

    /// What is known of the changes that can be made on top of others.
    struct Ground
    {
        QList<SettingChange> made;
        bool isKnown = false; ///< whether it has been found out what is possible
        PossibleTrials possible;
        QHash<qsizetype, std::pair<Look, Glance>> glances; ///< by change
        QHash<std::pair<qsizetype, qsizetype>, TrialOutcome>
            outcomes; ///< by change and wanted choice
    };

    using StepsOf = std::function<QList<Step>(const Ground &)>;
    using Tell = std::function<void(const QByteArray &line)>;

    Ground &groundOf(const QList<SettingChange> &made);
    QList<Step> stepsFor(const Ground &ground, const QList<qsizetype> &changes, Look look) const;
    QList<Step> tryOutsOn(const Ground &ground, qsizetype change) const;
    std::optional<Trial> trialOf(const Ground &ground, qsizetype change, qsizetype wanted,
                                 Look look) const;

    void run(Ground &ground, Look look, const StepsOf &stepsOf,
             const std::function<void()> &haveMore);
    void work(Ground &ground, Look look, const StepsOf &stepsOf, QList<Step> steps,
              const Tell &tell);
    static QList<Step> learn(Ground &ground, const QByteArray &line, const StepsOf &stepsOf);
    bool workOnChange(Ground &ground, Look look, QList<Step> &steps, const Tell &tell);
    void keep(Ground &ground, Look look, QList<Step> &steps, const QByteArray &line) const;

    TrialJob m_job;
    const double m_end; ///< seconds of CPU time
    QList<bool> m_isDropped;
    std::map<QString, Ground> m_grounds; ///< by what was made
};
