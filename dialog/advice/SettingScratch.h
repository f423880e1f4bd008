#pragma once

#include "dialog/advice/Scratch.h"

class SettingTrials;

/// The trials of one wanted choice among those of several.
class SettingScratch : public Scratch
{
public:
    /// No more than `mostTrials` are made in all.
    SettingScratch(SettingTrials &trials, qsizetype wanted, int mostTrials);

    bool isHad() override;
    bool tryEach(const QList<SettingChange> &made, Look look,
                 const std::function<bool(const SettingChange &)> &filter,
                 const std::function<void(const Trial &)> &take) override;

private:
    SettingTrials &m_trials;
    const qsizetype m_wanted;
    int m_left; ///< trials
};
