#include "dialog/advice/SettingsImage.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/printing/PrintJob.h"
#include "platform/foundation/ObservableDictionary.h"
#include "platform/pde/PDEPanelControls.h"
#include "platform/pde/PDEPanelInspection.h"
#include "platform/printmanager/PMTicketKeys.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDataStream>
#include <QtWidgets/QAbstractButton>

#include <algorithm>

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

void addInspection(QDataStream &out, const PDEPanelInspection &panel, const QString &leftOut)
{
    QVariantMap pending = panel.inspectedOutputBin();
    pending.remove(leftOut);
    out << panel.inspectedFlags() << pending;
    if (leftOut != kPaperSetting)
        out << panel.inspectedPaperName();
    if (const ObservableDictionary *content = panel.inspectedEffectContent()) {
        QVariantMap values = content->values();
        values.remove(leftOut);
        out << values;
    }
}

/// The mapped paper is told with the paper; what is folded in a view is nothing that a printer
/// does.
QVariantMap ticketWithoutSurroundings(const HostSession &session)
{
    QVariantMap ticket = session.ticket().values();
    for (const QString &key : session.foldStateKeys() + QStringList(kPMMappedPaperKey))
        ticket.remove(key);
    return ticket;
}

} // namespace

SettingsImage::SettingsImage(const PrintJob &job) : m_job(job)
{
    for (const HostPanel &panel : job.session()->panels()) {
        if (!panel.controls)
            continue;
        const QHash<QString, QWidget *> parts = outletsInView(*panel.controls);
        for (const QWidget *part : parts)
            if (isReportedControl(part))
                m_controls += Control{panel.controls, part};
    }
}

QByteArray SettingsImage::text(const QString &leftOut) const
{
    QByteArray all;
    QDataStream out(&all, QIODevice::WriteOnly);
    for (const PPDMark &mark : marksOf(m_job.ppd()))
        if (mark.keyword != leftOut)
            out << mark.keyword << mark.choice;
    if (leftOut != kPaperSetting)
        out << m_job.paper().value_or(PMPaper()).name << m_job.mappedPaper();
    out << ticketWithoutSurroundings(*m_job.session());
    for (const Control &control : m_controls) {
        out << control.widget->isEnabled() << isHiddenItself(control.widget);
        addItems(out, *control.widget);
        if (leftOut.isNull() || control.panel->controlOf(leftOut) != control.widget)
            addSelection(out, *control.widget);
    }
    for (const HostPanel &panel : m_job.session()->panels())
        if (panel.inspection)
            addInspection(out, *panel.inspection, leftOut);
    return QCryptographicHash::hash(all, QCryptographicHash::Sha1).toHex();
}

bool SettingsImage::isWhole() const
{
    return std::ranges::all_of(m_job.session()->panels(),
                               [](const HostPanel &panel) { return panel.inspection != nullptr; });
}
