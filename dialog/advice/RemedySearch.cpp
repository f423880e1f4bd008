#include "dialog/advice/RemedySearch.h"

#include "dialog/advice/Scratch.h"

#include <QtCore/QSet>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

/// Changes that have been made one after the other, to try others on top of.
struct Ground
{
    QList<SettingChange> changes;
    bool isNearer = false;
};

class Search
{
public:
    Search(Scratch &scratch, const std::function<void(const Remedy &)> &tellFirst)
        : m_scratch(scratch), m_tellFirst(tellFirst)
    {}

    FoundRemedies run()
    {
        if (m_scratch.isHad())
            return {Advice::Outcome::Available, {}};
        // Most remedies take one change, and what the changes do besides takes time to look at.
        tryOn({{}}, Look::ForChoice);
        QList<Ground> grounds{{}};
        for (int size = 1; size <= kMostChanges && m_remedies.isEmpty() && m_isWhole; ++size)
            grounds = tryOn(grounds, size < kMostChanges ? Look::ForEffects : Look::ForChoice);
        std::ranges::stable_sort(m_remedies, {},
                                 [](const Remedy &remedy) { return remedy.beside.size(); });
        if (!m_remedies.isEmpty())
            return {Advice::Outcome::Possible, m_remedies};
        return {m_isWhole ? Advice::Outcome::Impossible : Advice::Outcome::Unknown, {}};
    }

private:
    /// Tries every change on every ground, and gives the grounds for larger sets.
    QList<Ground> tryOn(const QList<Ground> &grounds, Look look)
    {
        QList<Ground> next;
        for (const Ground &ground : grounds)
            if (m_isWhole)
                tryOn(ground, look, next);
        // What has come nearer to the choice is the likelier beginning of a remedy.
        std::ranges::stable_sort(next, std::greater(), &Ground::isNearer);
        return next;
    }

    void tryOn(const Ground &ground, Look look, QList<Ground> &next)
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
    bool isWorthIt(const Ground &ground, const SettingChange &change) const
    {
        return ground.changes.size() + 1 < kMostChanges ||
               m_telling.contains({change.keyword, change.to});
    }

    /// The same changes in another order are the same remedy.
    void addRemedy(const Remedy &remedy)
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

    Scratch &m_scratch;
    const std::function<void(const Remedy &)> &m_tellFirst;
    QList<Remedy> m_remedies;
    QSet<QByteArray> m_states;                   ///< that were reached
    QSet<std::pair<QString, QString>> m_telling; ///< keywords and choices
    bool m_isWhole = true;
};

} // namespace

FoundRemedies findRemedies(Scratch &scratch, const std::function<void(const Remedy &)> &tellFirst)
{
    return Search(scratch, tellFirst).run();
}
