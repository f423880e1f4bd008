#include "dialog/advice/SettingsPrint.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/job/Conflicts.h"
#include "dialog/printing/PrintJob.h"
#include "platform/pde/PDEPanelControls.h"
#include "platform/pde/PDEPanelInspection.h"
#include "platform/printmanager/PMTicketKeys.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDataStream>
#include <QtWidgets/QAbstractButton>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPaperSetting = "PageSize"_L1;

void addItems(QDataStream &out, const QWidget &control)
{
    if (const auto *popup = qobject_cast<const PopUpButton *>(&control)) {
        for (int index = 0; index < popup->count(); ++index)
            out << popup->representedObject(index) << popup->isItemEnabled(index);
    } else if (const auto *matrix = qobject_cast<const RadioMatrix *>(&control)) {
        for (int row = 0; row < matrix->numberOfRows(); ++row)
            out << matrix->representedObject(row);
    }
}

void addSelection(QDataStream &out, const QWidget &control)
{
    if (const auto *popup = qobject_cast<const PopUpButton *>(&control))
        out << popup->selectedObject();
    else if (const auto *matrix = qobject_cast<const RadioMatrix *>(&control))
        out << matrix->selectedObject();
    else if (const auto *button = qobject_cast<const QAbstractButton *>(&control))
        out << button->isChecked();
}

void addControls(QDataStream &out, const PDEPanelControls &panel, const QString &leftOut)
{
    const QWidget *own = leftOut.isNull() ? nullptr : panel.controlOf(leftOut);
    const QHash<QString, QWidget *> parts = outletsInView(panel);
    QStringList names = parts.keys();
    names.sort();
    for (const QString &name : names) {
        const QWidget &part = *parts.value(name);
        if (!isReportedControl(&part))
            continue;
        out << name << part.isEnabled() << isHiddenItself(&part);
        addItems(out, part);
        if (&part != own)
            addSelection(out, part);
    }
}

void addPanel(QDataStream &out, const HostPanel &panel, const QString &leftOut)
{
    if (panel.controls && panel.controls->loadedView())
        addControls(out, *panel.controls, leftOut);
    if (!panel.inspection)
        return;
    QVariantMap pending = panel.inspection->inspectedOutputBin();
    pending.remove(leftOut);
    out << panel.inspection->inspectedFlags() << pending;
    if (leftOut != kPaperSetting)
        out << panel.inspection->inspectedPaperName();
}

} // namespace

QByteArray printOfSettings(const PrintJob &job, const PPDMark &wanted, const QString &leftOut)
{
    QByteArray all;
    QDataStream out(&all, QIODevice::WriteOnly);
    for (const PPDMark &mark : settingState(job).marks)
        if (mark.keyword != leftOut)
            out << mark.keyword << mark.choice;
    QVariantMap ticket = job.session()->ticket().values();
    if (leftOut == kPaperSetting)
        ticket.remove(kPMMappedPaperKey);
    out << ticket << clashesWith(job.ppd(), wanted.keyword, wanted.choice);
    for (const HostPanel &panel : job.session()->panels())
        addPanel(out, panel, leftOut);
    return QCryptographicHash::hash(all, QCryptographicHash::Sha1).toHex();
}
