#include "panel/ControlValue.h"

#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"

#include <QtWidgets/QAbstractButton>

QString checkBoxValue(const QString &keyword, bool checked)
{
    if (keyword == QLatin1String("MirrorPrint"))
        return checked ? QStringLiteral("True") : QStringLiteral("False");
    return checked ? QStringLiteral("ON") : QStringLiteral("OFF");
}

bool isCheckedValue(const QString &value)
{
    return value == QLatin1String("ON") || value == QLatin1String("True");
}

QString shownChoice(const QWidget *control, const QString &keyword)
{
    if (const auto *matrix = qobject_cast<const RadioMatrix *>(control))
        return matrix->selectedObject();
    if (const auto *popup = qobject_cast<const PopUpButton *>(control))
        return popup->selectedObject();
    if (const auto *box = qobject_cast<const QAbstractButton *>(control))
        return checkBoxValue(keyword, box->isChecked());
    return {};
}

bool showChoice(QWidget *control, const QString &choice)
{
    if (auto *matrix = qobject_cast<RadioMatrix *>(control))
        return matrix->selectObject(choice);
    if (auto *popup = qobject_cast<PopUpButton *>(control))
        return popup->selectObject(choice);
    if (auto *box = qobject_cast<QAbstractButton *>(control)) {
        box->setChecked(isCheckedValue(choice));
        return true;
    }
    return false;
}

bool isCheckBox(const QWidget *control)
{
    return qobject_cast<const QAbstractButton *>(control) != nullptr;
}
