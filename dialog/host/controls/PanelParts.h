#pragma once

#include "dialog/host/HostSession.h"
#include "platform/pde/PDEPanelInspection.h"

#include <QtCore/QString>
#include <QtWidgets/QWidget>

// How record and replay find the parts of a panel's view, whichever panel it is. Nothing here loads
// a view.

/// The outlets that are part of the panel's view, by name; none before the view is loaded.
QHash<QString, QWidget *> outletsInView(const PDEPanelInspection &panel);

/// Whether a part is a control in the sense of a report: a pop-up button, a matrix, or a button
/// that can be checked.
bool isReportedControl(const QWidget *part);

/// The control of the name; null without one.
QWidget *controlNamed(const PDEPanelInspection &panel, const QString &name);

/// Whether the widget itself is hidden, whatever holds it. A widget that was not shown yet only
/// because its window was not is none of those.
bool isHiddenItself(const QWidget *widget);

/// The name that a control's action or a slider's value is bound under in the view resource.
QString actionOf(const QWidget *part);
QString boundKeyOf(const QWidget *part);

/// The action that the button of the enhancement section sends which reverts it.
inline constexpr auto kRevertAction = QLatin1String("revertEffectDialog:");
/// The action of a help button.
inline constexpr auto kHelpAction = QLatin1String("showHelpFile:");
/// The outlet of the disclosure button of the advanced section.
inline constexpr auto kOptionButton = QLatin1String("optionButton");

/// The parts of a kind in the loaded views of the session, in the order of the panels.
template <typename Part> QList<Part *> partsOfViews(const HostSession &session)
{
    QList<Part *> parts;
    for (const HostPanel &panel : session.panels()) {
        if (panel.inspection && panel.inspection->inspectedView())
            parts += panel.inspection->inspectedView()->template findChildren<Part *>();
    }
    return parts;
}
