#pragma once

#include "dialog/advice/Scratch.h"
#include "dialog/advice/SettingsImage.h"
#include "dialog/printing/ScriptedAnswers.h"

#include <QtCore/QSet>

#include <memory>

class PrintJob;

/// Tries settings out on copies of this process: each trial runs the real panels, from the state
/// that the job has now. The job itself is changed by nothing but the preparation: its panels'
/// controls are filled. Use it in a ProcessCopy.
///
/// A copy takes its time, so one glances at change after change for as long as each can be taken
/// back to exactly what was before. A change with which the choice may be had is then tried out in
/// a copy of its own.
class SettingScratch : public Scratch
{
public:
    /// The wanted choice is one of the PPD. No more than `mostTrials` are made in all.
    SettingScratch(PrintJob &job, const PPDMark &wanted, int mostTrials);

    bool isHad() override;
    bool tryEach(const QList<SettingChange> &made, Look look,
                 const std::function<bool(const SettingChange &)> &filter,
                 const std::function<void(const Trial &)> &take) override;

private:
    using Tell = std::function<void(const QByteArray &line)>;

    void tryEachHere(const QList<SettingChange> &made,
                     const std::function<bool(const SettingChange &)> &filter, const Tell &tell);
    qsizetype tryFrom(qsizetype first, const QList<SettingChange> &made,
                      const QList<SettingChange> &changes, const Tell &tell);
    void glanceFrom(qsizetype first, const QList<SettingChange> &changes, const Tell &tell);
    Trial glanceAt(const SettingChange &change, const QByteArray &effectOfNone);
    bool takeBack(const SettingChange &change, const QByteArray &before);
    Trial tryOut(const QList<SettingChange> &made, Trial trial);
    bool make(const PPDMark &choice);
    bool isHadAfterSave();
    bool isThere() const;
    bool isThereInAForm() const;
    bool isSound(const QList<SettingChange> &changes) const;
    QList<SettingChange> changedBeside(const QList<SettingChange> &changes) const;

    PrintJob &m_job;
    const PPDMark m_wanted;
    int m_left;              ///< trials
    bool m_isSlider = false; ///< whether the wanted choice is a value of a slider
    ScriptedAnswers m_answers;
    QSet<QString> m_constrained; ///< keywords of which the PPD's constraints speak
    std::unique_ptr<SettingsImage> m_image;
    SettingState m_base;
    QSet<QString> m_troubles; ///< of the base
    Look m_look = Look::ForChoice;
};
