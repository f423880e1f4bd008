#include "dialog/advice/SettingScratch.h"

#include "dialog/advice/SettingTrials.h"

SettingScratch::SettingScratch(SettingTrials &trials, qsizetype wanted, int mostTrials)
    : m_trials(trials), m_wanted(wanted), m_left(mostTrials)
{}

bool SettingScratch::isHad()
{
    return m_trials.isHad(m_wanted);
}

bool SettingScratch::tryEach(const QList<SettingChange> &made, Look look,
                             const std::function<bool(const SettingChange &)> &filter,
                             const std::function<void(const Trial &)> &take)
{
    return m_trials.tryEach(m_wanted, made, look, filter, m_left, [&](const Trial &trial) {
        --m_left;
        take(trial);
    });
}
