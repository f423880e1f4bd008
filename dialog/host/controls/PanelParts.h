#pragma once

#include "dialog/host/HostSession.h"
#include "platform/pde/PDEPanelControls.h"

#include <QtCore/QString>
#include <QtWidgets/QWidget>

// How record and replay find the parts of a panel's view, whichever panel it is. Nothing here loads
// a view.

/// The outlets that are part of the panel's view, by name; none before the view is loaded.
QHash<QString, QWidget *> outletsInView(const PDEPanelControls &panel);

/// Whether a part is a control in the sense of a report: a pop-up button, a matrix, or a button
/// that can be checked.
bool isReportedControl(const QWidget *part);

/// The control of the name; null without one.
QWidget *controlNamed(const PDEPanelControls &panel, const QString &name);

/// Whether the widget itself is hidden, whatever holds it. A widget that was not shown yet only
/// because its window was not is none of those.
bool isHiddenItself(const QWidget *widget);

/// The parts of a kind in the loaded views of the session, in the order of the panels.
template <typename Part> QList<Part *> partsOfViews(const HostSession &session)
{
    QList<Part *> parts;
    for (const HostPanel &panel : session.panels()) {
        if (const QWidget *view = session.loadedView(panel))
            parts += view->template findChildren<Part *>();
    }
    return parts;
}
