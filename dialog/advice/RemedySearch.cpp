#include "dialog/advice/RemedySearch.h"

#include <algorithm>
#include <functional>
#include <utility>

RemedySearch::RemedySearch(Scratch &scratch, std::function<void(const Remedy &)> tellFirst)
    : m_scratch(scratch), m_tellFirst(std::move(tellFirst))
{}

bool RemedySearch::isOver() const
{
    return m_isHad || !m_remedies.isEmpty() || !m_isWhole || m_size == kMostChanges;
}

void RemedySearch::goOn()
{
    if (std::exchange(m_isBegun, true)) {
        ++m_size;
        m_grounds = tryOn(m_grounds, m_size < kMostChanges ? Look::ForEffects : Look::ForChoice);
        return;
    }
    m_isHad = m_scratch.isHad();
    // Most remedies take one change, and what the changes do besides takes time to look at.
    if (!m_isHad)
        tryOn(m_grounds, Look::ForChoice);
}

FoundRemedies RemedySearch::found() const
{
    if (m_isHad)
        return {Advice::Outcome::Available, {}};
    if (m_remedies.isEmpty())
        return {m_isWhole ? Advice::Outcome::Impossible : Advice::Outcome::Unknown, {}};
    QList<Remedy> remedies = m_remedies;
    std::ranges::stable_sort(remedies, {},
                             [](const Remedy &remedy) { return remedy.beside.size(); });
    return {Advice::Outcome::Possible, remedies};
}

/// Tries every change on every ground, and gives the grounds for larger sets.
QList<RemedySearch::Ground> RemedySearch::tryOn(const QList<Ground> &grounds, Look look)
{
    QList<Ground> next;
    for (const Ground &ground : grounds)
        if (m_isWhole)
            tryOn(ground, look, next);
    // What has come nearer to the choice is the likelier beginning of a remedy.
    std::ranges::stable_sort(next, std::greater(), &Ground::isNearer);
    return next;
}

void RemedySearch::tryOn(const Ground &ground, Look look, QList<Ground> &next)
{
    QSet<std::pair<QString, QByteArray>> effects;
    m_isWhole = m_scratch.tryEach(
        ground.changes, look,
        [&](const SettingChange &change) { return isWorthIt(ground, change); },
        [&](const Trial &trial) {
            const QList<SettingChange> changes = ground.changes + QList{trial.change};
            if (trial.isHad)
                addRemedy({changes, trial.beside});
            const std::pair effect(trial.change.keyword, trial.effect);
            if (look == Look::ForChoice || trial.effect.isEmpty() || effects.contains(effect))
                return;
            effects.insert(effect);
            m_telling.insert({trial.change.keyword, trial.change.to});
            if (!m_states.contains(trial.state))
                next += Ground{changes, trial.isNearer};
            m_states.insert(trial.state);
        });
}

/// On top of two changes only what has made a difference on top of none or one.
bool RemedySearch::isWorthIt(const Ground &ground, const SettingChange &change) const
{
    return ground.changes.size() + 1 < kMostChanges ||
           m_telling.contains({change.keyword, change.to});
}

/// The same changes in another order are the same remedy.
void RemedySearch::addRemedy(const Remedy &remedy)
{
    const auto isSame = [&](const Remedy &other) {
        return std::ranges::is_permutation(other.changes, remedy.changes);
    };
    if (std::ranges::any_of(m_remedies, isSame))
        return;
    m_remedies += remedy;
    if (m_remedies.size() == 1 && m_tellFirst)
        m_tellFirst(remedy);
}

FoundRemedies findRemedies(Scratch &scratch, const std::function<void(const Remedy &)> &tellFirst)
{
    RemedySearch search(scratch, tellFirst);
    while (!search.isOver())
        search.goOn();
    return search.found();
}
