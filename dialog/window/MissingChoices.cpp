#include "dialog/window/MissingChoices.h"

#include "dialog/advice/PossibleChanges.h"
#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/printing/PrintJob.h"
#include "platform/ppd/PPDText.h"

#include <algorithm>

namespace {

/// The keyword whose control the part is or is in; null without one.
QString keywordOf(const HostPanel &panel, const QStringList &keywords, const QWidget *part)
{
    const auto found = std::ranges::find_if(keywords, [&](const QString &keyword) {
        const QWidget *control = panel.controls->controlOf(keyword);
        return control && part && (control == part || control->isAncestorOf(part));
    });
    return found == keywords.end() ? QString() : *found;
}

QList<PPDMark> missingOf(const PrintJob &job, const QString &keyword)
{
    const ChoiceForms forms = job.session()->choiceForms();
    const QString marked = markedChoice(job.ppd(), keyword);
    const ppd_option_t *option = findOption(job.ppd(), keyword);
    QList<PPDMark> missing;
    for (int index = 0; option && index < option->num_choices; ++index)
        if (const PPDMark choice{keyword, ppdName(option->choices[index].choice)};
            !forms.areSame(keyword, choice.choice, marked) && !canBePicked(job, choice))
            missing += choice;
    return missing;
}

} // namespace

QList<PPDMark> missingChoices(const PrintJob &job, const HostPanel &panel, const QWidget *part)
{
    QStringList keywords = panel.panel->supportedPPDOptionKeys().value_or(QStringList());
    if (!panel.controls)
        return {};
    keywords.removeIf([&](const QString &keyword) {
        const QWidget *control = panel.controls->controlOf(keyword);
        return !control || isHiddenItself(control);
    });
    if (const QString asked = keywordOf(panel, keywords, part); !asked.isNull())
        keywords = {asked};
    QList<PPDMark> missing;
    for (const QString &keyword : keywords)
        missing += missingOf(job, keyword);
    return missing;
}
