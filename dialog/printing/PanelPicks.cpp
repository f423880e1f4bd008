#include "dialog/printing/PanelPicks.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/host/controls/UserActions.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtWidgets/QAbstractButton>

#include <algorithm>

namespace {

QStringList keywordsOf(const HostPanel &panel)
{
    return panel.panel->supportedPPDOptionKeys().value_or(QStringList());
}

/// The panel that manages the keyword; null without one.
const HostPanel *panelOf(const HostSession &session, const QString &keyword)
{
    const auto found = std::ranges::find_if(session.panels(), [&](const HostPanel &panel) {
        return keywordsOf(panel).contains(keyword);
    });
    return found == session.panels().end() ? nullptr : &*found;
}

/// A form of the choice that the list does not offer is picked as the one that it offers.
void pick(const PDEPanelControls &panel, const QString &keyword, const QStringList &forms)
{
    QWidget *control = panel.controlOf(keyword);
    const QString name = outletsInView(panel).key(control);
    for (const QString &form : forms) {
        const QString reason = qobject_cast<QAbstractButton *>(control)
                                   ? pickChecked(panel, name, panel.isTicked(keyword, form))
                                   : pickChoice(panel, name, form);
        if (reason.isNull())
            return;
    }
}

} // namespace

void prepareControls(HostSession &session)
{
    for (const HostPanel &panel : session.panels()) {
        if (!panel.controls || panel.controls->loadedView())
            continue;
        session.show(panel);
        session.hide(panel);
    }
}

void savePreparedPanels(HostSession &session)
{
    for (const HostPanel &panel : session.panels())
        if (panel.controls && panel.controls->loadedView())
            session.save(panel);
}

std::optional<int> placeInPanels(const HostSession &session, const QString &keyword)
{
    QStringList keywords;
    for (const HostPanel &panel : session.panels())
        keywords += keywordsOf(panel);
    const qsizetype place = keywords.indexOf(keyword);
    return place < 0 ? std::nullopt : std::optional(static_cast<int>(place));
}

QString sliderOf(const HostSession &session, const QString &name)
{
    for (const FractionSlider *slider : partsOfViews<FractionSlider>(session))
        if (isSameName(boundKeyOf(slider), name))
            return boundKeyOf(slider);
    return {};
}

std::optional<double> valueOfSlider(const HostSession &session, const QString &slider)
{
    const QVariantMap &ticket = session.ticket().values();
    for (auto entry = ticket.cbegin(); entry != ticket.cend(); ++entry)
        if (session.keywordOfTicketKey(entry.key()) == slider)
            return entry.value().toDouble();
    return std::nullopt;
}

bool isOfferedInPanels(const HostSession &session, const QString &keyword, const QString &choice)
{
    const HostPanel *panel = panelOf(session, keyword);
    if (!panel || !panel->controls)
        return true;
    const auto *popup = qobject_cast<const PopUpButton *>(panel->controls->controlOf(keyword));
    if (!popup)
        return true;
    const int index = popup->indexOfRepresentedObject(choice);
    return index >= 0 && popup->isItemEnabled(index);
}

bool pickInPanels(HostSession &session, const QString &keyword, const QString &choice)
{
    const HostPanel *panel = panelOf(session, keyword);
    if (panel && panel->controls && panel->controls->controlOf(keyword)) {
        pick(*panel->controls, keyword, session.choiceForms().formsOf(keyword, choice));
        return true;
    }
    bool isNumber = false;
    const double value = choice.toDouble(&isNumber);
    const QString slider = isNumber ? sliderOf(session, keyword) : QString();
    if (!slider.isNull())
        static_cast<void>(moveSlider(session, slider, value)); // its value tells what came of it
    return !slider.isNull();
}
