#pragma once

#include "dialog/advice/Scratch.h"
#include "dialog/printing/ScriptedAnswers.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

#include <memory>

class PrintJob;

/// Tries settings out on copies of this process: each trial runs the real panels, from the state
/// that the job has now. The job itself is changed by nothing but the preparation: its panels'
/// controls are filled. Use it in a ProcessCopy.
class SettingScratch : public Scratch
{
public:
    /// The wanted choice is one of the PPD. No more than `mostTrials` are made in all.
    SettingScratch(PrintJob &job, const PPDMark &wanted, int mostTrials);

    bool isHad() override;
    bool tryEach(const QList<SettingChange> &made,
                 const std::function<bool(const SettingChange &)> &filter,
                 const std::function<void(const Trial &)> &take) override;

private:
    using Take = std::function<void(const QByteArray &trial)>;

    void tryEachHere(const QList<SettingChange> &made,
                     const std::function<bool(const SettingChange &)> &filter, const Take &take);
    Trial tryOut(const QList<SettingChange> &made, const SettingChange &change,
                 const QByteArray &effectOfNone);
    bool make(const PPDMark &choice);
    bool isHadAfterSave();
    bool isSound(const QList<SettingChange> &changes) const;
    QList<SettingChange> changedBeside(const QList<SettingChange> &changes) const;

    PrintJob &m_job;
    const PPDMark m_wanted;
    int m_left; ///< trials
    ScriptedAnswers m_answers;
    QSet<QString> m_constrained; ///< keywords of which the PPD's constraints speak
    SettingState m_base;
    QSet<QString> m_troubles; ///< of the base
};
