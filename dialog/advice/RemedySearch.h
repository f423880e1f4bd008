#pragma once

#include "dialog/advice/Remedy.h"
#include "dialog/advice/Scratch.h"

#include <QtCore/QSet>

#include <functional>
#include <utility>

/// The most settings that a remedy changes.
inline constexpr int kMostChanges = 3;

/// What a search has found.
struct FoundRemedies
{
    Advice::Outcome outcome = Advice::Outcome::Unknown;
    QList<Remedy> remedies; ///< as Advice has them
};

/// Looks for the smallest sets of changes that give the scratch's wanted choice: first all of one
/// setting, then, when there are none, of two, then of three.
///
/// All single changes are tried. Of two and three settings each change is tried on top of those
/// that made a difference to other settings before; of the choices of one setting that made the
/// same difference, on top of the first.
class RemedySearch
{
public:
    /// `tellFirst` (null: nobody) is told of the first remedy when it is found; there may be better
    /// ones.
    explicit RemedySearch(Scratch &scratch, std::function<void(const Remedy &)> tellFirst = {});

    /// Whether everything is known that can be.
    bool isOver() const;

    /// Looks among sets of one size, or for what can be told of them for larger ones.
    void goOn();

    /// Once it is over.
    FoundRemedies found() const;

private:
    /// Changes that have been made one after the other, to try others on top of.
    struct Ground
    {
        QList<SettingChange> changes;
        bool isNearer = false;
    };

    QList<Ground> tryOn(const QList<Ground> &grounds, Look look);
    void tryOn(const Ground &ground, Look look, QList<Ground> &next);
    bool isWorthIt(const Ground &ground, const SettingChange &change) const;
    void addRemedy(const Remedy &remedy);

    Scratch &m_scratch;
    const std::function<void(const Remedy &)> m_tellFirst;
    QList<Ground> m_grounds{{}};
    int m_size = 0; ///< of the sets that were last looked among for larger ones
    bool m_isBegun = false;
    bool m_isHad = false; ///< without any change
    bool m_isWhole = true;
    QList<Remedy> m_remedies;
    QSet<QByteArray> m_states;                   ///< that were reached
    QSet<std::pair<QString, QString>> m_telling; ///< keywords and choices
};

/// All of a search at once.
FoundRemedies findRemedies(Scratch &scratch,
                           const std::function<void(const Remedy &)> &tellFirst = {});
