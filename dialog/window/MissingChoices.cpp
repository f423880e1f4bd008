#include "dialog/window/MissingChoices.h"

#include "dialog/advice/PossibleChanges.h"
#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/printing/PrintJob.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QSet>

#include <algorithm>

namespace {

/// Those that have a control which is shown.
QStringList shownSettings(const HostPanel &panel)
{
    QStringList keywords = panel.panel->supportedPPDOptionKeys().value_or(QStringList());
    keywords.removeIf([&](const QString &keyword) {
        const QWidget *control = panel.controls ? panel.controls->controlOf(keyword) : nullptr;
        return !control || isHiddenItself(control);
    });
    return keywords;
}

QList<PPDMark> missingOf(const PrintJob &job, const QString &keyword)
{
    const ppd_option_t *option = findOption(job.ppd(), keyword);
    QStringList choices;
    for (int index = 0; option && index < option->num_choices; ++index)
        choices += ppdName(option->choices[index].choice);
    const QStringList offered = pickable(job, keyword, choices);
    const ChoiceForms forms = job.session()->choiceForms();
    QSet<QString> there(offered.cbegin(), offered.cend());
    for (const QString &form : forms.formsOf(keyword, markedChoice(job.ppd(), keyword)))
        there += form;
    QList<PPDMark> missing;
    for (const QString &choice : choices)
        if (!there.contains(choice))
            missing += PPDMark{keyword, choice};
    return missing;
}

} // namespace

QString settingOf(const HostPanel &panel, const QWidget *part)
{
    const QStringList keywords = shownSettings(panel);
    const auto found = std::ranges::find_if(keywords, [&](const QString &keyword) {
        const QWidget *control = panel.controls->controlOf(keyword);
        return part && (control == part || control->isAncestorOf(part));
    });
    return found == keywords.end() ? QString() : *found;
}

QList<PPDMark> missingChoices(const PrintJob &job, const HostPanel &panel, const QString &keyword)
{
    QList<PPDMark> missing;
    for (const QString &shown : shownSettings(panel))
        if (keyword.isNull() || shown == keyword)
            missing += missingOf(job, shown);
    return missing;
}
