#include "dialog/advice/PossibleChanges.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/job/Conflicts.h"
#include "dialog/job/Papers.h"
#include "dialog/printing/FeaturePicks.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "platform/pde/PDEPanelControls.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtCore/QSet>
#include <QtWidgets/QAbstractButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPageSize = "PageSize"_L1;
constexpr auto kCustom = "Custom"_L1;

QStringList choicesOf(ppd_file_t *ppd, const QString &keyword)
{
    QStringList choices;
    const ppd_option_t *option = findOption(ppd, keyword);
    for (int index = 0; option && index < option->num_choices; ++index)
        choices += ppdName(option->choices[index].choice);
    return choices;
}

QStringList enabledItems(const PopUpButton &popup)
{
    QStringList items;
    for (int index = 0; index < popup.count(); ++index)
        if (popup.isItemEnabled(index))
            items += popup.representedObject(index);
    return items;
}

QStringList itemsOf(const RadioMatrix &matrix)
{
    QStringList items;
    for (int row = 0; row < matrix.numberOfRows(); ++row)
        items += matrix.representedObject(row);
    return items;
}

/// The choices that the box can be made to stand for by a click.
QStringList otherStateOf(const QAbstractButton &box, const PDEPanelControls &panel,
                         const QString &keyword, ppd_file_t *ppd)
{
    for (const QString &choice : choicesOf(ppd, keyword))
        if (panel.isTicked(keyword, choice) != box.isChecked())
            return {choice};
    return {};
}

bool canBeUsed(const QWidget &control)
{
    return !isHiddenItself(&control) && control.isEnabled();
}

/// What can be picked in the panel's control.
QStringList offeredBy(const QWidget &control, const PDEPanelControls &panel, const QString &keyword,
                      ppd_file_t *ppd)
{
    if (!canBeUsed(control))
        return {};
    if (const auto *popup = qobject_cast<const PopUpButton *>(&control))
        return enabledItems(*popup);
    if (const auto *matrix = qobject_cast<const RadioMatrix *>(&control))
        return itemsOf(*matrix);
    const auto *box = qobject_cast<const QAbstractButton *>(&control);
    return box ? otherStateOf(*box, panel, keyword, ppd) : QStringList();
}

/// Null when the panel has none for the keyword.
const QWidget *controlOf(const HostPanel &panel, const QString &keyword)
{
    return panel.controls ? panel.controls->controlOf(keyword) : nullptr;
}

/// The panel whose control picks the keyword; null without one.
const HostPanel *panelWithControl(const PrintJob &job, const QString &keyword)
{
    for (const HostPanel &panel : job.session()->panels())
        if (panel.panel->supportedPPDOptionKeys().value_or(QStringList()).contains(keyword))
            return controlOf(panel, keyword) ? &panel : nullptr;
    return nullptr;
}

/// Null for a setting that a panel lists, or that has no slider.
const FractionSlider *sliderOfSetting(const HostSession &session, const QString &keyword)
{
    if (placeInPanels(session, keyword))
        return nullptr;
    for (const FractionSlider *slider : partsOfViews<FractionSlider>(session))
        if (isSameName(boundKeyOf(slider), keyword))
            return slider;
    return nullptr;
}

/// What constraints of the PPD leave of the choices.
QStringList allowed(ppd_file_t *ppd, const QString &keyword, QStringList choices)
{
    choices.removeIf([&](const QString &choice) {
        return isSameName(choice, kCustom) || !clashesWith(ppd, keyword, choice).isEmpty();
    });
    return choices;
}

class Collector
{
public:
    explicit Collector(const PrintJob &job) : m_job(job), m_ppd(job.ppd()) {}

    QList<PPDMark> collect()
    {
        for (const QString &keyword : m_job.ownKeywords())
            addAllowed(keyword);
        for (const HostPanel &panel : m_job.session()->panels())
            for (const QString &keyword :
                 panel.panel->supportedPPDOptionKeys().value_or(QStringList()))
                addOfPanel(panel, keyword);
        for (const FeatureGroup &group : featuresOf(m_job))
            if (!group.isInstalled)
                for (const PrinterFeature &feature : group.features)
                    addAllowed(feature.keyword);
        addAllowed(kPageSize);
        return m_changes;
    }

private:
    void addOfPanel(const HostPanel &panel, const QString &keyword)
    {
        if (const QWidget *control = controlOf(panel, keyword))
            add(keyword, offeredBy(*control, *panel.controls, keyword, m_ppd));
        else
            addAllowed(keyword);
    }

    void addAllowed(const QString &keyword)
    {
        add(keyword, allowed(m_ppd, keyword, choicesOf(m_ppd, keyword)));
    }

    void add(const QString &keyword, const QStringList &choices)
    {
        if (!findOption(m_ppd, keyword))
            return;
        for (const QString &choice : choices)
            if (choice != markedValue(m_ppd, keyword))
                m_changes += PPDMark{keyword, choice};
    }

    const PrintJob &m_job;
    ppd_file_t *m_ppd;
    QList<PPDMark> m_changes;
};

} // namespace

QList<PPDMark> possibleChanges(const PrintJob &job)
{
    return Collector(job).collect();
}

QStringList pickable(const PrintJob &job, const QString &keyword, const QStringList &choices)
{
    const auto allIf = [&](bool canBeSet) { return canBeSet ? choices : QStringList(); };
    if (const FractionSlider *slider = sliderOfSetting(*job.session(), keyword))
        return allIf(slider->isEnabled());
    const HostPanel *panel = panelWithControl(job, keyword);
    if (!panel)
        return allowed(job.ppd(), keyword, choices);
    const QWidget *control = controlOf(*panel, keyword);
    if (qobject_cast<const QAbstractButton *>(control))
        return allIf(canBeUsed(*control));
    const QStringList items = offeredBy(*control, *panel->controls, keyword, job.ppd());
    const QSet<QString> offered(items.cbegin(), items.cend());
    const ChoiceForms forms = job.session()->choiceForms();
    QStringList offeredChoices = choices;
    offeredChoices.removeIf([&](const QString &choice) {
        const QStringList all = forms.formsOf(keyword, choice);
        return std::ranges::none_of(all,
                                    [&](const QString &form) { return offered.contains(form); });
    });
    return offeredChoices;
}

bool canBePicked(const PrintJob &job, const PPDMark &choice)
{
    return !pickable(job, choice.keyword, {choice.choice}).isEmpty();
}
