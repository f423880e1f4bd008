#pragma once

#include "dialog/host/ChoiceForms.h"
#include "dialog/host/PPDMarks.h"

#include <QtCore/QList>
#include <QtCore/QString>

class PrintJob;

/// What a job is set to at one moment. Two of them tell what has changed in between.
struct SettingState
{
    /// What is marked, in the order of the PPD; `PageSize` as it would be sent.
    QList<PPDMark> marks;
    /// What the panels' controls show, of those that are filled, not hidden and not switched off:
    /// what cannot be chosen promises nothing.
    QList<PPDMark> shown;
};

/// Empty for a job without a session.
SettingState settingState(const PrintJob &job);

/// A choice in the place of another one of the same keyword; null: none.
struct SettingChange
{
    QString keyword;
    QString from;
    QString to;

    bool operator==(const SettingChange &) const = default;
};

/// Which of the first marks have become others, in the order of the second ones; forms of one
/// another are no change.
QList<SettingChange> changesBetween(const QList<PPDMark> &before, const QList<PPDMark> &after,
                                    const ChoiceForms &forms);

/// What an event has changed beside the user's pick (a null keyword: there was none). A pick that
/// was had is no change; one that became something else at once is, unless it is still shown. A
/// null choice: the pick was refused, or is no choice of the PPD.
QList<SettingChange> changesBeside(const PPDMark &pick, const SettingState &before,
                                   const SettingState &after, const ChoiceForms &forms);

/// The choices that are shown while another one, which is no form of theirs, is marked: from what
/// is shown to what is marked.
QList<SettingChange> unlikeShown(const SettingState &state, const ChoiceForms &forms);
