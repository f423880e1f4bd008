#include "dialog/printing/SettingState.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/printing/PrintJob.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"

#include <QtCore/QHash>
#include <QtWidgets/QAbstractButton>

using namespace Qt::StringLiterals;

namespace {

/// The choice that the box stands for as it is: the marked one where both would do.
QString shownByBox(const QAbstractButton &box, const PDEPanelControls &panel,
                   const QString &keyword, ppd_file_t *ppd)
{
    const auto isShown = [&](const QString &choice) {
        return panel.isTicked(keyword, choice) == box.isChecked();
    };
    QString marked = markedChoice(ppd, keyword);
    if (isShown(marked))
        return marked;
    const ppd_option_t *option = findOption(ppd, keyword);
    for (int index = 0; option && index < option->num_choices; ++index)
        if (QString choice = ppdName(option->choices[index].choice); isShown(choice))
            return choice;
    return {};
}

/// Null when the panel has no control for the keyword, or one that shows nothing.
QString shownChoice(const PDEPanelControls &panel, const QString &keyword, ppd_file_t *ppd)
{
    const QWidget *control = panel.controlOf(keyword);
    if (!control || isHiddenItself(control) || !control->isEnabled())
        return {};
    if (const auto *popup = qobject_cast<const PopUpButton *>(control))
        return popup->selectedObject();
    if (const auto *matrix = qobject_cast<const RadioMatrix *>(control))
        return matrix->selectedObject();
    const auto *box = qobject_cast<const QAbstractButton *>(control);
    return box ? shownByBox(*box, panel, keyword, ppd) : QString();
}

QList<PPDMark> shownChoices(const HostSession &session)
{
    QList<PPDMark> shown;
    for (const HostPanel &panel : session.panels()) {
        if (!panel.controls || !panel.controls->loadedView())
            continue;
        const QStringList keywords = panel.panel->supportedPPDOptionKeys().value_or(QStringList());
        for (const QString &keyword : keywords)
            if (const QString choice = shownChoice(*panel.controls, keyword, session.ppd());
                !choice.isNull())
                shown += PPDMark{keyword, choice};
    }
    return shown;
}

/// Marks know no paper of a size of the user's own.
QList<PPDMark> marksWithPaper(const PrintJob &job)
{
    QList<PPDMark> marks = marksOf(job.ppd());
    const std::optional<PMPaper> paper = job.paper();
    for (PPDMark &mark : marks)
        if (mark.keyword == "PageSize"_L1 && paper)
            mark.choice = paper->ppdName.isNull() ? paper->name : paper->ppdName;
    return marks;
}

QHash<QString, QString> byKeyword(const QList<PPDMark> &marks)
{
    QHash<QString, QString> choices;
    for (const PPDMark &mark : marks)
        choices.insert(mark.keyword, mark.choice);
    return choices;
}

} // namespace

SettingState settingState(const PrintJob &job)
{
    if (!job.session())
        return {};
    return {marksWithPaper(job), shownChoices(*job.session())};
}

QList<SettingChange> changesBetween(const QList<PPDMark> &before, const QList<PPDMark> &after,
                                    const ChoiceForms &forms)
{
    const QHash<QString, QString> former = byKeyword(before);
    QList<SettingChange> changes;
    for (const PPDMark &mark : after) {
        const QString from = former.value(mark.keyword);
        if (!forms.areSame(mark.keyword, from, mark.choice))
            changes += SettingChange{mark.keyword, from, mark.choice};
    }
    return changes;
}

QList<SettingChange> changesBeside(const PPDMark &pick, const SettingState &before,
                                   const SettingState &after, const ChoiceForms &forms)
{
    QList<SettingChange> changes = changesBetween(before.marks, after.marks, forms);
    changes.removeIf([&](const SettingChange &change) { return change.keyword == pick.keyword; });
    const QString marked = byKeyword(after.marks).value(pick.keyword);
    if (!pick.choice.isNull() && !marked.isNull() && !after.shown.contains(pick) &&
        !forms.areSame(pick.keyword, pick.choice, marked))
        changes.prepend({pick.keyword, pick.choice, marked});
    return changes;
}

QList<SettingChange> unlikeShown(const SettingState &state, const ChoiceForms &forms)
{
    const QHash<QString, QString> marked = byKeyword(state.marks);
    QList<SettingChange> unlike;
    for (const PPDMark &shown : state.shown)
        if (const QString choice = marked.value(shown.keyword);
            !choice.isNull() && !forms.areSame(shown.keyword, shown.choice, choice))
            unlike += SettingChange{shown.keyword, shown.choice, choice};
    return unlike;
}
