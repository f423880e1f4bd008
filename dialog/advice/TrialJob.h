#pragma once

#include "dialog/advice/Scratch.h"
#include "dialog/advice/SettingsImage.h"
#include "dialog/advice/WayBack.h"
#include "dialog/printing/ScriptedAnswers.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

class PrintJob;

/// What can be seen of a wanted choice without picking it.
struct Prospect
{
    bool isNearer = false; ///< it could be picked
    bool mayBeHad = false; ///< it could be picked, or is there in another form
    QByteArray clashes;    ///< what the PPD's constraints have against it; equal for equal ones

    bool operator==(const Prospect &) const = default;
};

/// What could be tried next.
struct PossibleTrials
{
    QList<SettingChange> changes;
    QList<Prospect> prospects; ///< of each wanted choice, without any of them
};

/// What can be seen of a change without picking anything on top of it.
struct Glance
{
    /// As those of a Trial, but for what stands in the way of the wanted choice.
    QByteArray effect;
    QByteArray state;
    QList<Prospect> prospects; ///< for each wanted choice; empty where the change is not to be had
};

/// Whether a choice was had, and what had become otherwise besides then.
struct TrialOutcome
{
    bool isHad = false;
    QList<SettingChange> beside;
};

/// A job that settings are made on to see what they lead to: the real panels run, and nobody sees
/// it. What is made stays, until one goes back. Use it in a ProcessCopy.
class TrialJob
{
public:
    /// The job is changed by nothing but the preparation: its panels' controls are filled.
    TrialJob(PrintJob &job, const QList<PPDMark> &wanted);

    const QList<PPDMark> &wanted() const { return m_wanted; }

    /// Makes the setting as a person would. Whether it is there now.
    bool make(const PPDMark &choice);
    bool make(const SettingChange &change) { return make(PPDMark{change.keyword, change.to}); }

    /// The way back to what the job is set to now, which is what glances are compared with from
    /// then on; it must not outlive this.
    WayBack wayBack();

    /// All changes of settings that are not among those made.
    PossibleTrials possibleOnTopOf(const QList<SettingChange> &made) const;

    /// Makes the change, on top of nothing but what wayBack() leads to, and tells what can be seen
    /// of it; effect and state only where the look is for them.
    Glance glanceAt(const SettingChange &change, Look look);

    /// Picks the wanted choice on top of what has been made, and has the panels save their values.
    TrialOutcome tryOut(const PPDMark &wanted, const QList<SettingChange> &made);

private:
    QList<Prospect> prospects() const;
    QByteArray groundWithout(const QString &keyword);
    bool isHadAfterSave(const PPDMark &wanted);
    bool isThere(const PPDMark &wanted) const;
    bool isThereInAForm(const PPDMark &wanted) const;
    bool isSound(const QList<SettingChange> &changes) const;
    QList<SettingChange> changedBeside(const QList<SettingChange> &changes,
                                       const PPDMark &wanted) const;

    PrintJob &m_job;
    const QList<PPDMark> m_wanted;
    ScriptedAnswers m_answers;
    const QSet<QString> m_constrained; ///< keywords of which the PPD's constraints speak
    SettingsImage m_image;
    QHash<QString, QByteArray> m_ground; ///< texts of the image, by the keyword that is left out
    SettingState m_base;
    QSet<QString> m_troubles; ///< of the base
};
