#include "dialog/replay/ControlReport.h"

#include "dialog/host/controls/PanelParts.h"
#include "dialog/replay/JsonText.h"
#include "platform/toolkit/ControlColor.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"

#include <QtCore/QJsonArray>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

QJsonObject item(const QString &choice, const QString &title, bool enabled)
{
    return {{u"choice"_s, textOrNull(choice)}, {u"title"_s, title}, {u"enabled"_s, enabled}};
}

QJsonObject popUpReport(const PopUpButton &popup)
{
    QJsonArray items;
    for (int index = 0; index < popup.count(); ++index)
        items << item(popup.representedObject(index), popup.itemText(index),
                      popup.isItemEnabled(index));
    return {{u"kind"_s, u"popup"_s},
            {u"items"_s, items},
            {u"selected"_s, textOrNull(popup.selectedObject())}};
}

QJsonObject matrixReport(const RadioMatrix &matrix)
{
    QJsonArray items;
    // Cells cannot be disabled singly.
    for (int row = 0; row < matrix.numberOfRows(); ++row)
        items << item(matrix.representedObject(row), matrix.title(row), true);
    return {{u"kind"_s, u"matrix"_s},
            {u"items"_s, items},
            {u"selected"_s, textOrNull(matrix.selectedObject())}};
}

QJsonObject checkReport(const QAbstractButton &button)
{
    return {{u"kind"_s, u"check"_s},
            {u"checked"_s, button.isChecked()},
            {u"title"_s, buttonTitle(&button)}};
}

QJsonObject controlReport(const QWidget &control)
{
    QJsonObject report;
    if (const auto *popup = qobject_cast<const PopUpButton *>(&control))
        report = popUpReport(*popup);
    else if (const auto *matrix = qobject_cast<const RadioMatrix *>(&control))
        report = matrixReport(*matrix);
    else if (const auto *button = qobject_cast<const QAbstractButton *>(&control))
        report = checkReport(*button);
    report.insert("enabled"_L1, control.isEnabled());
    report.insert("visible"_L1, !isHiddenItself(&control));
    return report;
}

} // namespace

QJsonObject controlReports(const PDEPanelControls &panel)
{
    QJsonObject reports;
    const auto parts = outletsInView(panel);
    for (auto part = parts.cbegin(); part != parts.cend(); ++part) {
        if (isReportedControl(part.value()))
            reports.insert(part.key(), controlReport(*part.value()));
    }
    return reports;
}

QJsonObject labelReports(const PDEPanelControls &panel)
{
    QJsonObject reports;
    const auto parts = outletsInView(panel);
    for (auto part = parts.cbegin(); part != parts.cend(); ++part) {
        if (const auto *label = qobject_cast<const QLabel *>(part.value()))
            reports.insert(part.key(), QJsonObject{{u"text"_s, label->text()},
                                                   {u"dimmed"_s,
                                                    textColor(label) == disabledControlTextColor()},
                                                   {u"visible"_s, !isHiddenItself(label)}});
    }
    return reports;
}
