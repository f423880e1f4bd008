#include "dialog/host/controls/PanelParts.h"

#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"

#include <QtWidgets/QAbstractButton>

QHash<QString, QWidget *> outletsInView(const PDEPanelControls &panel)
{
    QHash<QString, QWidget *> inView;
    const QWidget *view = panel.loadedView();
    const auto outlets = panel.outlets();
    for (auto outlet = outlets.cbegin(); outlet != outlets.cend(); ++outlet) {
        if (view && view->isAncestorOf(outlet.value()))
            inView.insert(outlet.key(), outlet.value());
    }
    return inView;
}

bool isReportedControl(const QWidget *part)
{
    const auto *button = qobject_cast<const QAbstractButton *>(part);
    return qobject_cast<const PopUpButton *>(part) || qobject_cast<const RadioMatrix *>(part) ||
           (button && button->isCheckable());
}

QWidget *controlNamed(const PDEPanelControls &panel, const QString &name)
{
    QWidget *part = outletsInView(panel).value(name);
    return part && isReportedControl(part) ? part : nullptr;
}

bool isHiddenItself(const QWidget *widget)
{
    return widget->testAttribute(Qt::WA_WState_Hidden) &&
           widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}
