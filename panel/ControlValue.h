#pragma once

#include <QtCore/QString>

class QWidget;

/// The value of a PPD-driven control, by its kind: a matrix of radio cells, a pop-up button, or
/// (any other button) a check box.

/// What a check box of the keyword stands for: "ON" and "OFF", for "MirrorPrint" "True" and
/// "False".
QString checkBoxValue(const QString &keyword, bool checked);

/// Whether the value is that of a ticked check box, in either form.
bool isCheckedValue(const QString &value);

/// The choice that the control shows; null for none and for another kind of control.
QString shownChoice(const QWidget *control, const QString &keyword);

/// Makes the control show the choice. A matrix or pop-up that does not hold it keeps what it shows;
/// false then.
bool showChoice(QWidget *control, const QString &choice);

/// Whether the control is a check box, that is, a button that is no pop-up.
bool isCheckBox(const QWidget *control);
